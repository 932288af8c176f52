// SPDX-License-Identifier: MIT
// The walk behind statementText(): clauses, junctions and lists. Dialects write their pieces through it.
#pragma once

#include "vortaq/engines/Dialect.h"
#include "vortaq/engines/ValuePlace.h"

#include <span>
#include <string_view>
#include <vector>

namespace vortaq::engines {

class StatementWriter {
public:
    /// The dialect is borrowed.
    explicit StatementWriter(Dialect &dialect)
        : m_dialect(dialect)
    {
    }

    [[nodiscard]] std::string write(const sql::Statement &statement);

    StatementWriter &operator<<(std::string_view piece);
    StatementWriter &operator<<(char piece);
    StatementWriter &operator<<(int number);
    /// One operand.
    StatementWriter &operator<<(const sql::Expr &value);
    StatementWriter &operator<<(const sql::Query &query);
    void compared(const sql::Expr &value, Side side) { m_dialect.compared(*this, value, side); }

    /// A source that the text written so far can read.
    [[nodiscard]] const sql::Source &source(int number) const;
    /// A column as it is called in the text.
    [[nodiscard]] std::string columnName(const sql::ColumnRef &column) const;
    /// False for the values that a grouped select gives: they belong to many rows.
    [[nodiscard]] bool writesRows() const noexcept { return m_writesRows; }
    /// Of a value that is being written.
    [[nodiscard]] ValuePlace placeOf(const sql::Expr &value) const;

private:
    /// Columns that values go into, one for every output column.
    using Destination = std::span<const std::size_t>;
    class RowScope;

    void insert(const sql::Insert &insert);
    void update(const sql::Update &update);
    void remove(const sql::Delete &remove);
    void query(const sql::Query &query, const sql::CatalogTable *into, Destination columns);
    void select(const sql::Select &select, const sql::CatalogTable *into, Destination columns);
    void items(const sql::Select &select, const sql::CatalogTable *into, Destination columns);
    void sources(const std::vector<sql::Source> &sources);
    void source(const sql::Source &source);
    void where(const sql::ConditionPtr &where);

    void value(const sql::Literal &literal, const sql::Type &type) { m_dialect.literal(*this, literal, type); }
    void value(const sql::ColumnRef &column, const sql::Type &type) { m_dialect.column(*this, column, type); }
    void value(const sql::Conversion &node, const sql::Type &type) { m_dialect.conversion(*this, node, type); }
    void value(const sql::Arithmetic &node, const sql::Type &type) { m_dialect.arithmetic(*this, node, type); }
    void value(const sql::Negation &negation, const sql::Type &type);
    void value(const sql::Call &call, const sql::Type &) { m_dialect.call(*this, call); }
    void value(const sql::Aggregate &aggregate, const sql::Type &type);
    void value(const sql::Case &choice, const sql::Type &type);
    void value(const sql::Subquery &subquery, const sql::Type &) { m_dialect.scalar(*this, subquery); }

    void condition(const sql::Condition &tested);
    void condition(const sql::Comparison &comparison);
    void condition(const sql::NullTest &test);
    void condition(const sql::Between &between);
    void condition(const sql::Like &like) { m_dialect.like(*this, like); }
    void condition(const sql::InList &list);
    void condition(const sql::InQuery &test) { m_dialect.inQuery(*this, test); }
    void condition(const sql::Exists &exists);
    void condition(const sql::Negated &negated);
    void condition(const sql::Junction &junction);
    void condition(const sql::KeyList &keys) { m_dialect.keyList(*this, keys); }
    void operands(std::span<const sql::ConditionPtr> operands, const char *between);

    Dialect &m_dialect;
    std::string m_text;
    std::vector<const sql::Source *> m_sources; // by number
    bool m_writesRows = true;
};

/// How a source is called in the text.
[[nodiscard]] std::string sourceName(int number);

} // namespace vortaq::engines
