// SPDX-License-Identifier: MIT
// What the binder must know of a database: tables, their columns and keys.
#pragma once

#include "vortaq/sql/Type.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vortaq::sql {

struct CatalogColumn {
    std::string name; ///< as declared
    Type type;
};

struct CatalogTable {
    std::string name; ///< as declared
    std::vector<CatalogColumn> columns;
    /// Positions in columns, in key order. Its values are never null and unique as they compare; empty when there is
    /// none such.
    std::vector<std::size_t> primaryKey;

    /// Position of a column, found without regard to ASCII letter case; columns.size() when there is none.
    [[nodiscard]] std::size_t find(std::string_view columnName) const;
};

class Catalog {
public:
    Catalog() = default;
    virtual ~Catalog() = default;
    Catalog(const Catalog &) = delete;
    Catalog &operator=(const Catalog &) = delete;

    /// A table or view by its name without regard to ASCII letter case; nullptr when there is none.
    /// The table is borrowed and outlives every statement bound against it.
    [[nodiscard]] virtual const CatalogTable *find(std::string_view tableName) const = 0;
};

/// Tables held in memory; tables already found stay where they are when others are added.
class MemoryCatalog : public Catalog {
public:
    /// Replaces a table of the same name.
    void add(CatalogTable table);
    [[nodiscard]] const CatalogTable *find(std::string_view tableName) const override;

private:
    std::map<std::string, CatalogTable, std::less<>> m_tables; // by lower-case name
};

/// ASCII letters in lower case, all other bytes as they are: the form in which names are compared.
[[nodiscard]] std::string foldName(std::string_view name);
[[nodiscard]] bool sameName(std::string_view left, std::string_view right);

} // namespace vortaq::sql
