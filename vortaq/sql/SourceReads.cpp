// SPDX-License-Identifier: MIT
#include "vortaq/sql/SourceReads.h"

namespace vortaq::sql {

void SourceReads::add(const Expr *value)
{
    if (value != nullptr)
        std::visit([this](const auto &node) { read(node); }, value->node);
}

void SourceReads::add(const Condition *condition)
{
    if (condition != nullptr)
        std::visit([this](const auto &node) { read(node); }, condition->node);
}

void SourceReads::add(const Query &query)
{
    for (const Select &select : query.selects) {
        for (const SelectItem &item : select.items)
            add(item.value);
        for (const Source &source : select.from) {
            add(source.on);
            if (source.derived)
                add(*source.derived);
        }
        add(select.where);
        add(select.groupBy);
    }
    for (const OrderTerm &term : query.orderBy)
        add(term.value);
}

template <typename Pointer> void SourceReads::add(const std::vector<Pointer> &operands)
{
    for (const Pointer &operand : operands)
        add(operand);
}

void SourceReads::add(const Subquery &subquery)
{
    const bool aggregates = m_aggregates;
    add(*subquery.query);
    m_aggregates = aggregates; // those inside are the sub-query's own
}

void SourceReads::read(const Arithmetic &arithmetic)
{
    add(arithmetic.left);
    add(arithmetic.right);
}

void SourceReads::read(const Aggregate &aggregate)
{
    m_aggregates = true;
    add(aggregate.operand);
}

void SourceReads::read(const Case &choice)
{
    add(choice.operand);
    for (const Case::Branch &branch : choice.branches) {
        add(branch.value);
        add(branch.condition);
        add(branch.result);
    }
    add(choice.otherwise);
}

void SourceReads::read(const Comparison &comparison)
{
    add(comparison.left);
    add(comparison.right);
}

void SourceReads::read(const Between &between)
{
    add(between.operand);
    add(between.low);
    add(between.high);
}

void SourceReads::read(const Like &like)
{
    add(like.operand);
    add(like.pattern);
}

void SourceReads::read(const InList &list)
{
    add(list.operand);
    add(list.values);
}

void SourceReads::read(const InQuery &query)
{
    add(query.operand);
    add(query.subquery);
}

} // namespace vortaq::sql
