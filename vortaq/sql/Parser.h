// SPDX-License-Identifier: MIT
// The reader behind parse(); nobody else needs it.
#pragma once

#include "vortaq/sql/Lexer.h"
#include "vortaq/sql/aststatement.h"

namespace vortaq::sql {

/// Recursive descent with one token of look-ahead; and/or, lists and unions are loops.
class Parser {
public:
    explicit Parser(std::string_view text);

    [[nodiscard]] ast::Tree statement();

private:
    class Nesting;

    // Tokens.
    [[nodiscard]] bool at(Keyword keyword) const { return m_token.keyword == keyword; }
    [[nodiscard]] bool at(std::string_view symbol) const;
    [[nodiscard]] Token take();
    bool accept(Keyword keyword);
    bool accept(std::string_view symbol);
    void expect(Keyword keyword);
    void expect(std::string_view symbol);
    [[nodiscard]] ast::Word name();
    [[nodiscard]] bool atName() const;
    [[nodiscard]] ast::Word optionalAlias();
    [[noreturn]] void unexpected() const;
    [[noreturn]] void refuse(std::size_t where, std::string_view detail) const;

    // Statements.
    [[nodiscard]] ast::Query *query(bool ordered);
    [[nodiscard]] ast::Select select();
    [[nodiscard]] ast::Item item();
    [[nodiscard]] std::span<const ast::Source> sources();
    [[nodiscard]] ast::Source source();
    [[nodiscard]] ast::Source derivedTable();
    [[nodiscard]] ast::Node *optionalWhere();
    [[nodiscard]] std::span<const ast::OrderTerm> optionalOrder();
    [[nodiscard]] ast::Insert insert();
    [[nodiscard]] ast::Query *valuesRow();
    [[nodiscard]] ast::Update update();
    [[nodiscard]] ast::Assignment assignment();
    [[nodiscard]] ast::Delete deletion();

    // Values and conditions. "Either" may turn out to be the one or the other: “(” opens both.
    [[nodiscard]] ast::Node *value();
    [[nodiscard]] ast::Node *condition();
    [[nodiscard]] ast::Node *eitherOr();
    [[nodiscard]] ast::Node *eitherAnd();
    [[nodiscard]] ast::Node *eitherNot();
    [[nodiscard]] ast::Node *eitherPredicate();
    [[nodiscard]] ast::Node *eitherSum();
    [[nodiscard]] ast::Node *eitherPrimary();
    [[nodiscard]] ast::Node *junction(Junction::Kind kind, ast::Node *first);
    [[nodiscard]] ast::Node *negatablePredicate(ast::Node *operand);
    [[nodiscard]] ast::Node *inPredicate(ast::Node *operand, bool negated);
    [[nodiscard]] ast::Node *parenthesised();
    [[nodiscard]] ast::Node *nameOrCall();
    [[nodiscard]] ast::Node *callOf(ast::Word function);
    [[nodiscard]] ast::Node *cast(std::size_t where);
    [[nodiscard]] ast::Node *convert();
    [[nodiscard]] int varcharSize();
    [[nodiscard]] int wholeNumber();
    [[nodiscard]] ast::Node *caseOf();
    ast::Node *asValue(ast::Node *either) const;
    ast::Node *asCondition(ast::Node *either) const;
    template <typename T> [[nodiscard]] ast::Node *node(std::size_t where, T what)
    {
        return m_tree.make(ast::Node{where, std::move(what)});
    }

    Lexer m_lexer;
    Token m_token;
    ast::Tree m_tree;
    int m_depth = 0;
};

} // namespace vortaq::sql
