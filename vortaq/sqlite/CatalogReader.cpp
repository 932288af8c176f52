// SPDX-License-Identifier: MIT
// Declarations through SQLite's pragma tables.
#include "vortaq/sqlite/CatalogReader.h"

#include "vortaq/sqlite/Connection.h"
#include "vortaq/sqlite/PreparedStatement.h"

#include <sqlite3.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace vortaq::sqlite {

namespace {

bool comparesWithoutCase(sqlite3 *database, const std::string &table, const std::string &column)
{
    const char *collation = nullptr;
    const int code = sqlite3_table_column_metadata(database, "main", table.c_str(), column.c_str(), nullptr, &collation,
                                                   nullptr, nullptr, nullptr);
    // A view has no such data; its columns are compared with the collation written out.
    return code == SQLITE_OK && sqlite3_stricmp(collation, "NOCASE") == 0;
}

} // namespace

const sql::CatalogTable *CatalogReader::find(std::string_view tableName) const
{
    const std::string key = sql::foldName(tableName);
    const auto known = m_tables.find(key);
    if (known != m_tables.end())
        return known->second.get();
    std::unique_ptr<StoredTable> table = read(tableName);
    return table ? m_tables.emplace(key, std::move(table)).first->second.get() : nullptr;
}

void CatalogReader::refresh()
{
    PreparedStatement statement(m_connection, "pragma main.schema_version");
    statement.step();
    if (statement.integer(0) == m_version)
        return;
    m_version = statement.integer(0);
    m_tables.clear();
}

const StoredTable &CatalogReader::details(const sql::CatalogTable &table)
{
    return static_cast<const StoredTable &>(table);
}

std::unique_ptr<StoredTable> CatalogReader::read(std::string_view tableName) const
{
    PreparedStatement statement(
        m_connection,
        "select name, type = 'table' and wr = 0 from pragma_table_list "
        "where schema = 'main' and name = ?1 collate nocase and name not like 'sqlite\\_%' escape '\\'");
    statement.bindText(1, tableName);
    if (!statement.step())
        return nullptr;
    auto table = std::make_unique<StoredTable>();
    table->name = statement.text(0);
    table->hasRowId = statement.integer(1) != 0;
    readColumns(*table);
    readIndexes(*table);
    if (table->find("rowid") < table->columns.size())
        table->hasRowId = false; // the name means that column then
    return table;
}

void CatalogReader::readColumns(StoredTable &table) const
{
    PreparedStatement statement(m_connection,
                                "select name, type, pk, \"notnull\" from pragma_table_info(?1, 'main') order by cid");
    statement.bindText(1, table.name);
    std::vector<std::pair<std::int64_t, std::size_t>> keyColumns; // place in the key, place in the table
    bool keyTellsApart = true; // SQLite's keys may hold nulls, and texts that differ in letter case only
    while (statement.step()) {
        const std::string_view declared = statement.text(1);
        const auto type = declared.empty() || declared == "TEXT" ? sql::varcharType(sql::longestVarchar)
                                                                 : sql::parseDeclaredType(declared);
        if (!type)
            continue;
        if (statement.integer(2) != 0)
            keyColumns.emplace_back(statement.integer(2), table.columns.size());
        table.columns.push_back({std::string(statement.text(0)), *type});
        table.noCase.push_back(comparesWithoutCase(m_connection.handle(), table.name, table.columns.back().name));
        const bool tellsApart = statement.integer(3) != 0 && (type->kind != sql::Kind::Varchar || table.noCase.back());
        keyTellsApart = keyTellsApart && (statement.integer(2) == 0 || tellsApart);
    }
    std::sort(keyColumns.begin(), keyColumns.end());
    table.indexed.resize(table.columns.size());
    for (const auto &[place, column] : keyColumns) {
        if (keyTellsApart)
            table.primaryKey.push_back(column);
        table.indexed[column] = true;
    }
}

void CatalogReader::readIndexes(StoredTable &table) const
{
    PreparedStatement statement(
        m_connection,
        "select distinct i.name from pragma_index_list(?1, 'main') l, pragma_index_info(l.name, 'main') i "
        "where i.name is not null");
    statement.bindText(1, table.name);
    while (statement.step()) {
        const std::size_t column = table.find(statement.text(0));
        if (column < table.columns.size())
            table.indexed[column] = true;
    }
}

} // namespace vortaq::sqlite
