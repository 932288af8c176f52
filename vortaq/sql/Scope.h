// SPDX-License-Identifier: MIT
// Which names one select, update or deletion can see.
#pragma once

#include "vortaq/sql/tree.h"

#include <deque>
#include <string_view>

namespace vortaq::sql {

/// One entry of a from clause as names see it; borrows from the catalogue or from the bound derived table.
struct VisibleSource {
    int number = 0;
    std::string_view name;
    const CatalogTable *table = nullptr;
    const Query *derived = nullptr;

    [[nodiscard]] std::size_t columnCount() const;
    [[nodiscard]] std::string_view columnName(std::size_t column) const;
    [[nodiscard]] const Type &columnType(std::size_t column) const;
};

/// A column outside any aggregate, to be checked against group by.
struct BareColumn {
    int source = 0;
    std::size_t column = 0;
    std::size_t at = 0;
    std::string_view name;
};

struct Scope {
    Scope *outer = nullptr; ///< of the query around; names not found here are looked for there
    int level = 0; ///< queries around
    std::deque<VisibleSource> sources;

    bool aggregatesAllowed = false;
    bool insideAggregate = false;
    bool hasAggregate = false;
    bool collectsBareColumns = false;
    std::deque<BareColumn> bareColumns;
};

/// A name found.
struct Resolved {
    Scope *owner = nullptr;
    const VisibleSource *source = nullptr;
    std::size_t column = 0;
};

enum class NameProblem { None, Unknown, Ambiguous };

/// Looks through the scope, then through those around it, without regard to letter case. An empty qualifier matches
/// every source.
[[nodiscard]] NameProblem resolve(Scope &scope, std::string_view qualifier, std::string_view name, Resolved &result);

} // namespace vortaq::sql
