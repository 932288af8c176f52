// SPDX-License-Identifier: MIT
// Statements, their clauses and their values.
#include "vortaq/engines/StatementWriter.h"

#include "vortaq/engines/statementtext.h"

#include <utility>

namespace vortaq::engines {

std::string statementText(const sql::Statement &statement, Dialect &dialect)
{
    return StatementWriter(dialect).write(statement);
}

std::string sourceName(int number)
{
    return "s" + std::to_string(number);
}

/// Whether values belong to one row, for a part of the text.
class StatementWriter::RowScope {
public:
    RowScope(StatementWriter &writer, bool writesRows)
        : m_writer(writer)
        , m_around(std::exchange(writer.m_writesRows, writesRows))
    {
    }
    ~RowScope() { m_writer.m_writesRows = m_around; }
    RowScope(const RowScope &) = delete;
    RowScope &operator=(const RowScope &) = delete;

private:
    StatementWriter &m_writer;
    bool m_around;
};

std::string StatementWriter::write(const sql::Statement &statement)
{
    if (const auto *rows = std::get_if<sql::Query>(&statement.node))
        *this << *rows;
    else if (const auto *added = std::get_if<sql::Insert>(&statement.node))
        insert(*added);
    else if (const auto *changed = std::get_if<sql::Update>(&statement.node))
        update(*changed);
    else
        remove(std::get<sql::Delete>(statement.node));
    return std::move(m_text);
}

StatementWriter &StatementWriter::operator<<(std::string_view piece)
{
    m_text += piece;
    return *this;
}

StatementWriter &StatementWriter::operator<<(char piece)
{
    m_text += piece;
    return *this;
}

StatementWriter &StatementWriter::operator<<(int number)
{
    m_text += std::to_string(number);
    return *this;
}

StatementWriter &StatementWriter::operator<<(const sql::Expr &value)
{
    std::visit([&](const auto &node) { this->value(node, value.type); }, value.node);
    return *this;
}

StatementWriter &StatementWriter::operator<<(const sql::Query &query)
{
    this->query(query, nullptr, {});
    return *this;
}

const sql::Source &StatementWriter::source(int number) const
{
    return *m_sources[static_cast<std::size_t>(number)];
}

std::string StatementWriter::columnName(const sql::ColumnRef &column) const
{
    const sql::CatalogTable *table = source(column.source).table;
    return table != nullptr ? m_dialect.name(table->columns[column.column].name) : "c" + std::to_string(column.column);
}

ValuePlace StatementWriter::placeOf(const sql::Expr &value) const
{
    const sql::ColumnRef *column = firstColumn(value);
    if (column == nullptr)
        return {};
    return {column->name, m_writesRows ? column->source : 0};
}

void StatementWriter::insert(const sql::Insert &insert)
{
    *this << "INSERT INTO " << m_dialect.name(insert.table->name) << " (";
    for (std::size_t i = 0; i < insert.columns.size(); ++i)
        *this << (i == 0 ? "" : ", ") << m_dialect.name(insert.table->columns[insert.columns[i]].name);
    *this << ") ";
    query(insert.rows, insert.table, insert.columns);
}

void StatementWriter::update(const sql::Update &update)
{
    *this << "UPDATE ";
    source(update.target);
    *this << " SET ";
    // The values may read columns of what follows behind them in the text.
    std::string behind;
    std::swap(behind, m_text);
    if (!update.from.empty()) {
        *this << " FROM ";
        sources(update.from);
    }
    std::swap(behind, m_text);
    for (std::size_t i = 0; i < update.assignments.size(); ++i) {
        const sql::Update::Assignment &assignment = update.assignments[i];
        *this << (i == 0 ? "" : ", ") << m_dialect.name(update.target.table->columns[assignment.column].name) << " = ";
        m_dialect.stored(*this, *assignment.value, {*update.target.table, assignment.column, update.target.number});
    }
    *this << behind;
    where(update.where);
}

void StatementWriter::remove(const sql::Delete &remove)
{
    *this << "DELETE FROM ";
    source(remove.target);
    where(remove.where);
}

void StatementWriter::query(const sql::Query &query, const sql::CatalogTable *into, Destination columns)
{
    for (std::size_t i = 0; i < query.selects.size(); ++i) {
        *this << (i == 0 ? "" : " UNION ALL ");
        select(query.selects[i], into, columns);
    }
    for (std::size_t i = 0; i < query.orderBy.size(); ++i) {
        const sql::Select &first = query.selects.front();
        const RowScope scope(*this, first.groupBy.empty() && !first.aggregated);
        *this << (i == 0 ? " ORDER BY " : ", ");
        m_dialect.order(*this, query, query.orderBy[i]);
    }
}

void StatementWriter::select(const sql::Select &select, const sql::CatalogTable *into, Destination columns)
{
    // The values stand before the sources they read.
    std::string before;
    std::swap(before, m_text);
    if (!select.from.empty()) {
        *this << " FROM ";
        sources(select.from);
    }
    std::swap(before, m_text);
    items(select, into, columns);
    *this << before;
    where(select.where);
    for (std::size_t i = 0; i < select.groupBy.size(); ++i) {
        *this << (i == 0 ? " GROUP BY " : ", ");
        const RowScope scope(*this, true);
        compared(*select.groupBy[i], Side::Left);
    }
}

void StatementWriter::items(const sql::Select &select, const sql::CatalogTable *into, Destination columns)
{
    const RowScope scope(*this, select.groupBy.empty() && !select.aggregated);
    *this << "SELECT ";
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        *this << (i == 0 ? "" : ", ");
        if (into == nullptr)
            *this << *select.items[i].value;
        else
            m_dialect.stored(*this, *select.items[i].value, {*into, columns[i]});
        *this << " AS c" << static_cast<int>(i);
    }
}

void StatementWriter::sources(const std::vector<sql::Source> &sources)
{
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const bool left = sources[i].join == sql::Source::Join::Left;
        *this << (i == 0 ? "" : left ? " LEFT JOIN " : ", ");
        source(sources[i]);
        if (left) {
            *this << " ON ";
            const RowScope scope(*this, true);
            condition(*sources[i].on);
        }
    }
}

void StatementWriter::source(const sql::Source &source)
{
    const auto number = static_cast<std::size_t>(source.number);
    if (m_sources.size() <= number)
        m_sources.resize(number + 1);
    m_sources[number] = &source;
    if (source.derived)
        *this << '(' << *source.derived << ')';
    else
        *this << m_dialect.name(source.table->name);
    *this << " AS " << sourceName(source.number);
}

void StatementWriter::where(const sql::ConditionPtr &where)
{
    if (!where)
        return;
    *this << " WHERE ";
    const RowScope scope(*this, true);
    condition(*where);
}

void StatementWriter::value(const sql::Negation &negation, const sql::Type &)
{
    *this << "(- " << *negation.operand << ')';
}

void StatementWriter::value(const sql::Aggregate &aggregate, const sql::Type &)
{
    const RowScope scope(*this, true);
    m_dialect.aggregate(*this, aggregate);
}

void StatementWriter::value(const sql::Case &choice, const sql::Type &)
{
    *this << "CASE";
    if (choice.operand) {
        *this << ' ';
        compared(*choice.operand, Side::Left);
    }
    for (const sql::Case::Branch &branch : choice.branches) {
        *this << " WHEN ";
        if (branch.value)
            compared(*branch.value, Side::Right);
        else
            condition(*branch.condition);
        *this << " THEN " << *branch.result;
    }
    if (choice.otherwise)
        *this << " ELSE " << *choice.otherwise;
    *this << " END";
}

} // namespace vortaq::engines
