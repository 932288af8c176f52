// SPDX-License-Identifier: MIT
// Days as numbers, their ISO text, and ages as hospitals write them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vortaq::demo {

/// Days since 1970-01-01.
using Day = int;

struct Age {
    int number = 0;
    std::string_view unit; ///< 岁, below one year 月, below one month 天
};

/// The age on `day` of somebody born on `birthDay`, which is not later.
[[nodiscard]] Age ageOn(Day day, Day birthDay);

/// ISO texts of all days on which something can happen in the demo hospital, made once.
class Calendar {
public:
    /// Covers a good century up to `today`.
    explicit Calendar(Day today);

    [[nodiscard]] Day today() const { return m_today; }
    /// "yyyy-mm-dd"; lives as long as the calendar.
    [[nodiscard]] std::string_view text(Day day) const;

private:
    Day m_today;
    std::vector<std::string> m_texts;
};

} // namespace vortaq::demo
