// SPDX-License-Identifier: MIT
// From the sources to the order.
#include "vortaq/sql/QueryBinder.h"

#include "vortaq/sql/ConditionBinder.h"
#include "vortaq/sql/ValueBinder.h"
#include "vortaq/sql/diagnostic.h"

#include <algorithm>
#include <utility>

namespace vortaq::sql {

Query QueryBinder::query(const ast::Query &parsed, Scope *outer)
{
    Query result;
    std::vector<Scope> scopes(parsed.selects.size());
    for (std::size_t i = 0; i < scopes.size(); ++i) {
        scopes[i].outer = outer;
        scopes[i].level = outer ? outer->level + 1 : 0;
        result.selects.push_back(select(parsed.selects[i], scopes[i]));
        if (result.selects[i].items.size() != result.selects[0].items.size())
            m_binding.refuse(parsed.selects[i].at, "union all各部分的列数不一致");
    }
    unifyColumns(result, parsed);
    orderBy(result, parsed, scopes.front());
    for (std::size_t i = 0; i < scopes.size(); ++i) {
        checkGrouping(result.selects[i], scopes[i]);
        result.selects[i].aggregated = scopes[i].hasAggregate && result.selects[i].groupBy.empty();
    }
    return result;
}

void QueryBinder::unifyColumns(Query &query, const ast::Query &parsed) const
{
    for (std::size_t i = 0; i < query.selects[0].items.size(); ++i) {
        std::vector<Placed> values;
        for (std::size_t part = 0; part < query.selects.size(); ++part)
            values.push_back({&query.selects[part].items[i].value, parsed.selects[part].at});
        Type type = m_binding.coercion.unify(values);
        if (type.kind == Kind::Null) { // a column of nothing but null is an int in T-SQL
            type = intType();
            for (const Placed &placed : values)
                (*placed.value)->type = type;
        }
        query.columns.push_back({query.selects[0].items[i].name, type});
    }
}

Select QueryBinder::select(const ast::Select &parsed, Scope &scope)
{
    Select result;
    sources(parsed, result, scope);
    if (parsed.where)
        result.where = m_binding.conditions.condition(*parsed.where, scope);
    groupBy(parsed, result, scope);
    scope.aggregatesAllowed = true;
    scope.collectsBareColumns = true;
    for (const ast::Item &item : parsed.items) {
        if (!item.value) {
            everyColumn(item, result, scope);
            continue;
        }
        std::string name(item.name.text);
        if (const auto *column = std::get_if<ast::ColumnName>(&item.value->what); column && name.empty())
            name = column->name.text;
        result.items.push_back({std::move(name), m_binding.values.value(*item.value, scope)});
    }
    return result;
}

void QueryBinder::everyColumn(const ast::Item &parsed, Select &result, Scope &scope) const
{
    if (scope.sources.empty())
        m_binding.refuse(parsed.at, "没有from时不能用*");
    for (const VisibleSource &visible : scope.sources) {
        for (std::size_t i = 0; i < visible.columnCount(); ++i) {
            std::string name(visible.columnName(i));
            scope.bareColumns.push_back({visible.number, i, parsed.at, visible.columnName(i)});
            auto column = std::make_unique<Expr>(Expr{visible.columnType(i), ColumnRef{visible.number, i, name}});
            result.items.push_back({std::move(name), std::move(column)});
        }
    }
}

void QueryBinder::sources(const ast::Select &parsed, Select &result, Scope &scope)
{
    result.from.reserve(parsed.from.size());
    std::size_t joinBegin = 0; // a join sees the tables since the last comma, and no others
    for (std::size_t i = 0; i < parsed.from.size(); ++i) {
        const ast::Source &entry = parsed.from[i];
        result.from.push_back(source(entry, scope.outer));
        makeVisible(result.from.back(), entry.at, scope);
        if (!entry.leftJoin) {
            joinBegin = i;
            continue;
        }
        Scope joined;
        joined.outer = scope.outer;
        joined.level = scope.level;
        joined.sources.assign(scope.sources.begin() + static_cast<std::ptrdiff_t>(joinBegin), scope.sources.end());
        result.from.back().join = Source::Join::Left;
        result.from.back().on = m_binding.conditions.condition(*entry.on, joined);
    }
}

Source QueryBinder::source(const ast::Source &parsed, Scope *outer)
{
    Source result;
    result.number = ++m_binding.lastSource;
    result.name = parsed.alias.text.empty() ? parsed.table.text : parsed.alias.text;
    if (parsed.derived) {
        result.derived = std::make_unique<Query>(query(*parsed.derived, outer));
        requireColumnNames(*result.derived, parsed.at);
    } else {
        result.table = &m_binding.table(parsed.table);
    }
    return result;
}

void QueryBinder::requireColumnNames(const Query &query, std::size_t at) const
{
    for (auto column = query.columns.begin(); column != query.columns.end(); ++column) {
        if (column->name.empty()) {
            const auto position = column - query.columns.begin() + 1;
            m_binding.refuse(at, "派生表的第" + std::to_string(position) + "列没有列名");
        }
        const auto same = [column](const OutputColumn &other) { return sameName(other.name, column->name); };
        if (std::any_of(query.columns.begin(), column, same))
            m_binding.refuse(at, "派生表的列名" + quoted(column->name) + "重复");
    }
}

void QueryBinder::makeVisible(const Source &source, std::size_t at, Scope &scope) const
{
    const auto same = [&source](const VisibleSource &other) { return sameName(other.name, source.name); };
    if (std::any_of(scope.sources.begin(), scope.sources.end(), same))
        m_binding.refuse(at, "表名或别名" + quoted(source.name) + "重复");
    scope.sources.push_back({source.number, source.name, source.table, source.derived.get()});
}

void QueryBinder::groupBy(const ast::Select &parsed, Select &result, Scope &scope)
{
    for (const ast::Node *node : parsed.groupBy) {
        const auto *name = std::get_if<ast::ColumnName>(&node->what);
        if (!name)
            m_binding.refuse(node->at, "group by只能用列名");
        if (m_binding.found(*name, scope).owner != &scope)
            m_binding.refuse(node->at, "group by不能用外层查询的列");
        result.groupBy.push_back(m_binding.values.column(*name, scope));
    }
}

void QueryBinder::checkGrouping(const Select &select, const Scope &scope) const
{
    if (!scope.hasAggregate && select.groupBy.empty())
        return;
    for (const BareColumn &bare : scope.bareColumns) {
        const auto same = [&bare](const ExprPtr &grouped) {
            const auto &column = std::get<ColumnRef>(grouped->node);
            return column.source == bare.source && column.column == bare.column;
        };
        if (std::none_of(select.groupBy.begin(), select.groupBy.end(), same))
            m_binding.refuse(bare.at, "列" + quoted(bare.name) + "既不在聚合函数中，也不在group by中");
    }
}

Subquery QueryBinder::subquery(const ast::Query &parsed, std::size_t at, Scope &scope)
{
    const int around = std::exchange(m_binding.outermostLevel, INT_MAX);
    Subquery result(std::make_unique<Query>(query(parsed, &scope)));
    result.correlated = m_binding.outermostLevel <= scope.level;
    m_binding.outermostLevel = std::min(around, m_binding.outermostLevel);
    if (result.query->columns.size() != 1)
        m_binding.refuse(at, "子查询只能有一列");
    return result;
}

std::optional<std::size_t> QueryBinder::outputNamed(const Query &query, const ast::Node &term) const
{
    const auto *name = std::get_if<ast::ColumnName>(&term.what);
    if (!name || !name->qualifier.text.empty())
        return std::nullopt;
    std::optional<std::size_t> result;
    for (std::size_t i = 0; i < query.columns.size(); ++i) {
        if (!sameName(query.columns[i].name, name->name.text))
            continue;
        if (result)
            m_binding.refuse(term.at, "列名" + quoted(name->name.text) + "不明确");
        result = i;
    }
    return result;
}

void QueryBinder::orderBy(Query &query, const ast::Query &parsed, Scope &scope)
{
    for (const ast::OrderTerm &term : parsed.orderBy) {
        OrderTerm bound;
        bound.descending = term.descending;
        bound.output = outputNamed(query, *term.value);
        if (!bound.output) {
            if (query.selects.size() > 1)
                m_binding.refuse(term.value->at, "union all的排序项必须是输出列");
            bound.value = m_binding.values.value(*term.value, scope);
            if (std::holds_alternative<Literal>(bound.value->node))
                m_binding.refuse(term.value->at, "不能按常量排序");
        }
        query.orderBy.push_back(std::move(bound));
    }
}

} // namespace vortaq::sql
