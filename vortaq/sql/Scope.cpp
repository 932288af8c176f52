// SPDX-License-Identifier: MIT
// Names looked up from the inside out.
#include "vortaq/sql/Scope.h"

namespace vortaq::sql {

std::size_t VisibleSource::columnCount() const
{
    return table ? table->columns.size() : derived->columns.size();
}

std::string_view VisibleSource::columnName(std::size_t column) const
{
    return table ? table->columns[column].name : derived->columns[column].name;
}

const Type &VisibleSource::columnType(std::size_t column) const
{
    return table ? table->columns[column].type : derived->columns[column].type;
}

NameProblem resolve(Scope &scope, std::string_view qualifier, std::string_view name, Resolved &result)
{
    for (Scope *searched = &scope; searched; searched = searched->outer) {
        result = {};
        for (const VisibleSource &source : searched->sources) {
            if (!qualifier.empty() && !sameName(qualifier, source.name))
                continue;
            for (std::size_t column = 0; column < source.columnCount(); ++column) {
                if (!sameName(name, source.columnName(column)))
                    continue;
                if (result.owner)
                    return NameProblem::Ambiguous;
                result = {searched, &source, column};
            }
        }
        if (result.owner)
            return NameProblem::None;
    }
    return NameProblem::Unknown;
}

} // namespace vortaq::sql
