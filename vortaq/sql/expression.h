// SPDX-License-Identifier: MIT
// Bound values and conditions. Every conversion that T-SQL makes silently stands in the tree as a Conversion, so
// whoever writes text from it never decides on types.
#pragma once

#include "vortaq/sql/Type.h"

#include <cstddef>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace vortaq::sql {

struct Expr;
struct Condition;
struct Query;
using ExprPtr = std::unique_ptr<Expr>; ///< never null unless a member says so
using ConditionPtr = std::unique_ptr<Condition>;

/// A query inside an expression or a condition. `correlated`: it reads columns of a query around it.
struct Subquery {
    explicit Subquery(std::unique_ptr<Query> bound);
    Subquery(Subquery &&) noexcept;
    Subquery &operator=(Subquery &&) noexcept;
    ~Subquery();

    std::unique_ptr<Query> query;
    bool correlated = false;
};

/// Text in the one spelling of its type: Int "-12"; Decimal with exactly type.scale decimals, "0.00"; Float "1.5e3";
/// Date "2024-01-31"; DateTime "2024-01-31 08:00:00" (".123" only when not zero); Varchar the characters themselves.
struct Literal {
    std::string text;
    bool isNull = false; ///< the null of the expression's type
};

/// A column of a source; sources are numbered through the whole statement, so the number alone tells which.
struct ColumnRef {
    int source = 0;
    std::size_t column = 0; ///< position in the table, or in the derived table's output
    std::string name; ///< as declared, or as the derived table calls it
};

/// To the expression's type; null stays null.
struct Conversion {
    enum class Mode {
        Checked, ///< silent or written in T-SQL between kinds: what is no number or no date is a run-time error
        Cut, ///< cast or convert to varchar(n): longer text is cut; a number that does not fit is an error
        Store ///< into a column: text longer than varchar(n) (trailing blanks aside), numbers out of range: error
    };
    ExprPtr operand;
    Mode mode = Mode::Checked;
    bool iso = false; ///< style 126: yyyy-mm-ddThh:mm:ss of a DateTime. A Date is yyyy-mm-dd in any style.
};

/// Both sides are of one kind: Concat of Varchar, the others of one numeric kind (decimals may differ in scale).
struct Arithmetic {
    enum class Operator { Add, Subtract, Concat };
    Operator op = Operator::Add;
    ExprPtr left;
    ExprPtr right;
};

/// Numeric.
struct Negation {
    ExprPtr operand;
};

struct Call {
    enum class Function {
        IsNull, ///< two arguments of the expression's type
        Len, ///< of a Varchar; trailing blanks do not count
        Str, ///< Str(number, width, decimals): right-aligned; '*' throughout when too wide; null of a null
        GetDate ///< DateTime, the same moment throughout a statement
    };
    Function function = Function::IsNull;
    std::vector<ExprPtr> arguments;
    int width = 0; ///< Str
    int decimals = 0; ///< Str
};

/// Nulls do not count; of no value at all it is null. Sums of Decimal are exact.
struct Aggregate {
    enum class Function { Max, Sum };
    Function function = Function::Max;
    ExprPtr operand;
};

/// With an operand it is the simple form: all `value`s are of the operand's type and compare as in Comparison.
struct Case {
    struct Branch {
        ExprPtr value; ///< simple form; else null
        ConditionPtr condition; ///< searched form; else null
        ExprPtr result;
    };
    Case();
    Case(Case &&) noexcept;
    Case &operator=(Case &&) noexcept;
    ~Case();

    ExprPtr operand; ///< null in the searched form
    std::vector<Branch> branches;
    ExprPtr otherwise; ///< null when there is no else: then the value is null
};

struct Expr {
    Type type;
    std::variant<Literal, ColumnRef, Conversion, Arithmetic, Negation, Call, Aggregate, Case, Subquery> node;
};

} // namespace vortaq::sql
