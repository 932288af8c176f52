// SPDX-License-Identifier: MIT
// Columns, literals, sums, conversions, cases.
#include "vortaq/sql/ValueBinder.h"

#include "vortaq/sql/ConditionBinder.h"
#include "vortaq/sql/FunctionBinder.h"
#include "vortaq/sql/QueryBinder.h"
#include "vortaq/sql/character.h"
#include "vortaq/sql/diagnostic.h"
#include "vortaq/sql/literal.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vortaq::sql {

namespace {

constexpr int longestIntText = 12;

using Mode = Conversion::Mode;

template <typename T> ExprPtr make(const Type &type, T node)
{
    return std::make_unique<Expr>(Expr{type, std::move(node)});
}

/// How long the text of a value can become.
int textSize(const Type &type)
{
    switch (type.kind) {
    case Kind::Varchar:
        return type.size;
    case Kind::Int:
        return longestIntText;
    default:
        return mostDigits + 3; // sign, zero and point
    }
}

} // namespace

ExprPtr ValueBinder::value(const ast::Node &node, Scope &scope)
{
    if (const auto *parsed = std::get_if<ast::ColumnName>(&node.what))
        return column(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::StringText>(&node.what))
        return string(parsed->quoted);
    if (const auto *parsed = std::get_if<ast::NumberText>(&node.what))
        return number(parsed->digits, false, node.at);
    if (const auto *parsed = std::get_if<ast::Sum>(&node.what))
        return sum(*parsed, node.at, scope);
    if (const auto *parsed = std::get_if<ast::Minus>(&node.what))
        return minus(*parsed, node.at, scope);
    if (const auto *parsed = std::get_if<ast::FunctionCall>(&node.what))
        return FunctionBinder(m_binding, scope).call(*parsed);
    if (const auto *parsed = std::get_if<ast::ToVarchar>(&node.what))
        return toVarchar(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::CaseOf>(&node.what))
        return caseOf(*parsed, node.at, scope);
    if (const auto *parsed = std::get_if<ast::NestedQuery>(&node.what))
        return scalar(*parsed->query, node.at, scope);
    return make({}, Literal{{}, true});
}

ExprPtr ValueBinder::number(std::string_view digits, bool negative, std::size_t at) const
{
    const std::string written = (negative ? "-" : "") + std::string(digits);
    const Type type = typeOfNumber(written);
    if (type.kind == Kind::Null)
        failAt(SqlError::Reason::Conversion, m_binding.text, at, "数字" + quoted(digits) + "太长");
    return make(type, Literal{convertText(written, type, type, Mode::Checked).text, false});
}

ExprPtr ValueBinder::string(std::string_view quoted)
{
    Literal literal{unquoted(quoted), false};
    const auto size = std::clamp<std::size_t>(characterCount(literal.text), 1, longestVarchar);
    return make(varcharType(static_cast<int>(size)), std::move(literal));
}

ExprPtr ValueBinder::column(const ast::ColumnName &name, Scope &scope)
{
    const Resolved resolved = m_binding.found(name, scope);
    Scope &owner = *resolved.owner;
    m_binding.outermostLevel = std::min(m_binding.outermostLevel, owner.level);
    if (owner.collectsBareColumns && !owner.insideAggregate)
        owner.bareColumns.push_back({resolved.source->number, resolved.column, name.name.at, name.name.text});
    return make(
        resolved.source->columnType(resolved.column),
        ColumnRef{resolved.source->number, resolved.column, std::string(resolved.source->columnName(resolved.column))});
}

ExprPtr ValueBinder::text(const ast::Node &node, Scope &scope)
{
    ExprPtr operand = value(node, scope);
    const Type text = varcharType(textSize(operand->type));
    return m_binding.coercion.convert(std::move(operand), text, Mode::Checked, node.at);
}

ExprPtr ValueBinder::sum(const ast::Sum &parsed, std::size_t at, Scope &scope)
{
    ExprPtr left = value(*parsed.left, scope);
    ExprPtr right = value(*parsed.right, scope);
    const std::array<Placed, 2> sides{{{&left, parsed.left->at}, {&right, parsed.right->at}}};
    const Kind kind = m_binding.coercion.common(sides).kind;
    if (kind == Kind::Null)
        return m_binding.coercion.convert(std::move(left), intType(), Mode::Checked, at); // null+null is the int null
    if (kind == Kind::Varchar && !parsed.subtract) {
        m_binding.coercion.unify(sides);
        const int size = std::min(left->type.size + right->type.size, longestVarchar);
        return make(varcharType(size), Arithmetic{Arithmetic::Operator::Concat, std::move(left), std::move(right)});
    }
    if (!isNumber(kind))
        m_binding.refuse(at, parsed.subtract ? "“-”两边必须是数字" : "“+”两边必须是数字或文字");
    m_binding.coercion.align(sides);
    const Type type = sumType(left->type, right->type);
    const auto op = parsed.subtract ? Arithmetic::Operator::Subtract : Arithmetic::Operator::Add;
    return make(type, Arithmetic{op, std::move(left), std::move(right)});
}

ExprPtr ValueBinder::minus(const ast::Minus &parsed, std::size_t at, Scope &scope)
{
    if (const auto *literal = std::get_if<ast::NumberText>(&parsed.operand->what))
        return number(literal->digits, true, at);
    ExprPtr operand = value(*parsed.operand, scope);
    if (!isNumber(operand->type.kind))
        m_binding.refuse(at, "“-”后面必须是数字");
    const Type type = operand->type;
    return make(type, Negation{std::move(operand)});
}

ExprPtr ValueBinder::toVarchar(const ast::ToVarchar &parsed, Scope &scope)
{
    ExprPtr operand = value(*parsed.operand, scope);
    const Type type = varcharType(parsed.size);
    const bool dated = isDate(operand->type.kind);
    if (!dated)
        operand = m_binding.coercion.convert(std::move(operand), type, Mode::Cut, parsed.operand->at);
    if (dated)
        operand = make(type, Conversion{std::move(operand), Mode::Cut, parsed.iso});
    operand->type = type;
    return operand;
}

ExprPtr ValueBinder::caseOf(const ast::CaseOf &parsed, std::size_t at, Scope &scope)
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
    const Type type = m_binding.coercion.unify(results);
    if (type.kind == Kind::Null)
        m_binding.refuse(at, "case的结果不能全是null");
    return make(type, std::move(result));
}

void ValueBinder::caseConditions(const ast::CaseOf &parsed, Case &result, Scope &scope)
{
    result.branches.resize(parsed.branches.size());
    if (!parsed.operand) {
        for (std::size_t i = 0; i < parsed.branches.size(); ++i)
            result.branches[i].condition = m_binding.conditions.condition(*parsed.branches[i].when, scope);
        return;
    }
    result.operand = value(*parsed.operand, scope);
    std::vector<Placed> compared{{&result.operand, parsed.operand->at}};
    for (std::size_t i = 0; i < parsed.branches.size(); ++i) {
        result.branches[i].value = value(*parsed.branches[i].when, scope);
        compared.push_back({&result.branches[i].value, parsed.branches[i].when->at});
    }
    m_binding.coercion.align(compared);
}

ExprPtr ValueBinder::scalar(const ast::Query &parsed, std::size_t at, Scope &scope)
{
    Subquery bound = m_binding.queries.subquery(parsed, at, scope);
    const Type type = bound.query->columns.front().type;
    return make(type, std::move(bound));
}

} // namespace vortaq::sql
