// SPDX-License-Identifier: MIT
// Names found without regard to letter case.
#include "vortaq/sql/Catalog.h"

#include <algorithm>
#include <utility>

namespace vortaq::sql {

namespace {

char folded(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::string foldName(std::string_view name)
{
    std::string result(name);
    std::transform(result.begin(), result.end(), result.begin(), folded);
    return result;
}

bool sameName(std::string_view left, std::string_view right)
{
    return left.size() == right.size()
        && std::equal(left.begin(), left.end(), right.begin(), [](char a, char b) { return folded(a) == folded(b); });
}

std::size_t CatalogTable::find(std::string_view columnName) const
{
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&](const CatalogColumn &column) { return sameName(column.name, columnName); });
    return static_cast<std::size_t>(found - columns.begin());
}

void MemoryCatalog::add(CatalogTable table)
{
    std::string key = foldName(table.name);
    m_tables.insert_or_assign(std::move(key), std::move(table));
}

const CatalogTable *MemoryCatalog::find(std::string_view tableName) const
{
    const auto found = m_tables.find(foldName(tableName));
    return found == m_tables.end() ? nullptr : &found->second;
}

} // namespace vortaq::sql
