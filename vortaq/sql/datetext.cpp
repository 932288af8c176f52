// SPDX-License-Identifier: MIT
// Reads dates with perhaps a time.
#include "vortaq/sql/datetext.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdio>

namespace vortaq::sql {

namespace {

/// Takes from `least` to `most` digits off the front.
std::optional<int> takeNumber(std::string_view &rest, std::size_t least, std::size_t most)
{
    std::size_t count = 0;
    while (count < most && count < rest.size() && rest[count] >= '0' && rest[count] <= '9')
        ++count;
    if (count < least)
        return std::nullopt;
    int value = 0;
    std::from_chars(rest.data(), rest.data() + count, value);
    rest.remove_prefix(count);
    return value;
}

bool takeCharacter(std::string_view &rest, char c)
{
    if (rest.empty() || rest.front() != c)
        return false;
    rest.remove_prefix(1);
    return true;
}

bool isDay(int year, int month, int day)
{
    constexpr std::array<int, 12> lengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < 1 || month < 1 || month > 12 || day < 1)
        return false;
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return day <= lengths[static_cast<std::size_t>(month - 1)] + (leap && month == 2 ? 1 : 0);
}

std::optional<std::string> takeDay(std::string_view &rest)
{
    const auto year = takeNumber(rest, 4, 4);
    if (!year)
        return std::nullopt;
    const char separator = rest.empty() ? '\0' : rest.front();
    const bool separated = separator == '-' || separator == '/' || separator == '.';
    const std::size_t least = separated ? 1 : 2;
    if (separated)
        rest.remove_prefix(1);
    const auto month = takeNumber(rest, least, 2);
    if (!month || (separated && !takeCharacter(rest, separator)))
        return std::nullopt;
    const auto day = takeNumber(rest, least, 2);
    if (!day || !isDay(*year, *month, *day))
        return std::nullopt;
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", *year, *month, *day);
    return text.data();
}

/// Up to three decimals of a second as milliseconds.
std::optional<int> takeMilliseconds(std::string_view &rest)
{
    const std::size_t before = rest.size();
    auto value = takeNumber(rest, 1, 3);
    for (std::size_t digits = before - rest.size(); value && digits < 3; ++digits)
        *value *= 10;
    return value;
}

std::optional<std::string> takeTime(std::string_view &rest)
{
    const auto hour = takeNumber(rest, 1, 2);
    if (!hour || !takeCharacter(rest, ':'))
        return std::nullopt;
    const auto minute = takeNumber(rest, 2, 2);
    std::optional<int> second = 0;
    std::optional<int> milliseconds = 0;
    if (takeCharacter(rest, ':')) {
        second = takeNumber(rest, 2, 2);
        if (takeCharacter(rest, '.'))
            milliseconds = takeMilliseconds(rest);
    }
    if (!minute || !second || !milliseconds || *hour > 23 || *minute > 59 || *second > 59)
        return std::nullopt;
    std::array<char, 60> text{};
    std::snprintf(text.data(), text.size(), *milliseconds == 0 ? "%02d:%02d:%02d" : "%02d:%02d:%02d.%03d", *hour,
                  *minute, *second, *milliseconds);
    return text.data();
}

void skipBlanks(std::string_view &rest)
{
    while (takeCharacter(rest, ' ')) { }
}

} // namespace

std::optional<std::string> parseDateTime(std::string_view text)
{
    std::string_view rest = text;
    skipBlanks(rest);
    if (rest.empty())
        return "1900-01-01 00:00:00";
    const auto day = takeDay(rest);
    if (!day)
        return std::nullopt;
    const bool joined = takeCharacter(rest, 'T');
    const std::size_t before = rest.size();
    skipBlanks(rest);
    const bool separated = joined || rest.size() != before;
    if (rest.empty())
        return joined ? std::nullopt : std::optional<std::string>(*day + " 00:00:00");
    const auto time = separated ? takeTime(rest) : std::nullopt;
    skipBlanks(rest);
    if (!time || !rest.empty())
        return std::nullopt;
    return *day + " " + *time;
}

} // namespace vortaq::sql
