// SPDX-License-Identifier: MIT
// Conversions that SQLite cannot do itself, while a statement runs.
#pragma once

#include "vortaq/sql/expression.h"

struct sqlite3_context;
struct sqlite3_value;

namespace vortaq::sqlite {

/// ts_convert(value, from, to, mode ..): the types as sql::typeName() writes them, the mode as conversionModeName().
/// Follows the rules for written values (sql::convertText), so that a value means the same wherever it comes from.
/// Throws SqlError(Conversion).
void convertValue(sqlite3_context *context, sqlite3_value **arguments);

[[nodiscard]] const char *conversionModeName(sql::Conversion::Mode mode);

} // namespace vortaq::sqlite
