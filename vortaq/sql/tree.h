// SPDX-License-Identifier: MIT
// A bound statement: names resolved, types settled, conversions written out. Tables are borrowed from the catalogue.
#pragma once

#include "vortaq/sql/Catalog.h"
#include "vortaq/sql/condition.h"
#include "vortaq/sql/expression.h"

#include <optional>

namespace vortaq::sql {

/// One entry of a from clause.
struct Source {
    /// Comma: every row with every row so far. Left: rows so far without a match keep nulls here.
    enum class Join { Comma, Left };

    int number = 0; ///< unique in the whole statement; columns refer to it
    std::string name; ///< alias or table name: how the statement calls it
    const CatalogTable *table = nullptr; ///< null for a derived table
    std::unique_ptr<Query> derived; ///< null for a table; may read columns of queries around the one it stands in
    Join join = Join::Comma;
    ConditionPtr on; ///< of a left join; else null
};

struct SelectItem {
    std::string name; ///< of the output column; empty when an expression has none
    ExprPtr value;
};

struct Select {
    std::vector<SelectItem> items; ///< `*` is written out; at least one
    std::vector<Source> from; ///< may be empty: then one row
    ConditionPtr where; ///< null when there is none
    std::vector<ExprPtr> groupBy; ///< column references
    bool aggregated = false; ///< aggregates without groupBy: always exactly one row
};

struct OutputColumn {
    std::string name;
    Type type;
};

/// Either an output column or, in a query of one select, any other value of that select. Nulls are lowest; Varchar
/// orders as it compares.
struct OrderTerm {
    std::optional<std::size_t> output; ///< position in Query::columns
    ExprPtr value; ///< null when `output` is given
    bool descending = false;
};

struct Query {
    std::vector<Select> selects; ///< joined by union all; all items are of the kind (Decimal: and scale) of `columns`
    std::vector<OutputColumn> columns;
    std::vector<OrderTerm> orderBy; ///< of the outermost query only
};

struct Insert {
    const CatalogTable *table = nullptr;
    std::vector<std::size_t> columns; ///< positions in the table, one for every column of `rows`
    Query rows; ///< `values (..)` is a select without from; all values are converted to the columns' types
};

/// Changes each row of the target that has a match in `from` and meets `where`.
struct Update {
    struct Assignment {
        std::size_t column = 0; ///< position in the target's table
        ExprPtr value; ///< of the column's type
    };
    Source target;
    std::vector<Assignment> assignments;
    std::vector<Source> from; ///< derived tables, without the target; often empty
    ConditionPtr where; ///< null: all rows
};

struct Delete {
    Source target;
    ConditionPtr where; ///< null: all rows
};

struct Statement {
    std::variant<Query, Insert, Update, Delete> node;

    [[nodiscard]] bool isQuery() const { return std::holds_alternative<Query>(node); }
};

} // namespace vortaq::sql
