// SPDX-License-Identifier: MIT
// Junctions, comparisons and the other tests.
#include "vortaq/sql/ConditionBinder.h"

#include "vortaq/sql/KeyListBinder.h"
#include "vortaq/sql/QueryBinder.h"
#include "vortaq/sql/ValueBinder.h"

#include <array>
#include <utility>

namespace vortaq::sql {

namespace {

template <typename T> ConditionPtr make(T node)
{
    return std::make_unique<Condition>(Condition{std::move(node)});
}

} // namespace

ConditionPtr ConditionBinder::condition(const ast::Node &node, Scope &scope)
{
    if (const auto *parsed = std::get_if<ast::Compare>(&node.what))
        return compare(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::AndOr>(&node.what))
        return junction(*parsed, scope);
    if (const auto *parsed = std::get_if<ast::IsNull>(&node.what))
        return make(NullTest{m_binding.values.value(*parsed->operand, scope), parsed->negated});
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

ConditionPtr ConditionBinder::compare(const ast::Compare &parsed, Scope &scope)
{
    Comparison result{parsed.op, m_binding.values.value(*parsed.left, scope),
                      m_binding.values.value(*parsed.right, scope)};
    const std::array<Placed, 2> sides{{{&result.left, parsed.left->at}, {&result.right, parsed.right->at}}};
    m_binding.coercion.align(sides);
    return make(std::move(result));
}

ConditionPtr ConditionBinder::between(const ast::BetweenAnd &parsed, Scope &scope)
{
    Between result;
    result.operand = m_binding.values.value(*parsed.operand, scope);
    result.low = m_binding.values.value(*parsed.low, scope);
    result.high = m_binding.values.value(*parsed.high, scope);
    result.negated = parsed.negated;
    const std::array<Placed, 3> sides{
        {{&result.operand, parsed.operand->at}, {&result.low, parsed.low->at}, {&result.high, parsed.high->at}}};
    m_binding.coercion.align(sides);
    return make(std::move(result));
}

ConditionPtr ConditionBinder::like(const ast::LikePattern &parsed, Scope &scope)
{
    ExprPtr operand = m_binding.values.text(*parsed.operand, scope);
    return make(Like{std::move(operand), m_binding.values.text(*parsed.pattern, scope), parsed.negated});
}

ConditionPtr ConditionBinder::inValues(const ast::InValues &parsed, Scope &scope)
{
    InList result;
    result.negated = parsed.negated;
    result.operand = m_binding.values.value(*parsed.operand, scope);
    result.values.resize(parsed.values.size());
    std::vector<Placed> compared{{&result.operand, parsed.operand->at}};
    for (std::size_t i = 0; i < parsed.values.size(); ++i) {
        result.values[i] = m_binding.values.value(*parsed.values[i], scope);
        compared.push_back({&result.values[i], parsed.values[i]->at});
    }
    m_binding.coercion.align(compared);
    return make(std::move(result));
}

ConditionPtr ConditionBinder::inRows(const ast::InRows &parsed, Scope &scope)
{
    ExprPtr operand = m_binding.values.value(*parsed.operand, scope);
    Subquery rows = m_binding.queries.subquery(*parsed.query, parsed.query->at, scope);
    std::vector<Placed> compared{{&operand, parsed.operand->at}};
    for (Select &select : rows.query->selects)
        compared.push_back({&select.items.front().value, parsed.query->at});
    m_binding.coercion.align(compared);
    rows.query->columns.front().type = m_binding.coercion.common(std::span(compared).subspan(1));
    return make(InQuery{std::move(operand), std::move(rows), parsed.negated});
}

ConditionPtr ConditionBinder::junction(const ast::AndOr &parsed, Scope &scope)
{
    if (parsed.kind == Junction::Kind::Or) {
        if (ConditionPtr keys = KeyListBinder(m_binding, scope).keyList(parsed))
            return keys;
    }
    Junction result{parsed.kind, {}};
    result.operands.reserve(parsed.operands.size());
    for (const ast::Node *operand : parsed.operands)
        result.operands.push_back(condition(*operand, scope));
    return make(std::move(result));
}

} // namespace vortaq::sql
