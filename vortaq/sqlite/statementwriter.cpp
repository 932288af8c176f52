// SPDX-License-Identifier: MIT
// Statements and their clauses.
#include "vortaq/sqlite/statementwriter.h"

#include "vortaq/sqlite/CatalogReader.h"

namespace vortaq::sqlite {

WrittenStatement writeStatement(const sql::Statement &statement)
{
    return StatementWriter().write(statement);
}

std::string quotedName(const std::string &name)
{
    std::string result = "\"";
    for (const char c : name) {
        if (c == '"')
            result += c;
        result += c;
    }
    return result += '"';
}

std::string sourceName(int number)
{
    return "s" + std::to_string(number);
}

WrittenStatement StatementWriter::write(const sql::Statement &statement)
{
    if (const auto *rows = std::get_if<sql::Query>(&statement.node))
        query(*rows);
    else if (const auto *added = std::get_if<sql::Insert>(&statement.node))
        insert(*added);
    else if (const auto *changed = std::get_if<sql::Update>(&statement.node))
        update(*changed);
    else
        remove(std::get<sql::Delete>(statement.node));
    return {std::move(m_text), std::move(m_keyTables), m_readsClock};
}

void StatementWriter::insert(const sql::Insert &insert)
{
    m_text += "INSERT INTO " + quotedName(insert.table->name) + " (";
    for (std::size_t i = 0; i < insert.columns.size(); ++i) {
        m_text += i == 0 ? "" : ", ";
        m_text += quotedName(insert.table->columns[insert.columns[i]].name);
    }
    m_text += ") ";
    query(insert.rows, insert.table, insert.columns);
}

void StatementWriter::update(const sql::Update &update)
{
    m_text += "UPDATE ";
    source(update.target);
    m_text += " SET ";
    // The values may read columns of what follows behind them in the text.
    std::string behind;
    std::swap(behind, m_text);
    if (!update.from.empty()) {
        m_text += " FROM ";
        sources(update.from);
    }
    std::swap(behind, m_text);
    for (std::size_t i = 0; i < update.assignments.size(); ++i) {
        const sql::Update::Assignment &assignment = update.assignments[i];
        m_text += i == 0 ? "" : ", ";
        m_text += quotedName(update.target.table->columns[assignment.column].name) + " = ";
        stored(*assignment.value, *update.target.table, assignment.column);
    }
    m_text += behind;
    where(update.where);
}

void StatementWriter::remove(const sql::Delete &remove)
{
    m_text += "DELETE FROM ";
    source(remove.target);
    where(remove.where);
}

void StatementWriter::query(const sql::Query &query, const sql::CatalogTable *into, Destination columns)
{
    for (std::size_t i = 0; i < query.selects.size(); ++i) {
        m_text += i == 0 ? "" : " UNION ALL ";
        select(query.selects[i], into, columns);
    }
    for (std::size_t i = 0; i < query.orderBy.size(); ++i) {
        m_text += i == 0 ? " ORDER BY " : ", ";
        orderTerm(query, query.orderBy[i]);
    }
}

void StatementWriter::select(const sql::Select &select, const sql::CatalogTable *into, Destination columns)
{
    // The values stand before the sources they read.
    std::string before;
    std::swap(before, m_text);
    if (!select.from.empty()) {
        m_text += " FROM ";
        sources(select.from);
    }
    std::swap(before, m_text);
    m_text += "SELECT ";
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        m_text += i == 0 ? "" : ", ";
        if (into == nullptr)
            value(*select.items[i].value);
        else
            stored(*select.items[i].value, *into, columns[i]);
        m_text += " AS c" + std::to_string(i);
    }
    m_text += before;
    where(select.where);
    for (std::size_t i = 0; i < select.groupBy.size(); ++i) {
        m_text += i == 0 ? " GROUP BY " : ", ";
        compared(*select.groupBy[i]);
    }
}

void StatementWriter::orderTerm(const sql::Query &query, const sql::OrderTerm &term)
{
    if (term.output) {
        m_text += std::to_string(*term.output + 1);
        if (query.columns[*term.output].type.kind == sql::Kind::Varchar)
            m_text += " COLLATE NOCASE";
    } else {
        compared(*term.value);
    }
    m_text += term.descending ? " DESC" : "";
}

void StatementWriter::sources(const std::vector<sql::Source> &sources)
{
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const bool left = sources[i].join == sql::Source::Join::Left;
        m_text += i == 0 ? "" : left ? " LEFT JOIN " : ", ";
        source(sources[i]);
        if (left) {
            m_text += " ON ";
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
    if (source.derived) {
        m_text += '(';
        query(*source.derived);
        m_text += ')';
    } else {
        m_text += quotedName(source.table->name);
    }
    m_text += " AS " + sourceName(source.number);
}

void StatementWriter::where(const sql::ConditionPtr &where)
{
    if (!where)
        return;
    m_text += " WHERE ";
    condition(*where);
}

void StatementWriter::stored(const sql::Expr &stored, const sql::CatalogTable &table, std::size_t column)
{
    const auto *literal = std::get_if<sql::Literal>(&stored.node);
    const bool endsClean =
        literal != nullptr && (literal->isNull || literal->text.empty() || literal->text.back() != ' ');
    // Trailing blanks in an index would stand in another order for other tools that open the file.
    const bool trimmed =
        stored.type.kind == sql::Kind::Varchar && !endsClean && CatalogReader::details(table).indexed[column];
    m_text += trimmed ? "rtrim(" : "";
    value(stored);
    m_text += trimmed ? ")" : "";
}

} // namespace vortaq::sqlite
