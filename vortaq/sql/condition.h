// SPDX-License-Identifier: MIT
// Bound conditions, three-valued as in SQL.
#pragma once

#include "vortaq/sql/expression.h"

namespace vortaq::sql {

/// Both sides are of one kind. Varchar compares without regard to letter case and trailing blanks.
struct Comparison {
    enum class Operator { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };
    Operator op = Operator::Equal;
    ExprPtr left;
    ExprPtr right;
};

struct NullTest {
    ExprPtr operand;
    bool negated = false; ///< is not null
};

struct Between {
    ExprPtr operand;
    ExprPtr low;
    ExprPtr high;
    bool negated = false;
};

/// Varchar against a pattern with % and _ (and [a-z] sets); no regard to letter case.
struct Like {
    ExprPtr operand;
    ExprPtr pattern;
    bool negated = false;
};

struct InList {
    ExprPtr operand;
    std::vector<ExprPtr> values; ///< at least one
    bool negated = false;
};

/// The query has one column, of the operand's kind.
struct InQuery {
    ExprPtr operand;
    Subquery subquery;
    bool negated = false;
};

/// Whether the query has a row.
struct Exists {
    Subquery subquery;
};

struct Negated {
    ConditionPtr operand;
};

/// Flat: an And holds no And, an Or no Or. At least two operands, thousands are normal.
struct Junction {
    enum class Kind { And, Or };
    Kind kind = Kind::And;
    std::vector<ConditionPtr> operands;
};

/// Many records named by their keys: true where, for one of the rows, every column equals the row's value (compared as
/// in Comparison). As written it is an OR of equal conjunctions. Rows may repeat; no value is null.
struct KeyList {
    int source = 0;
    std::vector<ColumnRef> columns; ///< all of `source`
    std::vector<Type> types; ///< of the columns; the values are spelled in them
    std::vector<std::string> values; ///< row after row, as Literal::text

    [[nodiscard]] std::size_t rowCount() const { return values.size() / columns.size(); }
};

struct Condition {
    std::variant<Comparison, NullTest, Between, Like, InList, InQuery, Exists, Negated, Junction, KeyList> node;
};

} // namespace vortaq::sql
