// SPDX-License-Identifier: MIT
// The SQL functions that written statements call: what SQLite lacks or does otherwise than T-SQL.
//
//   ts_convert(value, from, to, mode ..)     see conversion.h
//   ts_int(number)                           the int; one out of range is an error
//   ts_str(number, width, decimals, from ..) `from` is the decimals that the number itself has
//   ts_like(text, pattern)
//   ts_sum(number, scale ..)                 aggregate: exact, over the values that are not null
//   ts_single(value)                         aggregate: the only value, null of none; a second one is an error
//
// ".." may be the position of the value's WrittenPlace, and behind it the rowid of its row: for the error message.
// The scalar functions give null when their first argument is null. Errors are left in the connection's
// FunctionFailure.
#pragma once

struct sqlite3;

namespace vortaq::sqlite {

class FunctionFailure;

/// `failure` is borrowed and outlives the connection.
void installScalarFunctions(sqlite3 *database, FunctionFailure &failure);
void installAggregates(sqlite3 *database, FunctionFailure &failure);

} // namespace vortaq::sqlite
