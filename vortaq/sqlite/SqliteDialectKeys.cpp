// SPDX-License-Identifier: MIT
// Key lists in SQLite's words.
#include "vortaq/sqlite/SqliteDialect.h"

#include "vortaq/engines/StatementWriter.h"
#include "vortaq/sqlite/CatalogReader.h"

namespace vortaq::sqlite {

using sql::Kind;

namespace {

/// Goes from the keys to the records: a few seeks for each key, however many records there are.
void writeSearch(engines::StatementWriter &out, const sql::KeyList &keys, const StoredTable &table,
                 const std::string &keyTable)
{
    out << engines::sourceName(keys.source) << ".rowid IN (SELECT r.rowid FROM temp." << keyTable << " AS k CROSS JOIN "
        << quotedName(table.name) << " AS r WHERE ";
    for (std::size_t i = 0; i < keys.columns.size(); ++i) {
        const std::size_t column = keys.columns[i].column;
        out << (i == 0 ? "" : " AND ") << "r." << quotedName(table.columns[column].name)
            << (keys.types[i].kind == Kind::Varchar && !table.noCase[column] ? " COLLATE NOCASE" : "") << " = k.k"
            << static_cast<int>(i);
    }
    out << ')';
}

} // namespace

void SqliteDialect::keyList(Writer &out, const sql::KeyList &keys)
{
    const std::string keyTable = "ts_keys" + std::to_string(m_written.keyTables.size());
    m_written.keyTables.push_back({keyTable, &keys});
    const sql::CatalogTable *table = out.source(keys.source).table;
    if (table != nullptr && CatalogReader::details(*table).hasRowId) {
        writeSearch(out, keys, CatalogReader::details(*table), keyTable);
        return;
    }
    // Without row numbers: through the rows, looking each one's key up.
    std::string names;
    out << '(';
    for (std::size_t i = 0; i < keys.columns.size(); ++i) {
        out << (i == 0 ? "" : ", ");
        column(out, keys.columns[i], keys.types[i]);
        out << (keys.types[i].kind == Kind::Varchar ? " COLLATE NOCASE" : "");
        names += (i == 0 ? "k" : ", k") + std::to_string(i);
    }
    out << ") IN (SELECT " << names << " FROM temp." << keyTable << ')';
}

} // namespace vortaq::sqlite
