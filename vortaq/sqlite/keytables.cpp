// SPDX-License-Identifier: MIT
// Keys into temporary tables.
#include "vortaq/sqlite/keytables.h"

#include "vortaq/sqlite/Connection.h"
#include "vortaq/sqlite/PreparedStatement.h"

#include <charconv>
#include <cstdint>
#include <string>

namespace vortaq::sqlite {

namespace {

using sql::Kind;

/// The type of a key column so that it compares with the record's column as it is.
const char *columnType(Kind kind)
{
    switch (kind) {
    case Kind::Varchar:
        return " TEXT COLLATE NOCASE";
    case Kind::Int:
        return " INTEGER";
    case Kind::Decimal:
    case Kind::Float:
        return " NUMERIC";
    default:
        return " TEXT";
    }
}

void createTable(Connection &connection, const WrittenKeys &keys)
{
    std::string columns;
    std::string names;
    for (std::size_t i = 0; i < keys.keys->types.size(); ++i) {
        const std::string name = "k" + std::to_string(i);
        columns += name + columnType(keys.keys->types[i].kind) + ", ";
        names += (i == 0 ? "" : ", ") + name;
    }
    connection.run("DROP TABLE IF EXISTS temp." + keys.table);
    connection.run("CREATE TEMP TABLE " + keys.table + " (" + columns + "PRIMARY KEY (" + names + ")) WITHOUT ROWID");
}

template <typename Number> Number numberIn(const std::string &text)
{
    Number number{};
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

void bindValue(PreparedStatement &statement, int parameter, Kind kind, const std::string &text)
{
    if (kind == Kind::Int)
        statement.bindInteger(parameter, numberIn<std::int64_t>(text));
    else if (sql::isNumber(kind))
        statement.bindNumber(parameter, numberIn<double>(text));
    else
        statement.bindText(parameter, text);
}

void fillTable(Connection &connection, const WrittenKeys &keys)
{
    const sql::KeyList &list = *keys.keys;
    std::string places;
    for (std::size_t i = 0; i < list.types.size(); ++i)
        places += i == 0 ? "?" : ", ?";
    PreparedStatement statement(connection, "INSERT OR IGNORE INTO temp." + keys.table + " VALUES (" + places + ")");
    for (std::size_t row = 0; row < list.rowCount(); ++row) {
        for (std::size_t i = 0; i < list.types.size(); ++i)
            bindValue(statement, static_cast<int>(i) + 1, list.types[i].kind, list.values[row * list.types.size() + i]);
        statement.step();
        statement.reset();
    }
}

} // namespace

void fillKeyTables(Connection &connection, const std::vector<WrittenKeys> &tables)
{
    for (const WrittenKeys &keys : tables) {
        createTable(connection, keys);
        fillTable(connection, keys);
    }
}

} // namespace vortaq::sqlite
