// SPDX-License-Identifier: MIT
// Cells straight into the packet's arena.
#include "vortaq/sqlite/rowreader.h"

#include "vortaq/sqlite/PreparedStatement.h"
#include "vortaq/sqlite/functioncall.h"

#include <sqlite3.h>

#include <array>
#include <charconv>

namespace vortaq::sqlite {

namespace {

using sql::Kind;

constexpr std::size_t secondLength = std::string_view("2024-01-31 08:00:00").size();
constexpr int digitsOfFloat = 15;

void appendFloat(automation::DataPacketBuilder &packet, double number)
{
    std::array<char, 32> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::general, digitsOfFloat)
            .ptr;
    packet.append({buffer.data(), static_cast<std::size_t>(end - buffer.data())});
}

void appendCell(automation::DataPacketBuilder &packet, const PreparedStatement &statement, int column,
                const sql::Type &type)
{
    sqlite3_stmt *row = statement.handle();
    if (sqlite3_column_type(row, column) == SQLITE_NULL)
        packet.appendNull();
    else if (type.kind == Kind::Decimal)
        packet.append(UnitsText(unitsOfValue(sqlite3_column_value(row, column), type.scale), type.scale).text());
    else if (type.kind == Kind::Float)
        appendFloat(packet, sqlite3_column_double(row, column));
    else if (type.kind == Kind::DateTime)
        packet.append(statement.text(column).substr(0, secondLength));
    else
        packet.append(statement.text(column));
}

} // namespace

automation::DataPacketPtr readRows(PreparedStatement &statement, const std::vector<sql::OutputColumn> &columns)
{
    std::vector<QString> names;
    names.reserve(columns.size());
    for (const sql::OutputColumn &column : columns)
        names.push_back(QString::fromStdString(column.name));
    automation::DataPacketBuilder packet(std::move(names));
    while (statement.step()) {
        for (std::size_t i = 0; i < columns.size(); ++i)
            appendCell(packet, statement, static_cast<int>(i), columns[i].type);
    }
    return packet.finish();
}

} // namespace vortaq::sqlite
