// SPDX-License-Identifier: MIT
// From a rowid to the key that people know.
#include "vortaq/sqlite/failedvalue.h"

#include "vortaq/engines/ValuePlace.h"
#include "vortaq/sqlite/Connection.h"
#include "vortaq/sqlite/PreparedStatement.h"
#include "vortaq/sqlite/writestatement.h"

#include <string>
#include <vector>

namespace vortaq::sqlite {

namespace {

std::vector<engines::KeyPart> keyOf(const sql::CatalogTable &table, std::int64_t row, Connection &connection)
{
    std::vector<engines::KeyPart> key;
    std::string names;
    for (const std::size_t column : table.primaryKey) {
        key.push_back({table.columns[column].name, {}});
        names += (names.empty() ? "" : ", ") + quotedName(key.back().column);
    }
    PreparedStatement statement(connection,
                                "SELECT " + names + " FROM main." + quotedName(table.name) + " WHERE rowid = ?1");
    statement.bindInteger(1, row);
    if (!statement.step())
        return {};
    for (std::size_t i = 0; i < key.size(); ++i)
        key[i].value = statement.text(static_cast<int>(i));
    return key;
}

} // namespace

SqlError withPlace(const ValueError &error, const WrittenStatement &written, Connection &connection)
{
    const WrittenPlace &place = written.places[error.value().place];
    std::vector<engines::KeyPart> key;
    if (place.table != nullptr && error.value().row)
        key = keyOf(*place.table, *error.value().row, connection);
    return engines::withPlace(error, place.column, key);
}

} // namespace vortaq::sqlite
