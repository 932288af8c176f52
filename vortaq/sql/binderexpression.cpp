// SPDX-License-Identifier: MIT
// Values bound and typed.
#include "vortaq/sql/binder.h"
#include "vortaq/sql/character.h"
#include "vortaq/sql/literal.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vortaq::sql {

namespace {

template <typename T> ExprPtr make(const Type &type, T node)
{
    return std::make_unique<Expr>(Expr{type, std::move(node)});
}

} // namespace

ExprPtr Binder::value(const ast::Node &node, Scope &scope)
{
    if (const auto *parsed = std::get_if<ast::ColumnName>(&node.what))
        return columnValue(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::StringText>(&node.what))
        return string(parsed->quoted);
    if (const auto *parsed = std::get_if<ast::NumberText>(&node.what))
        return number(parsed->digits, false, node.at);
    if (const auto *parsed = std::get_if<ast::Sum>(&node.what))
        return sum(*parsed, node.at, scope);
    if (const auto *parsed = std::get_if<ast::Minus>(&node.what))
        return minus(*parsed, node.at, scope);
    if (const auto *parsed = std::get_if<ast::FunctionCall>(&node.what))
        return call(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::ToVarchar>(&node.what))
        return toVarchar(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::CaseOf>(&node.what))
        return caseOf(*parsed, node.at, scope);
    if (const auto *parsed = std::get_if<ast::NestedQuery>(&node.what))
        return scalar(*parsed->query, node.at, scope);
    return make({}, Literal{{}, true});
}

ExprPtr Binder::number(std::string_view digits, bool negative, std::size_t at) const
{
    const std::string written = (negative ? "-" : "") + std::string(digits);
    const Type type = typeOfNumber(written);
    if (type.kind == Kind::Null)
        failAt(SqlError::Reason::Conversion, m_text, at, "数字" + quoted(digits) + "太长");
    return make(type, Literal{convertText(written, type, type, Mode::Checked).text, false});
}

ExprPtr Binder::string(std::string_view quoted)
{
    Literal literal{unquoted(quoted), false};
    const auto size = std::clamp<std::size_t>(characterCount(literal.text), 1, longestVarchar);
    return make(varcharType(static_cast<int>(size)), std::move(literal));
}

Resolved Binder::found(const ast::ColumnName &name, Scope &scope) const
{
    Resolved result;
    const NameProblem problem = resolve(scope, name.qualifier.text, name.name.text, result);
    if (problem == NameProblem::None)
        return result;
    const std::size_t at = name.qualifier.text.empty() ? name.name.at : name.qualifier.at;
    const std::string prefix = name.qualifier.text.empty() ? "" : std::string(name.qualifier.text) + ".";
    const std::string full = "列名" + quoted(prefix + std::string(name.name.text));
    refuse(at, full + (problem == NameProblem::Ambiguous ? "不明确" : "无效"));
}

ExprPtr Binder::columnValue(const ast::ColumnName &name, Scope &scope)
{
    const Resolved resolved = found(name, scope);
    Scope &owner = *resolved.owner;
    m_outermostLevel = std::min(m_outermostLevel, owner.level);
    if (owner.collectsBareColumns && !owner.insideAggregate)
        owner.bareColumns.push_back({resolved.source->number, resolved.column, name.name.at, name.name.text});
    return make(
        resolved.source->columnType(resolved.column),
        ColumnRef{resolved.source->number, resolved.column, std::string(resolved.source->columnName(resolved.column))});
}

ExprPtr Binder::sum(const ast::Sum &parsed, std::size_t at, Scope &scope)
{
    ExprPtr left = value(*parsed.left, scope);
    ExprPtr right = value(*parsed.right, scope);
    const std::array<Placed, 2> sides{{{&left, parsed.left->at}, {&right, parsed.right->at}}};
    const Kind kind = m_coercion.common(sides).kind;
    if (kind == Kind::Null)
        return m_coercion.convert(std::move(left), intType(), Mode::Checked, at); // null+null is the int null
    if (kind == Kind::Varchar && !parsed.subtract) {
        m_coercion.unify(sides);
        const int size = std::min(left->type.size + right->type.size, longestVarchar);
        return make(varcharType(size), Arithmetic{Arithmetic::Operator::Concat, std::move(left), std::move(right)});
    }
    if (!isNumber(kind))
        refuse(at, parsed.subtract ? "“-”两边必须是数字" : "“+”两边必须是数字或文字");
    m_coercion.align(sides);
    const Type type = sumType(left->type, right->type);
    const auto op = parsed.subtract ? Arithmetic::Operator::Subtract : Arithmetic::Operator::Add;
    return make(type, Arithmetic{op, std::move(left), std::move(right)});
}

ExprPtr Binder::minus(const ast::Minus &parsed, std::size_t at, Scope &scope)
{
    if (const auto *literal = std::get_if<ast::NumberText>(&parsed.operand->what))
        return number(literal->digits, true, at);
    ExprPtr operand = value(*parsed.operand, scope);
    if (!isNumber(operand->type.kind))
        refuse(at, "“-”后面必须是数字");
    const Type type = operand->type;
    return make(type, Negation{std::move(operand)});
}

ExprPtr Binder::toVarchar(const ast::ToVarchar &parsed, Scope &scope)
{
    ExprPtr operand = value(*parsed.operand, scope);
    const Type type = varcharType(parsed.size);
    const bool dated = isDate(operand->type.kind);
    if (!dated)
        operand = m_coercion.convert(std::move(operand), type, Mode::Cut, parsed.operand->at);
    if (dated)
        operand = make(type, Conversion{std::move(operand), Mode::Cut, parsed.iso});
    operand->type = type;
    return operand;
}

ExprPtr Binder::caseOf(const ast::CaseOf &parsed, std::size_t at, Scope &scope)
{
    Case result;
    caseConditions(parsed, result, scope);
    std::vector<Placed> results;
    for (std::size_t i = 0; i < parsed.branches.size(); ++i) {
        result.branches[i].result = value(*parsed.branches[i].then, scope);
        results.push_back({&result.branches[i].result, parsed.branches[i].then->at});
    }
    if (parsed.otherwise) {
        result.otherwise = value(*parsed.otherwise, scope);
        results.push_back({&result.otherwise, parsed.otherwise->at});
    }
    const Type type = m_coercion.unify(results);
    if (type.kind == Kind::Null)
        refuse(at, "case的结果不能全是null");
    return make(type, std::move(result));
}

void Binder::caseConditions(const ast::CaseOf &parsed, Case &result, Scope &scope)
{
    result.branches.resize(parsed.branches.size());
    if (!parsed.operand) {
        for (std::size_t i = 0; i < parsed.branches.size(); ++i)
            result.branches[i].condition = condition(*parsed.branches[i].when, scope);
        return;
    }
    result.operand = value(*parsed.operand, scope);
    std::vector<Placed> compared{{&result.operand, parsed.operand->at}};
    for (std::size_t i = 0; i < parsed.branches.size(); ++i) {
        result.branches[i].value = value(*parsed.branches[i].when, scope);
        compared.push_back({&result.branches[i].value, parsed.branches[i].when->at});
    }
    m_coercion.align(compared);
}

ExprPtr Binder::scalar(const ast::Query &parsed, std::size_t at, Scope &scope)
{
    Subquery bound = subquery(parsed, at, scope);
    const Type type = bound.query->columns.front().type;
    return make(type, std::move(bound));
}

Subquery Binder::subquery(const ast::Query &parsed, std::size_t at, Scope &scope)
{
    const int around = std::exchange(m_outermostLevel, INT_MAX);
    Subquery result(std::make_unique<Query>(query(parsed, &scope)));
    result.correlated = m_outermostLevel <= scope.level;
    m_outermostLevel = std::min(around, m_outermostLevel);
    if (result.query->columns.size() != 1)
        refuse(at, "子查询只能有一列");
    return result;
}

} // namespace vortaq::sql
