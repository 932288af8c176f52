// SPDX-License-Identifier: MIT
// Text to numbers, and the rounding of amounts.
#include "values/displayformat.h"

#include "values/powersoften.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>

namespace values {

namespace {

constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// As the Pascal runtime trims: control characters are blanks too.
constexpr std::string_view trimmed(std::string_view text)
{
    constexpr auto blank = [](char character) { return static_cast<unsigned char>(character) <= ' '; };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    return text;
}

[[noreturn]] void refuse(std::string_view text, const char *what)
{
    throw std::invalid_argument("“" + std::string(text) + "”" + what);
}

/// A decimal number in parts; the value is `mantissa` times ten to the `exponent`, when all digits are in it.
struct Decimal {
    bool negative = false;
    bool complete = true; ///< every significant digit is in the mantissa
    std::uint64_t mantissa = 0;
    int exponent = 0;
};

constexpr int ExponentLimit = 1'000'000; // far beyond any number; keeps sums of exponents from overflowing
constexpr std::uint64_t MantissaRoom = (std::numeric_limits<std::uint64_t>::max() - 9) / 10;

/// Reads digits from `at` on; returns how many there were.
std::size_t readDigits(std::string_view text, std::size_t at, bool fraction, Decimal &decimal)
{
    const std::size_t begin = at;
    for (; at < text.size() && isDigit(text[at]); ++at) {
        if (!decimal.complete || decimal.mantissa > MantissaRoom) {
            decimal.complete = false;
            if (!fraction)
                ++decimal.exponent;
            continue;
        }
        decimal.mantissa = decimal.mantissa * 10 + static_cast<std::uint64_t>(text[at] - '0');
        if (fraction)
            --decimal.exponent;
    }
    return at - begin;
}

/// Reads "e", a sign and digits at the end of the text; false when they are malformed.
bool readExponent(std::string_view text, std::size_t at, Decimal &decimal)
{
    ++at;
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+'))
        ++at;
    int exponent = 0;
    const std::size_t begin = at;
    for (; at < text.size() && isDigit(text[at]); ++at)
        exponent = std::min(exponent * 10 + (text[at] - '0'), ExponentLimit);
    decimal.exponent += negative ? -exponent : exponent;
    return at == text.size() && at > begin;
}

/// False when the text is not a number.
bool readDecimal(std::string_view text, Decimal &decimal)
{
    std::size_t at = 0;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        decimal.negative = text[0] == '-';
        at = 1;
    }
    const std::size_t whole = readDigits(text, at, false, decimal);
    at += whole;
    std::size_t fraction = 0;
    if (at < text.size() && text[at] == '.') {
        fraction = readDigits(text, ++at, true, decimal);
        at += fraction;
    }
    if (whole + fraction == 0)
        return false;
    if (at == text.size())
        return true;
    return (text[at] == 'e' || text[at] == 'E') && readExponent(text, at, decimal);
}

/// For numbers with many digits or a large exponent. Too small a number is 0.
long double convertSlowly(std::string_view text, const Decimal &decimal)
{
    if (text.front() == '+')
        text.remove_prefix(1);
    long double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range && decimal.exponent > 0)
        refuse(text, "超出了数值的范围。");
    return value;
}

} // namespace

long double parseAmount(std::string_view utf8)
{
    const std::string_view text = trimmed(utf8);
    Decimal decimal;
    if (!readDecimal(text, decimal))
        refuse(utf8, "不是有效的数值。");

    const bool exact = decimal.complete && decimal.exponent >= -ExactPowers && decimal.exponent <= ExactPowers
        && (std::numeric_limits<long double>::digits >= 64 || decimal.mantissa >> 53U == 0);
    if (!exact)
        return convertSlowly(text, decimal);
    const auto mantissa = static_cast<long double>(decimal.mantissa);
    const long double magnitude = decimal.exponent < 0
        ? mantissa / PowersOfTen[static_cast<std::size_t>(-decimal.exponent)]
        : mantissa * PowersOfTen[static_cast<std::size_t>(decimal.exponent)];
    return decimal.negative ? -magnitude : magnitude;
}

long double parseAmount(const QString &text)
{
    return parseAmount(text.toStdString());
}

int parseInteger(const QString &text)
{
    const std::string utf8 = text.toStdString();
    std::string_view digits = utf8;
    digits.remove_prefix(std::min(digits.find_first_not_of(' '), digits.size()));
    if (digits.size() > 1 && digits[0] == '+' && isDigit(digits[1]))
        digits.remove_prefix(1);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size())
        refuse(utf8, "不是有效的整数。");
    return number;
}

double roundToCents(double value)
{
    // A double times 100 is exact in a 64-bit mantissa, so what looks like a half is one.
    const long double cents = std::nearbyint(static_cast<long double>(value) * 100.0L);
    return static_cast<double>(cents / 100.0L) + 0.0; // no negative zero
}

} // namespace values
