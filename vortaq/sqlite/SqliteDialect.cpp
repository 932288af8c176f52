// SPDX-License-Identifier: MIT
// Names, values, comparisons, order.
#include "vortaq/sqlite/SqliteDialect.h"

#include "vortaq/SqlError.h"
#include "vortaq/engines/StatementWriter.h"
#include "vortaq/engines/statementtext.h"
#include "vortaq/sqlite/CatalogReader.h"

#include <utility>

namespace vortaq::sqlite {

using engines::Side;
using sql::Kind;

namespace {

void writeText(engines::StatementWriter &out, const std::string &text)
{
    if (text.find('\0') != std::string::npos)
        throw SqlError(SqlError::Reason::Conversion, "文本中含有不能使用的字符（0）。");
    out << '\'';
    for (const char c : text) {
        if (c == '\'')
            out << c;
        out << c;
    }
    out << '\'';
}

/// Whether a value brings the collation with it that text compares by.
bool comparesByItself(const engines::StatementWriter &out, const sql::Expr &value)
{
    if (value.type.kind != Kind::Varchar)
        return true;
    const auto *column = std::get_if<sql::ColumnRef>(&value.node);
    if (column == nullptr)
        return false;
    const sql::CatalogTable *table = out.source(column->source).table;
    return table != nullptr && CatalogReader::details(*table).noCase[column->column];
}

} // namespace

WrittenStatement writeStatement(const sql::Statement &statement)
{
    SqliteDialect dialect;
    return dialect.take(engines::statementText(statement, dialect));
}

std::string quotedName(const std::string &name)
{
    std::string result = "\"";
    for (const char c : name) {
        if (c == '"')
            result += c;
        result += c;
    }
    return result += '"';
}

WrittenStatement SqliteDialect::take(std::string text)
{
    m_written.text = std::move(text);
    return std::move(m_written);
}

void SqliteDialect::literal(Writer &out, const sql::Literal &literal, const sql::Type &type)
{
    if (literal.isNull)
        out << "NULL";
    else if (!sql::isNumber(type.kind))
        writeText(out, literal.text);
    else if (literal.text.front() == '-')
        out << '(' << literal.text << ')';
    else
        out << literal.text;
}

void SqliteDialect::column(Writer &out, const sql::ColumnRef &column, const sql::Type &)
{
    out << engines::sourceName(column.source) << '.' << out.columnName(column);
}

void SqliteDialect::arithmetic(Writer &out, const sql::Arithmetic &arithmetic, const sql::Type &type)
{
    using Operator = sql::Arithmetic::Operator;
    // Sums of binary numbers are brought back to the decimal number they stand for.
    out << (type.kind == Kind::Decimal   ? "round("
                : type.kind == Kind::Int ? "ts_int("
                                         : "(")
        << *arithmetic.left
        << (arithmetic.op == Operator::Concat    ? " || "
                : arithmetic.op == Operator::Add ? " + "
                                                 : " - ")
        << *arithmetic.right;
    if (type.kind == Kind::Decimal)
        out << ", " << type.scale;
    out << ')';
}

void SqliteDialect::call(Writer &out, const sql::Call &call)
{
    switch (call.function) {
    case sql::Call::Function::GetDate:
        m_written.readsClock = true;
        out << "?1";
        break;
    case sql::Call::Function::IsNull:
        out << "ifnull(" << *call.arguments[0] << ", " << *call.arguments[1] << ')';
        break;
    case sql::Call::Function::Len:
        out << "length(rtrim(" << *call.arguments[0] << "))";
        break;
    case sql::Call::Function::Str: {
        const sql::Type &from = call.arguments[0]->type;
        out << "ts_str(" << *call.arguments[0] << ", " << call.width << ", " << call.decimals << ", "
            << (from.kind == Kind::Float ? call.decimals : from.scale);
        place(out, out.placeOf(*call.arguments[0]));
        out << ')';
        break;
    }
    }
}

void SqliteDialect::aggregate(Writer &out, const sql::Aggregate &aggregate)
{
    const sql::Expr &operand = *aggregate.operand;
    if (aggregate.function == sql::Aggregate::Function::Max) {
        out << "max(";
        compared(out, operand, Side::Left);
        out << ')';
    } else if (operand.type.kind == Kind::Float) {
        out << "sum(" << operand << ')';
    } else {
        const bool isInt = operand.type.kind == Kind::Int;
        out << (isInt ? "ts_int(ts_sum(" : "ts_sum(") << operand << ", " << operand.type.scale;
        place(out, out.placeOf(operand));
        out << (isInt ? "))" : ")");
    }
}

void SqliteDialect::scalar(Writer &out, const sql::Subquery &subquery)
{
    const sql::Query &inner = *subquery.query;
    const bool oneRow = inner.selects.size() == 1 && inner.selects.front().aggregated;
    // SQLite would take the first of several rows in silence.
    out << (oneRow ? "(" : "(SELECT ts_single(c0) FROM (") << inner << (oneRow ? ")" : "))");
}

void SqliteDialect::compared(Writer &out, const sql::Expr &value, Side side)
{
    out << value;
    // The left side's collation holds for both.
    if (side == Side::Left && !comparesByItself(out, value))
        out << " COLLATE NOCASE";
}

void SqliteDialect::order(Writer &out, const sql::Query &query, const sql::OrderTerm &term)
{
    if (term.output) {
        out << static_cast<int>(*term.output) + 1;
        if (query.columns[*term.output].type.kind == Kind::Varchar)
            out << " COLLATE NOCASE";
    } else {
        compared(out, *term.value, Side::Left);
    }
    out << (term.descending ? " DESC" : "");
}

void SqliteDialect::like(Writer &out, const sql::Like &like)
{
    out << (like.negated ? "(NOT ts_like(" : "ts_like(") << *like.operand << ", " << *like.pattern
        << (like.negated ? "))" : ")");
}

void SqliteDialect::inQuery(Writer &out, const sql::InQuery &test)
{
    out << '(';
    compared(out, *test.operand, Side::Left);
    out << (test.negated ? " NOT IN (" : " IN (") << *test.subquery.query << "))";
}

void SqliteDialect::stored(Writer &out, const sql::Expr &value, const engines::StoredInto &into)
{
    const auto *literal = std::get_if<sql::Literal>(&value.node);
    const bool endsClean =
        literal != nullptr && (literal->isNull || literal->text.empty() || literal->text.back() != ' ');
    // Trailing blanks in an index would stand in another order for other tools that open the file.
    const bool trimmed =
        value.type.kind == Kind::Varchar && !endsClean && CatalogReader::details(into.table).indexed[into.column];
    m_storing = &into;
    out << (trimmed ? "rtrim(" : "") << value << (trimmed ? ")" : "");
    m_storing = nullptr;
}

void SqliteDialect::place(Writer &out, const engines::ValuePlace &place)
{
    if (place.column.empty())
        return;
    const sql::CatalogTable *table = place.source == 0 ? nullptr : out.source(place.source).table;
    const bool findable = table != nullptr && CatalogReader::details(*table).hasRowId && !table->primaryKey.empty();
    out << ", " << static_cast<int>(m_written.places.size());
    if (findable)
        out << ", " << engines::sourceName(place.source) << ".rowid";
    m_written.places.push_back({place.column, findable ? table : nullptr});
}

} // namespace vortaq::sqlite
