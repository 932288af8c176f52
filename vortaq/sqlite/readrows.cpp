// SPDX-License-Identifier: MIT
// Row by row into the packet.
#include "vortaq/sqlite/readrows.h"

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
        packet.append(UnitsText(unitsOfValue(sqlite3_column_value(row, column), type.scale), type.scale).text());
    else if (type.kind == Kind::Float)
        engines::appendFloat(packet, sqlite3_column_double(row, column));
    else
        engines::appendText(packet, type, statement.text(column));
}

} // namespace

automation::DataPacketPtr readRows(PreparedStatement &statement, const std::vector<sql::OutputColumn> &columns)
{
    automation::DataPacketBuilder packet = engines::packetOf(columns);
    while (statement.step()) {
        for (std::size_t i = 0; i < columns.size(); ++i)
            appendCell(packet, statement, static_cast<int>(i), columns[i].type);
    }
    return packet.finish();
}

} // namespace vortaq::sqlite
