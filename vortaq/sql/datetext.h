// SPDX-License-Identifier: MIT
// Dates written as text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vortaq::sql {

/// "2024-01-31 08:00:00" (".123" only when not zero) from the spellings that T-SQL takes in any language setting:
/// year, month and day joined by one of - / . or written as eight digits, and perhaps a time after blanks or a T.
/// Empty text is the first day of 1900, as in T-SQL. Nothing for any other text.
[[nodiscard]] std::optional<std::string> parseDateTime(std::string_view text);

} // namespace vortaq::sql
