// SPDX-License-Identifier: MIT
// Bound trees as text, for comparing them whole.
#pragma once

#include "vortaq/sql/tree.h"

#include <string>

namespace vortaq::sql::test {

/// One clause a line, two blanks further in for every query around. Columns read source-number.name.
[[nodiscard]] std::string dump(const Statement &statement);

} // namespace vortaq::sql::test
