// SPDX-License-Identifier: MIT
// Units from numbers and text, and back.
#include "values/decimal.h"

#include "values/decimaltext.h"

#include <cmath>
#include <cstdint>
#include <string>

namespace values {

namespace {

constexpr std::array<Units, mostDecimals + 1> powersOfTen = [] {
    std::array<Units, mostDecimals + 1> powers{};
    powers[0] = 1;
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

constexpr Units mostUnits = powersOfTen[mostDecimals] - 1;

// From here on neighbouring whole numbers are no longer told apart by a binary number.
constexpr Units lastExact = Units{1} << 53;

Units power(int exponent)
{
    return powersOfTen[static_cast<std::size_t>(exponent)];
}

} // namespace

std::optional<Units> unitsOf(double number, int scale)
{
    const long double scaled = static_cast<long double>(number) * static_cast<long double>(power(scale));
    if (!(std::fabs(scaled) <= static_cast<long double>(mostUnits)))
        return std::nullopt;
    return static_cast<Units>(std::round(scaled));
}

std::optional<Units> unitsOf(long long number, int scale)
{
    return rescaled(number, 0, scale);
}

std::optional<Units> parseUnits(std::string_view text, int scale)
{
    const auto number = parseDecimal(text);
    if (!number)
        return std::nullopt;
    const DecimalText rounded = number->rounded(scale);
    const std::string digits = rounded.whole + rounded.fraction;
    if (digits.size() > mostDecimals)
        return std::nullopt;
    Units units = 0;
    for (const char digit : digits)
        units = units * 10 + (digit - '0');
    return rounded.negative ? -units : units;
}

std::optional<Units> rescaled(Units units, int from, int to)
{
    if (to >= from) {
        const Units factor = power(to - from);
        if (units > mostUnits / factor || units < -mostUnits / factor)
            return std::nullopt;
        return units * factor;
    }
    const Units divisor = power(from - to);
    const Units half = divisor / 2;
    return (units + (units < 0 ? -half : half)) / divisor;
}

bool fitsDigits(Units units, int digits)
{
    return units < power(digits) && units > -power(digits);
}

std::optional<double> exactNumber(Units units, int scale)
{
    if (units > lastExact || units < -lastExact)
        return std::nullopt;
    return static_cast<double>(static_cast<std::int64_t>(units)) / static_cast<double>(power(scale));
}

UnitsText::UnitsText(Units units, int scale)
{
    const bool negative = units < 0;
    Units wide = negative ? -units : units;
    int written = 0;
    const auto put = [&](int digit) {
        m_buffer[--m_begin] = static_cast<char>('0' + digit);
        if (++written == scale)
            m_buffer[--m_begin] = '.';
    };
    while (wide > INT64_MAX) {
        put(static_cast<int>(wide % 10));
        wide /= 10;
    }
    // Amounts are narrow; dividing them narrowly is many times faster.
    for (auto rest = static_cast<std::uint64_t>(wide); rest != 0; rest /= 10)
        put(static_cast<int>(rest % 10));
    while (written <= scale)
        put(0);
    if (negative)
        m_buffer[--m_begin] = '-';
}

} // namespace values
