// SPDX-License-Identifier: MIT
// Insertions, updates and deletions bound.
#include "vortaq/sql/binder.h"

#include <algorithm>
#include <set>
#include <utility>

namespace vortaq::sql {

Statement bind(const ast::Tree &tree, std::string_view text, const Catalog &catalog)
{
    Binder binder(text, catalog);
    if (const auto *const *query = std::get_if<ast::Query *>(&tree.statement))
        return {binder.query(**query, nullptr)};
    if (const auto *insert = std::get_if<ast::Insert>(&tree.statement))
        return {binder.insert(*insert)};
    if (const auto *update = std::get_if<ast::Update>(&tree.statement))
        return {binder.update(*update)};
    return {binder.deletion(std::get<ast::Delete>(tree.statement))};
}

void Binder::refuse(std::size_t at, std::string_view message) const
{
    failAt(SqlError::Reason::Binding, m_text, at, message);
}

const CatalogTable &Binder::table(const ast::Word &name) const
{
    const CatalogTable *found = m_catalog.find(name.text);
    if (!found)
        refuse(name.at, "对象名" + quoted(name.text) + "无效");
    return *found;
}

Insert Binder::insert(const ast::Insert &parsed)
{
    Insert result;
    result.table = &table(parsed.table);
    result.columns = targetColumns(parsed, *result.table);
    result.rows = query(*parsed.rows, nullptr);
    if (result.rows.columns.size() != result.columns.size())
        refuse(parsed.rows->at, "插入的列数与值的个数不一致");
    for (Select &select : result.rows.selects) {
        for (std::size_t i = 0; i < result.columns.size(); ++i) {
            const CatalogColumn &column = result.table->columns[result.columns[i]];
            ExprPtr &item = select.items[i].value;
            item = m_coercion.store(std::move(item), column, parsed.columns[i].at);
        }
    }
    for (std::size_t i = 0; i < result.columns.size(); ++i)
        result.rows.columns[i].type = result.table->columns[result.columns[i]].type;
    return result;
}

std::vector<std::size_t> Binder::targetColumns(const ast::Insert &parsed, const CatalogTable &table) const
{
    std::vector<std::size_t> result;
    std::set<std::size_t> seen;
    for (const ast::Word &name : parsed.columns) {
        const std::size_t column = table.find(name.text);
        if (column == table.columns.size())
            refuse(name.at, "列名" + quoted(name.text) + "无效");
        if (!seen.insert(column).second)
            refuse(name.at, "列名" + quoted(name.text) + "重复");
        result.push_back(column);
    }
    return result;
}

Update Binder::update(const ast::Update &parsed)
{
    Update result;
    Scope scope;
    result.target = source(ast::Source{parsed.table, nullptr, {}, false, nullptr, parsed.table.at}, nullptr);
    makeVisible(result.target, parsed.table.at, scope);
    result.from.reserve(parsed.from.size());
    for (const ast::Source &from : parsed.from) {
        result.from.push_back(source(from, nullptr));
        makeVisible(result.from.back(), from.at, scope);
    }
    std::set<std::size_t> seen;
    for (const ast::Assignment &parsedAssignment : parsed.assignments) {
        result.assignments.push_back(assignment(parsedAssignment, result.target, scope));
        if (!seen.insert(result.assignments.back().column).second)
            refuse(parsedAssignment.column.name.at, "列名" + quoted(parsedAssignment.column.name.text) + "重复");
    }
    if (parsed.where)
        result.where = condition(*parsed.where, scope);
    return result;
}

Update::Assignment Binder::assignment(const ast::Assignment &parsed, const Source &target, Scope &scope)
{
    const ast::ColumnName &name = parsed.column;
    const std::size_t column = target.table->find(name.name.text);
    if (!name.qualifier.text.empty() && !sameName(name.qualifier.text, target.name))
        refuse(name.qualifier.at, quoted(name.qualifier.text) + "不是要修改的表");
    if (column == target.table->columns.size())
        refuse(name.name.at, "列名" + quoted(name.name.text) + "无效");
    ExprPtr bound = value(*parsed.value, scope);
    return {column, m_coercion.store(std::move(bound), target.table->columns[column], parsed.value->at)};
}

Delete Binder::deletion(const ast::Delete &parsed)
{
    Delete result;
    Scope scope;
    result.target = source(ast::Source{parsed.table, nullptr, {}, false, nullptr, parsed.table.at}, nullptr);
    makeVisible(result.target, parsed.table.at, scope);
    if (parsed.where)
        result.where = condition(*parsed.where, scope);
    return result;
}

} // namespace vortaq::sql
