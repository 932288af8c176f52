// SPDX-License-Identifier: MIT
#include "vortaq/sql/semijoin.h"

#include "vortaq/sql/SourceReads.h"

#include <algorithm>
#include <iterator>

namespace vortaq::sql {

namespace {

/// The source whose rows are the groups; null when they are not.
const Source *groupedSource(const Select &select, const std::vector<OrderTerm> &orderBy)
{
    SourceReads reads;
    for (const SelectItem &item : select.items)
        reads.add(item.value.get());
    for (const ExprPtr &column : select.groupBy)
        reads.add(column.get());
    for (const OrderTerm &term : orderBy)
        reads.add(term.value.get());
    std::vector<const Source *> kept;
    for (const Source &source : select.from) {
        if (source.table == nullptr || source.join != Source::Join::Comma)
            return nullptr;
        if (reads.sources().contains(source.number))
            kept.push_back(&source);
    }
    return kept.size() == 1 && !reads.aggregates() ? kept.front() : nullptr;
}

bool groupsByKey(const Select &select, const CatalogTable &table)
{
    const auto grouped = [&select](std::size_t keyColumn) {
        return std::any_of(select.groupBy.begin(), select.groupBy.end(), [keyColumn](const ExprPtr &column) {
            return std::get<ColumnRef>(column->node).column == keyColumn;
        });
    };
    return !table.primaryKey.empty() && std::all_of(table.primaryKey.begin(), table.primaryKey.end(), grouped);
}

std::vector<ConditionPtr> conjuncts(ConditionPtr where)
{
    std::vector<ConditionPtr> result;
    if (!where)
        return result;
    auto *junction = std::get_if<Junction>(&where->node);
    if (junction != nullptr && junction->kind == Junction::Kind::And)
        return std::move(junction->operands);
    result.push_back(std::move(where));
    return result;
}

ConditionPtr conjunction(std::vector<ConditionPtr> operands)
{
    if (operands.empty())
        return nullptr;
    if (operands.size() == 1)
        return std::move(operands.front());
    return std::make_unique<Condition>(Condition{Junction{Junction::Kind::And, std::move(operands)}});
}

/// A row for every match of `from` and `where`.
ConditionPtr exists(std::vector<Source> from, ConditionPtr where)
{
    Select select;
    select.items.push_back({{}, std::make_unique<Expr>(Expr{intType(), Literal{"1"}})});
    select.from = std::move(from);
    select.where = std::move(where);
    auto query = std::make_unique<Query>();
    query->selects.push_back(std::move(select));
    query->columns.push_back({{}, intType()});
    Subquery subquery(std::move(query));
    subquery.correlated = true;
    return std::make_unique<Condition>(Condition{Exists{std::move(subquery)}});
}

void reduce(Select &select, const std::vector<OrderTerm> &orderBy)
{
    const Source *grouped = select.groupBy.empty() ? nullptr : groupedSource(select, orderBy);
    if (grouped == nullptr || !groupsByKey(select, *grouped->table))
        return;
    select.groupBy.clear();
    const int kept = grouped->number;
    const auto matches = std::stable_partition(select.from.begin(), select.from.end(),
                                               [kept](const Source &source) { return source.number == kept; });
    std::vector<Source> matched(std::make_move_iterator(matches), std::make_move_iterator(select.from.end()));
    select.from.erase(matches, select.from.end());
    if (matched.empty())
        return;
    std::vector<ConditionPtr> outside;
    std::vector<ConditionPtr> inside;
    for (ConditionPtr &condition : conjuncts(std::move(select.where))) {
        SourceReads reads;
        reads.add(condition.get());
        const bool readsMatch = std::any_of(matched.begin(), matched.end(), [&reads](const Source &source) {
            return reads.sources().contains(source.number);
        });
        (readsMatch ? inside : outside).push_back(std::move(condition));
    }
    outside.push_back(exists(std::move(matched), conjunction(std::move(inside))));
    select.where = conjunction(std::move(outside));
}

void reduce(Query &query)
{
    for (Select &select : query.selects) {
        for (Source &source : select.from) {
            if (source.derived)
                reduce(*source.derived);
        }
        reduce(select, query.orderBy);
    }
}

} // namespace

void reduceToSemiJoins(Statement &statement)
{
    if (auto *query = std::get_if<Query>(&statement.node))
        reduce(*query);
}

} // namespace vortaq::sql
