// SPDX-License-Identifier: MIT
// Decimal digits read, rounded and written.
#include "values/decimaltext.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>

namespace values {

namespace {

std::string_view digitsOf(std::string_view &rest)
{
    const std::size_t end = std::min(rest.find_first_not_of("0123456789"), rest.size());
    const std::string_view digits = rest.substr(0, end);
    rest.remove_prefix(end);
    return digits;
}

void increment(std::string &digits)
{
    const std::size_t last = digits.find_last_not_of('9');
    const std::size_t nines = last == std::string::npos ? 0 : last + 1;
    std::fill(digits.begin() + static_cast<std::ptrdiff_t>(nines), digits.end(), '0');
    if (last == std::string::npos)
        digits.insert(digits.begin(), '1');
    else
        ++digits[last];
}

bool isZero(const DecimalText &number)
{
    return number.whole.empty() && number.fraction.find_first_not_of('0') == std::string::npos;
}

} // namespace

std::optional<DecimalText> parseDecimal(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return std::nullopt;
    std::string_view rest = text.substr(first, text.find_last_not_of(' ') + 1 - first);
    DecimalText result;
    if (rest.front() == '-' || rest.front() == '+') {
        result.negative = rest.front() == '-';
        rest.remove_prefix(1);
    }
    std::string_view whole = digitsOf(rest);
    bool anyDigit = !whole.empty();
    if (!rest.empty() && rest.front() == '.') {
        rest.remove_prefix(1);
        result.fraction = digitsOf(rest);
        anyDigit = anyDigit || !result.fraction.empty();
    }
    if (!anyDigit || !rest.empty())
        return std::nullopt;
    whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
    result.whole = whole;
    result.negative = result.negative && !isZero(result);
    return result;
}

DecimalText DecimalText::rounded(int scale) const
{
    const auto kept = static_cast<std::size_t>(scale);
    DecimalText result = *this;
    result.fraction.resize(kept, '0');
    if (fraction.size() > kept && fraction[kept] >= '5') {
        std::string digits = result.whole + result.fraction;
        increment(digits);
        result.whole = digits.substr(0, digits.size() - kept);
        result.fraction = digits.substr(digits.size() - kept);
    }
    result.negative = negative && !isZero(result);
    return result;
}

std::string DecimalText::text() const
{
    std::string result = negative ? "-" : "";
    result += whole.empty() ? "0" : whole;
    if (!fraction.empty())
        result += "." + fraction;
    return result;
}

bool fitsInt(const DecimalText &number)
{
    std::int64_t value = 0;
    if (number.whole.size() > 10)
        return false;
    std::from_chars(number.whole.data(), number.whole.data() + number.whole.size(), value);
    if (number.negative)
        value = -value;
    return value >= INT32_MIN && value <= INT32_MAX;
}

} // namespace values
