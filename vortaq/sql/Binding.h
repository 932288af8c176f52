// SPDX-License-Identifier: MIT
// What the binders of one statement share. Queries hold values and conditions, and both hold queries again, so each
// binder reaches the others through here.
#pragma once

#include "vortaq/sql/Catalog.h"
#include "vortaq/sql/Coercion.h"
#include "vortaq/sql/Scope.h"
#include "vortaq/sql/ast.h"

#include <climits>

namespace vortaq::sql {

class ConditionBinder;
class QueryBinder;
class ValueBinder;

/// Set up by bind(); all is borrowed.
struct Binding {
    std::string_view text; ///< of the statement
    const Catalog &catalog;
    Coercion coercion;
    QueryBinder &queries;
    ValueBinder &values;
    ConditionBinder &conditions;
    int lastSource = 0;
    int outermostLevel = INT_MAX; ///< the lowest level whose columns were read since the query began

    [[noreturn]] void refuse(std::size_t at, std::string_view message) const;
    [[nodiscard]] const CatalogTable &table(const ast::Word &name) const;
    [[nodiscard]] Resolved found(const ast::ColumnName &name, Scope &scope) const;
};

} // namespace vortaq::sql
