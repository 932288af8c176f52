// SPDX-License-Identifier: MIT
// Conditions bound; what is compared is brought to one kind.
#include "vortaq/sql/binder.h"

#include <array>
#include <utility>

namespace vortaq::sql {

namespace {

template <typename T> ConditionPtr make(T node)
{
    return std::make_unique<Condition>(Condition{std::move(node)});
}

} // namespace

ConditionPtr Binder::condition(const ast::Node &node, Scope &scope)
{
    if (const auto *parsed = std::get_if<ast::Compare>(&node.what))
        return compare(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::AndOr>(&node.what))
        return junction(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::IsNull>(&node.what))
        return make(NullTest{value(*parsed->operand, scope), parsed->negated});
    if (const auto *parsed = std::get_if<ast::BetweenAnd>(&node.what))
        return between(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::LikePattern>(&node.what))
        return like(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::InValues>(&node.what))
        return inValues(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::InRows>(&node.what))
        return inRows(*parsed, scope);
    return make(Negated{condition(*std::get<ast::Not>(node.what).operand, scope)});
}

ConditionPtr Binder::compare(const ast::Compare &parsed, Scope &scope)
{
    Comparison result{parsed.op, value(*parsed.left, scope), value(*parsed.right, scope)};
    const std::array<Placed, 2> sides{{{&result.left, parsed.left->at}, {&result.right, parsed.right->at}}};
    m_coercion.align(sides);
    return make(std::move(result));
}

ConditionPtr Binder::between(const ast::BetweenAnd &parsed, Scope &scope)
{
    Between result;
    result.operand = value(*parsed.operand, scope);
    result.low = value(*parsed.low, scope);
    result.high = value(*parsed.high, scope);
    result.negated = parsed.negated;
    const std::array<Placed, 3> sides{
        {{&result.operand, parsed.operand->at}, {&result.low, parsed.low->at}, {&result.high, parsed.high->at}}};
    m_coercion.align(sides);
    return make(std::move(result));
}

ConditionPtr Binder::like(const ast::LikePattern &parsed, Scope &scope)
{
    ExprPtr operand = textOperand(*parsed.operand, scope);
    return make(Like{std::move(operand), textOperand(*parsed.pattern, scope), parsed.negated});
}

ConditionPtr Binder::inValues(const ast::InValues &parsed, Scope &scope)
{
    InList result;
    result.negated = parsed.negated;
    result.operand = value(*parsed.operand, scope);
    result.values.resize(parsed.values.size());
    std::vector<Placed> compared{{&result.operand, parsed.operand->at}};
    for (std::size_t i = 0; i < parsed.values.size(); ++i) {
        result.values[i] = value(*parsed.values[i], scope);
        compared.push_back({&result.values[i], parsed.values[i]->at});
    }
    m_coercion.align(compared);
    return make(std::move(result));
}

ConditionPtr Binder::inRows(const ast::InRows &parsed, Scope &scope)
{
    ExprPtr operand = value(*parsed.operand, scope);
    Subquery rows = subquery(*parsed.query, parsed.query->at, scope);
    std::vector<Placed> compared{{&operand, parsed.operand->at}};
    for (Select &select : rows.query->selects)
        compared.push_back({&select.items.front().value, parsed.query->at});
    m_coercion.align(compared);
    rows.query->columns.front().type = m_coercion.common(std::span(compared).subspan(1));
    return make(InQuery{std::move(operand), std::move(rows), parsed.negated});
}

ConditionPtr Binder::junction(const ast::AndOr &parsed, Scope &scope)
{
    if (parsed.kind == Junction::Kind::Or) {
        if (ConditionPtr keys = keyList(parsed, scope))
            return keys;
    }
    Junction result{parsed.kind, {}};
    result.operands.reserve(parsed.operands.size());
    for (const ast::Node *operand : parsed.operands)
        result.operands.push_back(condition(*operand, scope));
    return make(std::move(result));
}

} // namespace vortaq::sql
