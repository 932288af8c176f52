// SPDX-License-Identifier: MIT
// The decimal digits of a number, as display formats round and show them.
#include "values/decimaldigits.h"

#include "values/powersoften.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace values {

namespace {

constexpr int SignificantDigits = 18;

template <typename... Arguments> std::string text(Arguments... arguments)
{
    std::array<char, 64> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), arguments...);
    return {buffer.data(), result.ptr};
}

/// By way of a whole number of 18 digits, for the amounts that occur; false where that would not be exact.
bool convertQuickly(long double magnitude, DecimalDigits &digits)
{
    if (std::numeric_limits<long double>::digits < 64 || magnitude < 1e-8L
        || magnitude >= PowersOfTen[SignificantDigits])
        return false;
    int scale = SignificantDigits; // brings the magnitude between 10^17 and 10^18
    if (magnitude >= 1) {
        while (magnitude >= PowersOfTen[static_cast<std::size_t>(SignificantDigits - scale)])
            --scale;
    } else {
        while (magnitude * PowersOfTen[static_cast<std::size_t>(scale)] < PowersOfTen[SignificantDigits - 1])
            ++scale;
    }
    const long double scaled = magnitude * PowersOfTen[static_cast<std::size_t>(scale)];
    const long double whole = std::floor(scaled);
    // The product is off by 1/32 at most, so only close to a half the last digit is in doubt.
    if (std::fabs(scaled - whole - 0.5L) < 0.0625L)
        return false;
    digits.digits = text(static_cast<std::uint64_t>(scaled - whole < 0.5L ? whole : whole + 1));
    digits.exponent = static_cast<int>(digits.digits.size()) - scale;
    return true;
}

DecimalDigits convertSlowly(long double magnitude)
{
    const std::string scientific = text(magnitude, std::chars_format::scientific, SignificantDigits - 1);
    const std::size_t mark = scientific.find('e');
    return {scientific[0] + scientific.substr(2, mark - 2), std::stoi(scientific.substr(mark + 1)) + 1};
}

} // namespace

char DecimalDigits::at(int place) const noexcept
{
    const int index = exponent - 1 + place;
    return index >= 0 && index < static_cast<int>(digits.size()) ? digits[static_cast<std::size_t>(index)] : '0';
}

bool DecimalDigits::isZero() const noexcept
{
    return std::ranges::all_of(digits, [](char digit) { return digit == '0'; });
}

void DecimalDigits::roundTo(int places)
{
    const int kept = exponent + places;
    if (kept >= static_cast<int>(digits.size()))
        return;
    const bool up = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
    digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
    if (!up)
        return;
    std::size_t at = digits.size();
    while (at > 0 && digits[at - 1] == '9')
        digits[--at] = '0';
    if (at > 0) {
        ++digits[at - 1];
    } else {
        digits.insert(digits.begin(), '1');
        ++exponent;
    }
}

DecimalDigits decimalDigits(long double magnitude)
{
    DecimalDigits digits;
    if (magnitude == 0 || convertQuickly(magnitude, digits))
        return digits;
    return convertSlowly(magnitude);
}

} // namespace values
