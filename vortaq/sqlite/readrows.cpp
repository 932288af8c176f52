// SPDX-License-Identifier: MIT
// Row by row into the packet.
#include "vortaq/sqlite/readrows.h"

#include "vortaq/engines/ValuePlace.h"
#include "vortaq/engines/celltext.h"
#include "vortaq/sqlite/PreparedStatement.h"
#include "vortaq/sqlite/functioncall.h"

#include <sqlite3.h>

namespace vortaq::sqlite {

namespace {

using sql::Kind;

void appendCell(automation::DataPacketBuilder &packet, const PreparedStatement &statement, int column,
                const sql::Type &type)
{
    sqlite3_stmt *row = statement.handle();
    if (sqlite3_column_type(row, column) == SQLITE_NULL)
        packet.appendNull();
    else if (type.kind == Kind::Decimal)
        packet.append(
            values::UnitsText(unitsOfValue(sqlite3_column_value(row, column), type.scale), type.scale).text());
    else if (type.kind == Kind::Float)
        engines::appendFloat(packet, sqlite3_column_double(row, column));
    else
        engines::appendText(packet, type, statement.text(column));
}

/// The key of the row that the statement stands on, as far as the query gives it.
std::vector<engines::KeyPart> keyOf(const PreparedStatement &statement, const std::vector<sql::OutputColumn> &columns)
{
    std::vector<engines::KeyPart> key;
    for (const std::size_t column : engines::keyColumns(columns))
        key.push_back({columns[column].name, std::string(statement.text(static_cast<int>(column)))});
    return key;
}

void appendRow(automation::DataPacketBuilder &packet, const PreparedStatement &statement,
               const std::vector<sql::OutputColumn> &columns)
{
    std::size_t column = 0;
    try {
        for (; column < columns.size(); ++column)
            appendCell(packet, statement, static_cast<int>(column), columns[column].type);
    } catch (const SqlError &error) {
        throw engines::withPlace(error, columns[column].name, keyOf(statement, columns));
    }
}

} // namespace

automation::DataPacketPtr readRows(PreparedStatement &statement, const std::vector<sql::OutputColumn> &columns)
{
    automation::DataPacketBuilder packet = engines::packetOf(columns);
    while (statement.step())
        appendRow(packet, statement, columns);
    return packet.finish();
}

} // namespace vortaq::sqlite
