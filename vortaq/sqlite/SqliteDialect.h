// SPDX-License-Identifier: MIT
// How SQLite spells what the tree says; its own functions are listed in functions.h.
#pragma once

#include "vortaq/engines/Dialect.h"
#include "vortaq/engines/ValuePlace.h"
#include "vortaq/sqlite/writestatement.h"

namespace vortaq::sqlite {

class SqliteDialect final : public engines::Dialect {
public:
    using Writer = engines::StatementWriter;

    [[nodiscard]] std::string name(const std::string &name) const override { return quotedName(name); }
    void literal(Writer &out, const sql::Literal &literal, const sql::Type &type) override;
    void column(Writer &out, const sql::ColumnRef &column, const sql::Type &type) override;
    void conversion(Writer &out, const sql::Conversion &conversion, const sql::Type &to) override;
    void arithmetic(Writer &out, const sql::Arithmetic &arithmetic, const sql::Type &type) override;
    void call(Writer &out, const sql::Call &call) override;
    void aggregate(Writer &out, const sql::Aggregate &aggregate) override;
    void scalar(Writer &out, const sql::Subquery &subquery) override;
    void compared(Writer &out, const sql::Expr &value, engines::Side side) override;
    void order(Writer &out, const sql::Query &query, const sql::OrderTerm &term) override;
    void like(Writer &out, const sql::Like &like) override;
    void inQuery(Writer &out, const sql::InQuery &test) override;
    void keyList(Writer &out, const sql::KeyList &keys) override;
    void stored(Writer &out, const sql::Expr &value, const engines::StoredInto &into) override;

    /// What was met on the way, with the text.
    [[nodiscard]] WrittenStatement take(std::string text);

private:
    /// The last arguments of a function that may refuse its value: where the value stands, and in which row.
    void place(Writer &out, const engines::ValuePlace &place);

    const engines::StoredInto *m_storing = nullptr; // while a value is written that goes into a column
    WrittenStatement m_written; // without its text
};

} // namespace vortaq::sqlite
