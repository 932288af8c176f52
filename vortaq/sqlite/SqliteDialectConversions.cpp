// SPDX-License-Identifier: MIT
// Conversions in SQLite's words.
#include "vortaq/sqlite/SqliteDialect.h"

#include "vortaq/engines/StatementWriter.h"
#include "vortaq/sqlite/conversion.h"

#include <algorithm>
#include <string_view>

namespace vortaq::sqlite {

using sql::Kind;

namespace {

constexpr int digitsOfInt = 10;
constexpr int intLength = static_cast<int>(std::string_view("-2147483648").size());
constexpr int dateLength = static_cast<int>(std::string_view("2024-01-31").size());
constexpr int secondLength = static_cast<int>(std::string_view("2024-01-31 08:00:00").size());

void writeFirstCharacters(engines::StatementWriter &out, const sql::Expr &text, int count)
{
    out << "substr(" << text << ", 1, " << count << ')';
}

/// The moment's text: without milliseconds, or in full with a T.
void writeMoment(engines::StatementWriter &out, const sql::Expr &moment, bool iso, int size)
{
    out << (iso ? "substr(replace(" : "substr(") << moment << (iso ? ", ' ', 'T')" : "") << ", 1, "
        << (iso ? size : std::min(size, secondLength)) << ')';
}

bool isExact(Kind kind)
{
    return kind == Kind::Int || kind == Kind::Decimal;
}

bool isWidened(const sql::Type &from, const sql::Type &to)
{
    const int whole = from.kind == Kind::Int ? digitsOfInt : from.size - from.scale;
    return isExact(from.kind) && to.kind == Kind::Decimal && to.scale >= from.scale && to.size - to.scale >= whole;
}

/// Conversions that SQLite does itself, and fast: they stand in the lists of thousands of records.
bool writePlainly(engines::StatementWriter &out, const sql::Conversion &conversion, const sql::Type &to)
{
    const sql::Expr &operand = *conversion.operand;
    const sql::Type &from = operand.type;
    const bool text = to.kind == Kind::Varchar;
    const bool cut = conversion.mode == sql::Conversion::Mode::Cut;
    if (text && from.kind == Kind::Int && to.size >= intLength)
        out << "cast(" << operand << " AS TEXT)";
    else if ((text && from.kind == Kind::Date && to.size >= dateLength) || isWidened(from, to))
        out << operand;
    else if (text && from.kind == Kind::DateTime && cut)
        writeMoment(out, operand, conversion.iso, to.size);
    else if (text && (from.kind == Kind::Varchar || from.kind == Kind::Date) && cut)
        writeFirstCharacters(out, operand, to.size);
    else if (from.kind == Kind::DateTime && to.kind == Kind::Date)
        writeFirstCharacters(out, operand, dateLength);
    else if (from.kind == Kind::Date && to.kind == Kind::DateTime)
        out << '(' << operand << " || ' 00:00:00')";
    else if (isExact(from.kind) && to.kind == Kind::Float)
        out << "cast(" << operand << " AS REAL)";
    else
        return false;
    return true;
}

} // namespace

void SqliteDialect::conversion(Writer &out, const sql::Conversion &conversion, const sql::Type &to)
{
    if (writePlainly(out, conversion, to))
        return;
    out << "ts_convert(" << *conversion.operand << ", '" << sql::typeName(conversion.operand->type) << "', '"
        << sql::typeName(to) << "', '" << conversionModeName(conversion.mode) << '\'';
    engines::ValuePlace where = out.placeOf(*conversion.operand);
    if (conversion.mode == sql::Conversion::Mode::Store && m_storing != nullptr) {
        where.column = m_storing->table.columns[m_storing->column].name;
        where.source = m_storing->source == 0 ? where.source : m_storing->source;
    }
    place(out, where);
    out << ')';
}

} // namespace vortaq::sqlite
