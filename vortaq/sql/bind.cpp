// SPDX-License-Identifier: MIT
// Insertions, updates and deletions bound.
#include "vortaq/sql/bind.h"

#include "vortaq/sql/ConditionBinder.h"
#include "vortaq/sql/QueryBinder.h"
#include "vortaq/sql/ValueBinder.h"
#include "vortaq/sql/diagnostic.h"

#include <algorithm>
#include <set>
#include <utility>

namespace vortaq::sql {

namespace {

class ChangeBinder {
public:
    explicit ChangeBinder(Binding &binding)
        : m_binding(binding)
    {
    }

    [[nodiscard]] Insert insert(const ast::Insert &parsed);
    [[nodiscard]] Update update(const ast::Update &parsed);
    [[nodiscard]] Delete deletion(const ast::Delete &parsed);

private:
    [[nodiscard]] std::vector<std::size_t> targetColumns(const ast::Insert &parsed, const CatalogTable &table) const;
    [[nodiscard]] Update::Assignment assignment(const ast::Assignment &parsed, const Source &target, Scope &scope);

    Binding &m_binding;
};

Insert ChangeBinder::insert(const ast::Insert &parsed)
{
    Insert result;
    result.table = &m_binding.table(parsed.table);
    result.columns = targetColumns(parsed, *result.table);
    result.rows = m_binding.queries.query(*parsed.rows, nullptr);
    if (result.rows.columns.size() != result.columns.size())
        m_binding.refuse(parsed.rows->at, "插入的列数与值的个数不一致");
    for (Select &select : result.rows.selects) {
        for (std::size_t i = 0; i < result.columns.size(); ++i) {
            const CatalogColumn &column = result.table->columns[result.columns[i]];
            ExprPtr &item = select.items[i].value;
            item = m_binding.coercion.store(std::move(item), column, parsed.columns[i].at);
        }
    }
    for (std::size_t i = 0; i < result.columns.size(); ++i)
        result.rows.columns[i].type = result.table->columns[result.columns[i]].type;
    return result;
}

std::vector<std::size_t> ChangeBinder::targetColumns(const ast::Insert &parsed, const CatalogTable &table) const
{
    std::vector<std::size_t> result;
    std::set<std::size_t> seen;
    for (const ast::Word &name : parsed.columns) {
        const std::size_t column = table.find(name.text);
        if (column == table.columns.size())
            m_binding.refuse(name.at, "列名" + quoted(name.text) + "无效");
        if (!seen.insert(column).second)
            m_binding.refuse(name.at, "列名" + quoted(name.text) + "重复");
        result.push_back(column);
    }
    return result;
}

Update ChangeBinder::update(const ast::Update &parsed)
{
    Update result;
    Scope scope;
    result.target =
        m_binding.queries.source(ast::Source{parsed.table, nullptr, {}, false, nullptr, parsed.table.at}, nullptr);
    m_binding.queries.makeVisible(result.target, parsed.table.at, scope);
    result.from.reserve(parsed.from.size());
    for (const ast::Source &from : parsed.from) {
        result.from.push_back(m_binding.queries.source(from, nullptr));
        m_binding.queries.makeVisible(result.from.back(), from.at, scope);
    }
    std::set<std::size_t> seen;
    for (const ast::Assignment &parsedAssignment : parsed.assignments) {
        result.assignments.push_back(assignment(parsedAssignment, result.target, scope));
        if (!seen.insert(result.assignments.back().column).second)
            m_binding.refuse(parsedAssignment.column.name.at,
                             "列名" + quoted(parsedAssignment.column.name.text) + "重复");
    }
    if (parsed.where)
        result.where = m_binding.conditions.condition(*parsed.where, scope);
    return result;
}

Update::Assignment ChangeBinder::assignment(const ast::Assignment &parsed, const Source &target, Scope &scope)
{
    const ast::ColumnName &name = parsed.column;
    const std::size_t column = target.table->find(name.name.text);
    if (!name.qualifier.text.empty() && !sameName(name.qualifier.text, target.name))
        m_binding.refuse(name.qualifier.at, quoted(name.qualifier.text) + "不是要修改的表");
    if (column == target.table->columns.size())
        m_binding.refuse(name.name.at, "列名" + quoted(name.name.text) + "无效");
    ExprPtr bound = m_binding.values.value(*parsed.value, scope);
    return {column, m_binding.coercion.store(std::move(bound), target.table->columns[column], parsed.value->at)};
}

Delete ChangeBinder::deletion(const ast::Delete &parsed)
{
    Delete result;
    Scope scope;
    result.target =
        m_binding.queries.source(ast::Source{parsed.table, nullptr, {}, false, nullptr, parsed.table.at}, nullptr);
    m_binding.queries.makeVisible(result.target, parsed.table.at, scope);
    if (parsed.where)
        result.where = m_binding.conditions.condition(*parsed.where, scope);
    return result;
}

/// The binders and what they share; all refer to each other.
struct Binders {
    Binders(std::string_view text, const Catalog &catalog)
        : shared{text, catalog, Coercion(text), queries, values, conditions}
    {
    }

    Binding shared;
    QueryBinder queries{shared};
    ValueBinder values{shared};
    ConditionBinder conditions{shared};
    ChangeBinder changes{shared};
};

} // namespace

Statement bind(const ast::Tree &tree, std::string_view text, const Catalog &catalog)
{
    Binders binders(text, catalog);
    if (const auto *const *query = std::get_if<ast::Query *>(&tree.statement))
        return {binders.queries.query(**query, nullptr)};
    if (const auto *insert = std::get_if<ast::Insert>(&tree.statement))
        return {binders.changes.insert(*insert)};
    if (const auto *update = std::get_if<ast::Update>(&tree.statement))
        return {binders.changes.update(*update)};
    return {binders.changes.deletion(std::get<ast::Delete>(tree.statement))};
}

} // namespace vortaq::sql
