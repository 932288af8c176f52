// SPDX-License-Identifier: MIT
// A parsed statement before names and types are looked at. Nodes lie in the tree's arena and are never destroyed one by
// one; words are views into the statement's text, which must outlive the tree.
#pragma once

#include "vortaq/sql/condition.h"

#include <memory_resource>
#include <span>
#include <string_view>
#include <utility>

namespace vortaq::sql::ast {

struct Node;
struct Query;

/// A name as written; empty where it is left out.
struct Word {
    std::string_view text;
    std::size_t at = 0;
};

// Values.
struct NumberText {
    std::string_view digits;
};
struct StringText {
    std::string_view quoted;
};
struct NullWord { };
struct ColumnName {
    Word qualifier;
    Word name;
};
struct Sum { ///< + or -
    bool subtract = false;
    Node *left = nullptr;
    Node *right = nullptr;
};
struct Minus {
    Node *operand = nullptr;
};
struct FunctionCall {
    Word name;
    std::span<Node *const> arguments;
};
struct ToVarchar { ///< cast and convert
    Node *operand = nullptr;
    int size = 0;
    bool iso = false;
};
struct CaseBranch {
    Node *when = nullptr;
    Node *then = nullptr;
};
struct CaseOf {
    Node *operand = nullptr; ///< null in the searched form
    std::span<const CaseBranch> branches;
    Node *otherwise = nullptr; ///< null when left out
};
struct NestedQuery {
    Query *query = nullptr;
};

// Conditions.
struct Compare {
    Comparison::Operator op = Comparison::Operator::Equal;
    Node *left = nullptr;
    Node *right = nullptr;
};
struct IsNull {
    Node *operand = nullptr;
    bool negated = false;
};
struct BetweenAnd {
    Node *operand = nullptr;
    Node *low = nullptr;
    Node *high = nullptr;
    bool negated = false;
};
struct LikePattern {
    Node *operand = nullptr;
    Node *pattern = nullptr;
    bool negated = false;
};
struct InValues {
    Node *operand = nullptr;
    std::span<Node *const> values;
    bool negated = false;
};
struct InRows {
    Node *operand = nullptr;
    Query *query = nullptr;
    bool negated = false;
};
struct Not {
    Node *operand = nullptr;
};
struct AndOr {
    Junction::Kind kind = Junction::Kind::And;
    std::span<Node *const> operands; ///< flat, as in Junction
};

/// A value or a condition.
struct Node {
    std::size_t at = 0;
    std::variant<NumberText, StringText, NullWord, ColumnName, Sum, Minus, FunctionCall, ToVarchar, CaseOf, NestedQuery,
                 Compare, IsNull, BetweenAnd, LikePattern, InValues, InRows, Not, AndOr>
        what;

    [[nodiscard]] bool isCondition() const { return what.index() >= firstCondition; }

private:
    static constexpr std::size_t firstCondition = 10;
};

} // namespace vortaq::sql::ast
