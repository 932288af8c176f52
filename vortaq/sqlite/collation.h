// SPDX-License-Identifier: MIT
// How text compares: letter case and trailing blanks do not count.
#pragma once

#include <string_view>

struct sqlite3;

namespace vortaq::sqlite {

/// Negative, zero or positive. ASCII letters compare without regard to case, other characters by their code.
[[nodiscard]] int compareText(std::string_view left, std::string_view right) noexcept;

/// Makes NOCASE, which the tables declare, compare like compareText() on this connection. The order differs from
/// the built-in NOCASE only for text with trailing blanks or control characters, so other tools can still use the
/// file's indexes; indexed text is therefore stored without trailing blanks.
void installCollation(sqlite3 *database);

} // namespace vortaq::sqlite
