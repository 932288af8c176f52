// SPDX-License-Identifier: MIT
// Queries bound: sources, output columns, grouping, order.
#pragma once

#include "vortaq/sql/Binding.h"
#include "vortaq/sql/aststatement.h"

#include <optional>

namespace vortaq::sql {

class QueryBinder {
public:
    explicit QueryBinder(Binding &binding)
        : m_binding(binding)
    {
    }

    /// `outer`: what the query may read around it; null for none.
    [[nodiscard]] Query query(const ast::Query &parsed, Scope *outer);
    /// A query of one column inside a value or a condition.
    [[nodiscard]] Subquery subquery(const ast::Query &parsed, std::size_t at, Scope &scope);
    [[nodiscard]] Source source(const ast::Source &parsed, Scope *outer);
    void makeVisible(const Source &source, std::size_t at, Scope &scope) const;

private:
    [[nodiscard]] Select select(const ast::Select &parsed, Scope &scope);
    void sources(const ast::Select &parsed, Select &result, Scope &scope);
    void everyColumn(const ast::Item &parsed, Select &result, Scope &scope) const;
    void groupBy(const ast::Select &parsed, Select &result, Scope &scope);
    void checkGrouping(const Select &select, const Scope &scope) const;
    void unifyColumns(Query &query, const ast::Query &parsed) const;
    void orderBy(Query &query, const ast::Query &parsed, Scope &scope);
    [[nodiscard]] std::optional<std::size_t> outputNamed(const Query &query, const ast::Node &term) const;
    void requireColumnNames(const Query &query, std::size_t at) const;

    Binding &m_binding;
};

} // namespace vortaq::sql
