// SPDX-License-Identifier: MIT
// Conditions.
#include "vortaq/sqlite/statementwriter.h"

#include "vortaq/sqlite/CatalogReader.h"

#include <array>

namespace vortaq::sqlite {

namespace {

constexpr std::array<const char *, 6> comparisonSigns{" = ", " <> ", " < ", " <= ", " > ", " >= "};

// SQLite refuses expressions a thousand levels deep, and a flat chain of n operands is n levels to it.
constexpr std::size_t longestChain = 32;

} // namespace

void StatementWriter::condition(const sql::Condition &tested)
{
    std::visit([&](const auto &node) { condition(node); }, tested.node);
}

void StatementWriter::condition(const sql::Comparison &comparison)
{
    m_text += '(';
    compared(*comparison.left);
    m_text += comparisonSigns[static_cast<std::size_t>(comparison.op)];
    value(*comparison.right);
    m_text += ')';
}

void StatementWriter::condition(const sql::NullTest &test)
{
    m_text += '(';
    value(*test.operand);
    m_text += test.negated ? " IS NOT NULL)" : " IS NULL)";
}

void StatementWriter::condition(const sql::Between &between)
{
    m_text += '(';
    compared(*between.operand);
    m_text += between.negated ? " NOT BETWEEN " : " BETWEEN ";
    value(*between.low);
    m_text += " AND ";
    value(*between.high);
    m_text += ')';
}

void StatementWriter::condition(const sql::Like &like)
{
    m_text += like.negated ? "(NOT ts_like(" : "ts_like(";
    value(*like.operand);
    m_text += ", ";
    value(*like.pattern);
    m_text += like.negated ? "))" : ")";
}

void StatementWriter::condition(const sql::InList &list)
{
    m_text += '(';
    compared(*list.operand);
    m_text += list.negated ? " NOT IN (" : " IN (";
    for (std::size_t i = 0; i < list.values.size(); ++i) {
        m_text += i == 0 ? "" : ", ";
        value(*list.values[i]);
    }
    m_text += "))";
}

void StatementWriter::condition(const sql::InQuery &inQuery)
{
    m_text += '(';
    compared(*inQuery.operand);
    m_text += inQuery.negated ? " NOT IN (" : " IN (";
    query(*inQuery.subquery.query);
    m_text += "))";
}

void StatementWriter::condition(const sql::Exists &exists)
{
    m_text += "EXISTS (";
    query(*exists.subquery.query);
    m_text += ')';
}

void StatementWriter::condition(const sql::Negated &negated)
{
    m_text += "(NOT ";
    condition(*negated.operand);
    m_text += ')';
}

void StatementWriter::condition(const sql::Junction &junction)
{
    operands(junction.operands, junction.kind == sql::Junction::Kind::And ? " AND " : " OR ");
}

void StatementWriter::operands(std::span<const sql::ConditionPtr> operands, const char *between)
{
    m_text += '(';
    if (operands.size() > longestChain) {
        this->operands(operands.first(operands.size() / 2), between);
        m_text += between;
        this->operands(operands.subspan(operands.size() / 2), between);
    } else {
        for (std::size_t i = 0; i < operands.size(); ++i) {
            m_text += i == 0 ? "" : between;
            condition(*operands[i]);
        }
    }
    m_text += ')';
}

void StatementWriter::condition(const sql::KeyList &keys)
{
    const std::string table = "ts_keys" + std::to_string(m_keyTables.size());
    m_keyTables.push_back({table, &keys});
    const sql::CatalogTable *recordTable = m_sources[static_cast<std::size_t>(keys.source)]->table;
    if (recordTable != nullptr && CatalogReader::details(*recordTable).hasRowId)
        keySearch(keys, *recordTable, table);
    else
        keyTest(keys, table);
}

/// Goes from the keys to the records: a few seeks for each key, however many records there are.
void StatementWriter::keySearch(const sql::KeyList &keys, const sql::CatalogTable &table, const std::string &keyTable)
{
    const StoredTable &stored = CatalogReader::details(table);
    m_text += sourceName(keys.source) + ".rowid IN (SELECT r.rowid FROM temp." + keyTable + " AS k CROSS JOIN "
        + quotedName(table.name) + " AS r WHERE ";
    for (std::size_t i = 0; i < keys.columns.size(); ++i) {
        const std::size_t column = keys.columns[i].column;
        m_text += i == 0 ? "" : " AND ";
        m_text += "r." + quotedName(table.columns[column].name);
        m_text += keys.types[i].kind == sql::Kind::Varchar && !stored.noCase[column] ? " COLLATE NOCASE" : "";
        m_text += " = k.k" + std::to_string(i);
    }
    m_text += ')';
}

/// Goes through the rows and looks each one's key up.
void StatementWriter::keyTest(const sql::KeyList &keys, const std::string &table)
{
    std::string columns;
    m_text += '(';
    for (std::size_t i = 0; i < keys.columns.size(); ++i) {
        m_text += i == 0 ? "" : ", ";
        value(keys.columns[i], keys.types[i]);
        m_text += keys.types[i].kind == sql::Kind::Varchar ? " COLLATE NOCASE" : "";
        columns += (i == 0 ? "k" : ", k") + std::to_string(i);
    }
    m_text += ") IN (SELECT " + columns + " FROM temp." + table + ")";
}

} // namespace vortaq::sqlite
