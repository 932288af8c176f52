// SPDX-License-Identifier: MIT
// From a bound statement to the text that a database gets. Nothing of the statement's own text gets through, only what
// the tree says.
#pragma once

#include "vortaq/sql/tree.h"

#include <string>

namespace vortaq::engines {

class Dialect;

/// Sources are called s1, s2 ... by their number, and output columns c0, c1 ... by their place, so that no name of the
/// statement can clash. Throws SqlError for what the database cannot take.
[[nodiscard]] std::string statementText(const sql::Statement &statement, Dialect &dialect);

} // namespace vortaq::engines
