// SPDX-License-Identifier: MIT
// Where a value stands that turns out not to be convertible while a statement runs: a clerk needs the field and the
// record, not the value alone.
#pragma once

#include "vortaq/SqlError.h"
#include "vortaq/sql/tree.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vortaq::engines {

struct ValuePlace {
    std::string column; ///< the first that the value reads, or the one it goes into; empty for none
    int source = 0; ///< whose rows it comes from; 0 where they are not known
};

/// The first column that a value reads outside of sub-queries; null for none.
[[nodiscard]] const sql::ColumnRef *firstColumn(const sql::Expr &value);

struct KeyPart {
    std::string column;
    std::string value;
};

/// The error with “所在列：” and “所在行：” below its message; what is empty is left out.
[[nodiscard]] SqlError withPlace(const SqlError &error, std::string_view column, std::span<const KeyPart> key);

/// Positions of the output columns that name a record or a bill; empty when a query gives neither.
[[nodiscard]] std::vector<std::size_t> keyColumns(const std::vector<sql::OutputColumn> &columns);

} // namespace vortaq::engines
