// SPDX-License-Identifier: MIT
// Reads the subset of T-SQL that this system's statements are written in.
#pragma once

#include "vortaq/sql/aststatement.h"

namespace vortaq::sql {

/// One statement. The text must outlive the tree. Throws SqlError (Syntax).
[[nodiscard]] ast::Tree parse(std::string_view text);

/// How deep parentheses, queries, cases and chains of + may nest; deeper text is refused rather than risking the stack.
inline constexpr int deepestNesting = 100;

} // namespace vortaq::sql
