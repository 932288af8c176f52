// SPDX-License-Identifier: MIT
// Writes every member of the tree.
#include "tests/vortaq/sql/dump.h"

#include <array>

namespace vortaq::sql::test {

namespace {

class Dumper {
public:
    std::string text(const Query &query);
    std::string text(const Insert &insert);
    std::string text(const Update &update);
    std::string text(const Delete &deletion);

private:
    std::string line(const std::string &content) const { return std::string(m_indent, ' ') + content + "\n"; }
    std::string nested(const Query &query);
    std::string text(const Select &select);
    std::string text(const Source &source);
    std::string text(const Expr &expr);
    std::string text(const Condition &condition);
    std::string list(const std::vector<ExprPtr> &values);

    std::string text(const Literal &literal, const Type &type);
    std::string text(const ColumnRef &column, const Type &type);
    std::string text(const Conversion &conversion, const Type &type);
    std::string text(const Arithmetic &arithmetic, const Type &type);
    std::string text(const Negation &negation, const Type &type);
    std::string text(const Call &call, const Type &type);
    std::string text(const Aggregate &aggregate, const Type &type);
    std::string text(const Case &cases, const Type &type);
    std::string text(const Subquery &subquery, const Type &type);

    std::string text(const Comparison &comparison);
    std::string text(const NullTest &test);
    std::string text(const Between &between);
    std::string text(const Like &like);
    std::string text(const InList &in);
    std::string text(const InQuery &in);
    std::string text(const Exists &exists);
    std::string text(const Negated &negated);
    std::string text(const Junction &junction);
    std::string text(const KeyList &keys);

    std::size_t m_indent = 0;
};

std::string negation(bool negated)
{
    return negated ? "not " : "";
}

std::string Dumper::nested(const Query &query)
{
    m_indent += 2;
    std::string inside = text(query);
    m_indent -= 2;
    return "{\n" + inside + std::string(m_indent, ' ') + "}";
}

std::string Dumper::text(const Query &query)
{
    std::string result;
    for (const Select &select : query.selects)
        result += text(select);
    for (const OutputColumn &column : query.columns)
        result += line("column " + column.name + " " + typeName(column.type));
    for (const OrderTerm &term : query.orderBy) {
        const std::string what = term.output ? "output " + std::to_string(*term.output) : text(*term.value);
        result += line("order by " + what + (term.descending ? " desc" : ""));
    }
    return result;
}

std::string Dumper::text(const Select &select)
{
    std::string result = line(select.aggregated ? "select aggregated" : "select");
    m_indent += 2;
    for (const SelectItem &item : select.items)
        result += line(text(*item.value) + " : " + typeName(item.value->type));
    m_indent -= 2;
    for (const Source &source : select.from)
        result += line((source.join == Source::Join::Left ? "left join " : "from ") + text(source));
    if (select.where)
        result += line("where " + text(*select.where));
    if (!select.groupBy.empty())
        result += line("group by " + list(select.groupBy));
    return result;
}

std::string Dumper::text(const Source &source)
{
    std::string result = std::to_string(source.number) + " " + source.name + " = ";
    result += source.table ? source.table->name : nested(*source.derived);
    if (source.on)
        result += " on " + text(*source.on);
    return result;
}

std::string Dumper::text(const Insert &insert)
{
    std::string result = line("insert " + insert.table->name);
    for (const std::size_t column : insert.columns)
        result += line("into " + insert.table->columns[column].name);
    return result + text(insert.rows);
}

std::string Dumper::text(const Update &update)
{
    std::string result = line("update " + text(update.target));
    for (const Update::Assignment &assignment : update.assignments) {
        result += line("set " + update.target.table->columns[assignment.column].name + " = " + text(*assignment.value));
    }
    for (const Source &source : update.from)
        result += line("from " + text(source));
    return update.where ? result + line("where " + text(*update.where)) : result;
}

std::string Dumper::text(const Delete &deletion)
{
    const std::string result = line("delete " + text(deletion.target));
    return deletion.where ? result + line("where " + text(*deletion.where)) : result;
}

std::string Dumper::text(const Expr &expr)
{
    return std::visit([&](const auto &node) { return text(node, expr.type); }, expr.node);
}

std::string Dumper::list(const std::vector<ExprPtr> &values)
{
    std::string result;
    for (const ExprPtr &value : values)
        result += (result.empty() ? "" : ", ") + text(*value);
    return result;
}

std::string Dumper::text(const Literal &literal, const Type &type)
{
    if (literal.isNull)
        return "null:" + typeName(type);
    if (type.kind == Kind::Varchar)
        return "'" + literal.text + "'";
    return literal.text + ":" + typeName(type);
}

std::string Dumper::text(const ColumnRef &column, const Type &)
{
    return std::to_string(column.source) + "." + column.name;
}

std::string Dumper::text(const Conversion &conversion, const Type &type)
{
    constexpr std::array<std::string_view, 3> modes{"to", "cut", "store"};
    const std::string mode(modes.at(static_cast<std::size_t>(conversion.mode)));
    return mode + (conversion.iso ? "-iso " : " ") + typeName(type) + "(" + text(*conversion.operand) + ")";
}

std::string Dumper::text(const Arithmetic &arithmetic, const Type &)
{
    constexpr std::array<std::string_view, 3> names{"add", "subtract", "concat"};
    return std::string(names.at(static_cast<std::size_t>(arithmetic.op))) + "(" + text(*arithmetic.left) + ", "
        + text(*arithmetic.right) + ")";
}

std::string Dumper::text(const Negation &negation, const Type &)
{
    return "minus(" + text(*negation.operand) + ")";
}

std::string Dumper::text(const Call &call, const Type &)
{
    constexpr std::array<std::string_view, 4> names{"isnull", "len", "str", "getdate"};
    std::string result(names.at(static_cast<std::size_t>(call.function)));
    if (call.function == Call::Function::Str)
        result += "[" + std::to_string(call.width) + "," + std::to_string(call.decimals) + "]";
    return result + "(" + list(call.arguments) + ")";
}

std::string Dumper::text(const Aggregate &aggregate, const Type &)
{
    return (aggregate.function == Aggregate::Function::Max ? "max(" : "sum(") + text(*aggregate.operand) + ")";
}

std::string Dumper::text(const Case &cases, const Type &)
{
    std::string result = "case";
    if (cases.operand)
        result += " " + text(*cases.operand);
    for (const Case::Branch &branch : cases.branches) {
        result += " when " + (branch.value ? text(*branch.value) : text(*branch.condition));
        result += " then " + text(*branch.result);
    }
    if (cases.otherwise)
        result += " else " + text(*cases.otherwise);
    return result + " end";
}

std::string Dumper::text(const Subquery &subquery, const Type &)
{
    return (subquery.correlated ? "correlated " : "") + nested(*subquery.query);
}

std::string Dumper::text(const Condition &condition)
{
    return std::visit([&](const auto &node) { return text(node); }, condition.node);
}

std::string Dumper::text(const Comparison &comparison)
{
    constexpr std::array<std::string_view, 6> operators{"=", "<>", "<", "<=", ">", ">="};
    const std::string op(operators.at(static_cast<std::size_t>(comparison.op)));
    return text(*comparison.left) + " " + op + " " + text(*comparison.right);
}

std::string Dumper::text(const NullTest &test)
{
    return text(*test.operand) + " is " + negation(test.negated) + "null";
}

std::string Dumper::text(const Between &between)
{
    return text(*between.operand) + " " + negation(between.negated) + "between " + text(*between.low) + " and "
        + text(*between.high);
}

std::string Dumper::text(const Like &like)
{
    return text(*like.operand) + " " + negation(like.negated) + "like " + text(*like.pattern);
}

std::string Dumper::text(const InList &in)
{
    return text(*in.operand) + " " + negation(in.negated) + "in [" + list(in.values) + "]";
}

std::string Dumper::text(const InQuery &in)
{
    return text(*in.operand) + " " + negation(in.negated) + "in " + text(in.subquery, {});
}

std::string Dumper::text(const Exists &exists)
{
    return "exists " + text(exists.subquery, {});
}

std::string Dumper::text(const Negated &negated)
{
    return "not(" + text(*negated.operand) + ")";
}

std::string Dumper::text(const Junction &junction)
{
    std::string result = junction.kind == Junction::Kind::And ? "and(" : "or(";
    for (std::size_t i = 0; i < junction.operands.size(); ++i)
        result += (i == 0 ? "" : "; ") + text(*junction.operands[i]);
    return result + ")";
}

std::string Dumper::text(const KeyList &keys)
{
    std::string result = "keys(";
    for (std::size_t i = 0; i < keys.columns.size(); ++i)
        result += (i == 0 ? "" : ", ") + text(keys.columns[i], {}) + " " + typeName(keys.types[i]);
    for (std::size_t i = 0; i < keys.values.size(); ++i)
        result += (i % keys.columns.size() == 0 ? "; " : ", ") + keys.values[i];
    return result + ")";
}

} // namespace

std::string dump(const Statement &statement)
{
    return std::visit([](const auto &node) { return Dumper().text(node); }, statement.node);
}

} // namespace vortaq::sql::test
