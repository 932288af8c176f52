// SPDX-License-Identifier: MIT
// Calendar arithmetic of the demo hospital.
#include "vortaq/demo/calendar.h"

#include <chrono>

namespace vortaq::demo {
namespace {

constexpr int coveredDays = 115 * 366;

std::chrono::year_month_day civil(Day day)
{
    return std::chrono::year_month_day{std::chrono::sys_days{std::chrono::days{day}}};
}

void appendNumber(std::string &text, int number, std::size_t digits)
{
    const std::string plain = std::to_string(number);
    text.append(digits - plain.size(), '0').append(plain);
}

} // namespace

Age ageOn(Day day, Day birthDay)
{
    const auto now = civil(day);
    const auto birth = civil(birthDay);
    int months = (static_cast<int>(now.year()) - static_cast<int>(birth.year())) * 12
        + static_cast<int>(static_cast<unsigned>(now.month())) - static_cast<int>(static_cast<unsigned>(birth.month()));
    if (now.day() < birth.day())
        --months;
    if (months >= 12)
        return {months / 12, "岁"};
    if (months >= 1)
        return {months, "月"};
    return {day - birthDay, "天"};
}

Calendar::Calendar(Day today)
    : m_today(today)
{
    m_texts.reserve(coveredDays + 1);
    for (Day day = today - coveredDays; day <= today; ++day) {
        const auto date = civil(day);
        std::string &text = m_texts.emplace_back();
        appendNumber(text, static_cast<int>(date.year()), 4);
        text += '-';
        appendNumber(text, static_cast<int>(static_cast<unsigned>(date.month())), 2);
        text += '-';
        appendNumber(text, static_cast<int>(static_cast<unsigned>(date.day())), 2);
    }
}

std::string_view Calendar::text(Day day) const
{
    return m_texts.at(static_cast<std::size_t>(day - (m_today - coveredDays)));
}

} // namespace vortaq::demo
