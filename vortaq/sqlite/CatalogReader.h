// SPDX-License-Identifier: MIT
// The binder's catalogue, read from the database's own declarations, so that a hospital's own tables serve as well.
#pragma once

#include "vortaq/sql/Catalog.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vortaq::sqlite {

class Connection;

/// A table with what only the writer of SQLite text needs to know.
struct StoredTable : sql::CatalogTable {
    std::vector<bool> noCase; ///< by column: declared with the collation that text compares by
    std::vector<bool> indexed; ///< by column: part of the primary key or of an index
    bool hasRowId = false;
};

/// Reads a table when it is first asked for. Columns whose declared type no statement can work with are left out;
/// columns without a type (of views) count as text.
class CatalogReader : public sql::Catalog {
public:
    /// The connection is borrowed.
    explicit CatalogReader(Connection &connection)
        : m_connection(connection)
    {
    }

    [[nodiscard]] const sql::CatalogTable *find(std::string_view tableName) const override;

    /// Forgets what was read when the database's declarations have changed since; tables found before are gone then.
    void refresh();

    /// Of a table that find() gave.
    [[nodiscard]] static const StoredTable &details(const sql::CatalogTable &table);

private:
    [[nodiscard]] std::unique_ptr<StoredTable> read(std::string_view tableName) const;
    void readColumns(StoredTable &table) const;
    void readIndexes(StoredTable &table) const;

    Connection &m_connection;
    mutable std::map<std::string, std::unique_ptr<StoredTable>, std::less<>> m_tables; // by lower-case name
    std::int64_t m_version = -1;
};

} // namespace vortaq::sqlite
