// SPDX-License-Identifier: MIT
// Names looked up, or refused at their place.
#include "vortaq/sql/Binding.h"

#include "vortaq/sql/diagnostic.h"

namespace vortaq::sql {

void Binding::refuse(std::size_t at, std::string_view message) const
{
    failAt(SqlError::Reason::Binding, text, at, message);
}

const CatalogTable &Binding::table(const ast::Word &name) const
{
    const CatalogTable *found = catalog.find(name.text);
    if (!found)
        refuse(name.at, "对象名" + quoted(name.text) + "无效");
    return *found;
}

Resolved Binding::found(const ast::ColumnName &name, Scope &scope) const
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

} // namespace vortaq::sql
