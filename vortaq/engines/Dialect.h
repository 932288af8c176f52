// SPDX-License-Identifier: MIT
// What databases spell differently. The walk over a statement's tree is the same for all of them (statementText()); it
// asks here wherever it is not.
#pragma once

#include "vortaq/sql/tree.h"

#include <string>

namespace vortaq::engines {

class StatementWriter;

/// Where a value stands that is compared with others: in front of the sign or the list, or behind it.
enum class Side { Left, Right };

/// The column that a value goes into.
struct StoredInto {
    const sql::CatalogTable &table;
    std::size_t column = 0; ///< position in the table
    int source = 0; ///< whose rows are changed; 0 for an insertion
};

/// Writes the pieces to `out`, each value as one operand: a name, a call or in parentheses. Lives as long as one
/// statement and may keep what its database needs beside the text. May throw SqlError.
class Dialect {
public:
    Dialect() = default;
    virtual ~Dialect() = default;
    Dialect(const Dialect &) = delete;
    Dialect &operator=(const Dialect &) = delete;

    /// A table's or a column's name so that it means just that.
    [[nodiscard]] virtual std::string name(const std::string &name) const = 0;

    virtual void literal(StatementWriter &out, const sql::Literal &literal, const sql::Type &type) = 0;
    virtual void column(StatementWriter &out, const sql::ColumnRef &column, const sql::Type &type) = 0;
    virtual void conversion(StatementWriter &out, const sql::Conversion &conversion, const sql::Type &to) = 0;
    virtual void arithmetic(StatementWriter &out, const sql::Arithmetic &arithmetic, const sql::Type &type) = 0;
    virtual void call(StatementWriter &out, const sql::Call &call) = 0;
    virtual void aggregate(StatementWriter &out, const sql::Aggregate &aggregate) = 0;
    /// A second row is an error, nowhere the first of several.
    virtual void scalar(StatementWriter &out, const sql::Subquery &subquery) = 0;

    /// Text compares, groups and orders without regard to letter case and trailing blanks.
    virtual void compared(StatementWriter &out, const sql::Expr &value, Side side) = 0;
    /// With its direction. Nulls are lowest.
    virtual void order(StatementWriter &out, const sql::Query &query, const sql::OrderTerm &term) = 0;
    virtual void like(StatementWriter &out, const sql::Like &like) = 0;
    virtual void inQuery(StatementWriter &out, const sql::InQuery &test) = 0;
    virtual void keyList(StatementWriter &out, const sql::KeyList &keys) = 0;

    /// A value on its way into a column; its outermost Conversion may be of the mode Store.
    virtual void stored(StatementWriter &out, const sql::Expr &value, const StoredInto &into) = 0;
};

} // namespace vortaq::engines
