// SPDX-License-Identifier: MIT
// Conditions: and/or lists, comparisons and the other tests.
#include "vortaq/sql/Parser.h"
#include "vortaq/sql/ParserNesting.h"

#include <optional>

namespace vortaq::sql {

namespace {

std::optional<Comparison::Operator> comparisonOf(const Token &token)
{
    using Operator = Comparison::Operator;
    if (token.kind != TokenKind::Symbol)
        return std::nullopt;
    if (token.text == "=")
        return Operator::Equal;
    if (token.text == "<>")
        return Operator::NotEqual;
    if (token.text == "<")
        return Operator::Less;
    if (token.text == "<=")
        return Operator::LessOrEqual;
    if (token.text == ">")
        return Operator::Greater;
    if (token.text == ">=")
        return Operator::GreaterOrEqual;
    return std::nullopt;
}

/// The operands of a junction of the same kind, else the node itself, go to the list: so junctions stay flat.
void append(std::vector<ast::Node *> &operands, Junction::Kind kind, ast::Node *operand)
{
    const auto *inner = std::get_if<ast::AndOr>(&operand->what);
    if (inner && inner->kind == kind)
        operands.insert(operands.end(), inner->operands.begin(), inner->operands.end());
    else
        operands.push_back(operand);
}

} // namespace

ast::Node *Parser::condition()
{
    return asCondition(eitherOr());
}

ast::Node *Parser::eitherOr()
{
    ast::Node *first = eitherAnd();
    return at(Keyword::Or) ? junction(Junction::Kind::Or, first) : first;
}

ast::Node *Parser::eitherAnd()
{
    ast::Node *first = eitherNot();
    return at(Keyword::And) ? junction(Junction::Kind::And, first) : first;
}

ast::Node *Parser::junction(Junction::Kind kind, ast::Node *first)
{
    const Keyword joining = kind == Junction::Kind::And ? Keyword::And : Keyword::Or;
    std::vector<ast::Node *> operands;
    append(operands, kind, asCondition(first));
    while (accept(joining))
        append(operands, kind, asCondition(kind == Junction::Kind::And ? eitherNot() : eitherAnd()));
    return node(first->at, ast::AndOr{kind, m_tree.keep(operands)});
}

ast::Node *Parser::eitherNot()
{
    const std::size_t where = m_token.at;
    if (!accept(Keyword::Not))
        return eitherPredicate();
    const Nesting nesting(*this);
    return node(where, ast::Not{asCondition(eitherNot())});
}

ast::Node *Parser::eitherPredicate()
{
    ast::Node *left = eitherSum();
    if (const auto op = comparisonOf(m_token)) {
        asValue(left);
        m_token = m_lexer.nextVisible();
        return node(left->at, ast::Compare{*op, left, value()});
    }
    if (accept(Keyword::Is)) {
        const bool negated = accept(Keyword::Not);
        expect(Keyword::Null);
        return node(left->at, ast::IsNull{asValue(left), negated});
    }
    if (at(Keyword::Not) || at(Keyword::In) || at(Keyword::Between) || at(Keyword::Like))
        return negatablePredicate(asValue(left));
    return left;
}

ast::Node *Parser::negatablePredicate(ast::Node *operand)
{
    const bool negated = accept(Keyword::Not);
    if (accept(Keyword::In))
        return inPredicate(operand, negated);
    if (accept(Keyword::Like))
        return node(operand->at, ast::LikePattern{operand, value(), negated});
    expect(Keyword::Between);
    ast::Node *low = value();
    expect(Keyword::And);
    return node(operand->at, ast::BetweenAnd{operand, low, value(), negated});
}

ast::Node *Parser::inPredicate(ast::Node *operand, bool negated)
{
    const Nesting nesting(*this);
    expect("(");
    if (at(Keyword::Select)) {
        ast::Query *rows = query(false);
        expect(")");
        return node(operand->at, ast::InRows{operand, rows, negated});
    }
    std::vector<ast::Node *> values;
    do
        values.push_back(value());
    while (accept(","));
    expect(")");
    return node(operand->at, ast::InValues{operand, m_tree.keep(values), negated});
}

} // namespace vortaq::sql
