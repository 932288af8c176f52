// SPDX-License-Identifier: MIT
// Values.
#include "vortaq/sqlite/statementwriter.h"

#include "vortaq/SqlError.h"
#include "vortaq/sqlite/CatalogReader.h"
#include "vortaq/sqlite/conversion.h"

#include <algorithm>
#include <string_view>

namespace vortaq::sqlite {

namespace {

using sql::Kind;

constexpr int digitsOfInt = 10;
constexpr int intLength = static_cast<int>(std::string_view("-2147483648").size());
constexpr int dateLength = static_cast<int>(std::string_view("2024-01-31").size());
constexpr int secondLength = static_cast<int>(std::string_view("2024-01-31 08:00:00").size());

} // namespace

void StatementWriter::value(const sql::Expr &expression)
{
    std::visit([&](const auto &node) { value(node, expression.type); }, expression.node);
}

void StatementWriter::text(const std::string &text)
{
    if (text.find('\0') != std::string::npos)
        throw SqlError(SqlError::Reason::Conversion, "文本中含有不能使用的字符（0）。");
    m_text += '\'';
    for (const char c : text) {
        if (c == '\'')
            m_text += c;
        m_text += c;
    }
    m_text += '\'';
}

void StatementWriter::value(const sql::Literal &literal, const sql::Type &type)
{
    if (literal.isNull)
        m_text += "NULL";
    else if (!sql::isNumber(type.kind))
        text(literal.text);
    else
        m_text += literal.text.front() == '-' ? "(" + literal.text + ")" : literal.text;
}

void StatementWriter::value(const sql::ColumnRef &column, const sql::Type &)
{
    const sql::Source &source = *m_sources[static_cast<std::size_t>(column.source)];
    m_text += sourceName(column.source) + "."
        + (source.table != nullptr ? quotedName(source.table->columns[column.column].name)
                                   : "c" + std::to_string(column.column));
}

void StatementWriter::value(const sql::Conversion &conversion, const sql::Type &type)
{
    if (convertPlainly(conversion, type))
        return;
    m_text += "ts_convert(";
    value(*conversion.operand);
    m_text += ", '" + sql::typeName(conversion.operand->type) + "', '" + sql::typeName(type) + "', '"
        + conversionModeName(conversion.mode) + "')";
}

/// The moment's text: without milliseconds, or in full with a T.
void StatementWriter::moment(const sql::Expr &operand, bool iso, int size)
{
    m_text += iso ? "substr(replace(" : "substr(";
    value(operand);
    m_text += iso ? ", ' ', 'T')" : "";
    m_text += ", 1, " + std::to_string(iso ? size : std::min(size, secondLength)) + ")";
}

/// Conversions that SQLite does itself, and fast: they stand in the lists of thousands of records.
bool StatementWriter::convertPlainly(const sql::Conversion &conversion, const sql::Type &type)
{
    const sql::Expr &operand = *conversion.operand;
    const sql::Type &from = operand.type;
    const bool cut = conversion.mode == sql::Conversion::Mode::Cut;
    const auto call = [&](const char *before, const std::string &behind) {
        m_text += before;
        value(operand);
        m_text += behind;
        return true;
    };
    const auto firstCharacters = [&](int count) { return call("substr(", ", 1, " + std::to_string(count) + ")"); };
    if (from.kind == Kind::Int && type.kind == Kind::Varchar && type.size >= intLength)
        return call("cast(", " AS TEXT)");
    if (from.kind == Kind::Date && type.kind == Kind::Varchar && type.size >= dateLength)
        return call("", "");
    if (from.kind == Kind::DateTime && type.kind == Kind::Varchar && cut) {
        moment(operand, conversion.iso, type.size);
        return true;
    }
    if ((from.kind == Kind::Varchar || from.kind == Kind::Date) && type.kind == Kind::Varchar && cut)
        return firstCharacters(type.size);
    if (from.kind == Kind::DateTime && type.kind == Kind::Date)
        return firstCharacters(dateLength);
    if (from.kind == Kind::Date && type.kind == Kind::DateTime)
        return call("(", " || ' 00:00:00')");
    if ((from.kind == Kind::Int || from.kind == Kind::Decimal) && type.kind == Kind::Float)
        return call("cast(", " AS REAL)");
    const int whole = from.kind == Kind::Int ? digitsOfInt : from.size - from.scale;
    const bool widened = type.kind == Kind::Decimal && type.scale >= from.scale && type.size - type.scale >= whole;
    return (from.kind == Kind::Int || from.kind == Kind::Decimal) && widened && call("", "");
}

void StatementWriter::value(const sql::Arithmetic &arithmetic, const sql::Type &type)
{
    using Operator = sql::Arithmetic::Operator;
    // Sums of binary numbers are brought back to the decimal number they stand for.
    m_text += type.kind == Kind::Decimal ? "round(" : type.kind == Kind::Int ? "ts_int(" : "(";
    value(*arithmetic.left);
    m_text += arithmetic.op == Operator::Concat ? " || " : arithmetic.op == Operator::Add ? " + " : " - ";
    value(*arithmetic.right);
    m_text += type.kind == Kind::Decimal ? ", " + std::to_string(type.scale) + ")" : ")";
}

void StatementWriter::value(const sql::Negation &negation, const sql::Type &)
{
    m_text += "(- ";
    value(*negation.operand);
    m_text += ')';
}

void StatementWriter::value(const sql::Call &call, const sql::Type &)
{
    switch (call.function) {
    case sql::Call::Function::GetDate:
        m_readsClock = true;
        m_text += "?1";
        return;
    case sql::Call::Function::IsNull:
        m_text += "ifnull(";
        value(*call.arguments[0]);
        m_text += ", ";
        value(*call.arguments[1]);
        break;
    case sql::Call::Function::Len:
        m_text += "length(rtrim(";
        value(*call.arguments[0]);
        m_text += ')';
        break;
    case sql::Call::Function::Str:
        m_text += "ts_str(";
        value(*call.arguments[0]);
        m_text += ", " + std::to_string(call.width) + ", " + std::to_string(call.decimals) + ", "
            + std::to_string(call.arguments[0]->type.kind == Kind::Float ? call.decimals
                                                                         : call.arguments[0]->type.scale);
        break;
    }
    m_text += ')';
}

void StatementWriter::value(const sql::Aggregate &aggregate, const sql::Type &)
{
    const sql::Expr &operand = *aggregate.operand;
    if (aggregate.function == sql::Aggregate::Function::Max) {
        m_text += "max(";
        compared(operand);
        m_text += ')';
        return;
    }
    const bool isInt = operand.type.kind == Kind::Int;
    m_text += operand.type.kind == Kind::Float ? "sum(" : isInt ? "ts_int(ts_sum(" : "ts_sum(";
    value(operand);
    if (operand.type.kind != Kind::Float)
        m_text += ", " + std::to_string(operand.type.scale);
    m_text += isInt ? "))" : ")";
}

void StatementWriter::value(const sql::Case &choice, const sql::Type &)
{
    m_text += "CASE";
    if (choice.operand) {
        m_text += ' ';
        compared(*choice.operand);
    }
    for (const sql::Case::Branch &branch : choice.branches) {
        m_text += " WHEN ";
        if (branch.value)
            value(*branch.value);
        else
            condition(*branch.condition);
        m_text += " THEN ";
        value(*branch.result);
    }
    if (choice.otherwise) {
        m_text += " ELSE ";
        value(*choice.otherwise);
    }
    m_text += " END";
}

void StatementWriter::value(const sql::Subquery &subquery, const sql::Type &)
{
    const sql::Query &inner = *subquery.query;
    const bool oneRow = inner.selects.size() == 1 && inner.selects.front().aggregated;
    // SQLite would take the first of several rows in silence.
    m_text += oneRow ? "(" : "(SELECT ts_single(c0) FROM (";
    query(inner);
    m_text += oneRow ? ")" : "))";
}

bool StatementWriter::comparesByItself(const sql::Expr &expression) const
{
    if (expression.type.kind != Kind::Varchar)
        return true;
    const auto *column = std::get_if<sql::ColumnRef>(&expression.node);
    if (column == nullptr)
        return false;
    const sql::CatalogTable *table = m_sources[static_cast<std::size_t>(column->source)]->table;
    return table != nullptr && CatalogReader::details(*table).noCase[column->column];
}

void StatementWriter::compared(const sql::Expr &expression)
{
    value(expression);
    if (!comparesByItself(expression))
        m_text += " COLLATE NOCASE";
}

} // namespace vortaq::sqlite
