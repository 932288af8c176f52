// SPDX-License-Identifier: MIT
// Gives the words of a parsed statement their meaning: columns, types, conversions, grouping.
#pragma once

#include "vortaq/sql/aststatement.h"
#include "vortaq/sql/tree.h"

namespace vortaq::sql {

/// `text` is what the tree was parsed from. Throws SqlError (Binding, Conversion).
[[nodiscard]] Statement bind(const ast::Tree &tree, std::string_view text, const Catalog &catalog);

} // namespace vortaq::sql
