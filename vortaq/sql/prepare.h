// SPDX-License-Identifier: MIT
// From a statement's text to its bound tree.
#pragma once

#include "vortaq/sql/tree.h"

#include <string_view>

namespace vortaq::sql {

/// What the caller is about to do: read rows, or change them.
enum class Due { Query, Change };

/// Reads one T-SQL statement of the subset (UTF-8) and binds it. The catalogue's tables must outlive the result.
/// Throws SqlError: Syntax for what is no statement of the subset (empty text, several statements, comments, a query
/// where a change is due and the reverse), Binding for names, types and grouping, Conversion for a written value that
/// its place cannot take. Messages are Chinese and name line and column, counted in characters from 1; a second line
/// shows the place in the statement.
[[nodiscard]] Statement prepare(std::string_view text, const Catalog &catalog, Due due);

} // namespace vortaq::sql
