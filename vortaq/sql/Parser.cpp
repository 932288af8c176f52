// SPDX-License-Identifier: MIT
// Tokens and values of the parser.
#include "vortaq/sql/Parser.h"

#include "vortaq/sql/Catalog.h"
#include "vortaq/sql/ParserNesting.h"
#include "vortaq/sql/diagnostic.h"
#include "vortaq/sql/parse.h"

#include <charconv>

namespace vortaq::sql {

ast::Tree parse(std::string_view text)
{
    return Parser(text).statement();
}

Parser::Parser(std::string_view text)
    : m_lexer(text)
    , m_token(m_lexer.nextVisible())
{
}

bool Parser::at(std::string_view symbol) const
{
    return m_token.kind == TokenKind::Symbol && m_token.text == symbol;
}

Token Parser::take()
{
    const Token taken = m_token;
    m_token = m_lexer.nextVisible();
    return taken;
}

bool Parser::accept(Keyword keyword)
{
    if (!at(keyword))
        return false;
    m_token = m_lexer.nextVisible();
    return true;
}

bool Parser::accept(std::string_view symbol)
{
    if (!at(symbol))
        return false;
    m_token = m_lexer.nextVisible();
    return true;
}

void Parser::expect(Keyword keyword)
{
    if (!accept(keyword))
        unexpected();
}

void Parser::expect(std::string_view symbol)
{
    if (!accept(symbol))
        unexpected();
}

bool Parser::atName() const
{
    return m_token.kind == TokenKind::Word && m_token.keyword == Keyword::None;
}

ast::Word Parser::name()
{
    if (!atName())
        unexpected();
    const Token token = take();
    return {token.text, token.at};
}

ast::Word Parser::optionalAlias()
{
    if (accept(Keyword::As) || atName())
        return name();
    return {};
}

void Parser::unexpected() const
{
    if (m_token.kind == TokenKind::End)
        refuse(m_token.at, "语句不完整");
    refuse(m_token.at, quoted(m_token.text) + "附近");
}

void Parser::refuse(std::size_t where, std::string_view detail) const
{
    failSyntax(m_lexer.text(), where, detail);
}

ast::Node *Parser::value()
{
    return asValue(eitherSum());
}

ast::Node *Parser::eitherSum()
{
    Nesting nesting(*this);
    ast::Node *result = eitherPrimary();
    while (at("+") || at("-")) {
        nesting.enter(); // the chain becomes a tree that leans to the left
        asValue(result);
        const Token op = take();
        ast::Node *right = asValue(eitherPrimary());
        result = node(op.at, ast::Sum{op.text == "-", result, right});
    }
    return result;
}

ast::Node *Parser::eitherPrimary()
{
    const std::size_t where = m_token.at;
    switch (m_token.kind) {
    case TokenKind::Number:
        return node(where, ast::NumberText{take().text});
    case TokenKind::String:
        return node(where, ast::StringText{take().text});
    case TokenKind::Word:
        return nameOrCall();
    case TokenKind::Symbol:
        if (at("("))
            return parenthesised();
        if (accept("-")) {
            Nesting nesting(*this);
            return node(where, ast::Minus{asValue(eitherPrimary())});
        }
        unexpected();
    default:
        unexpected();
    }
}

ast::Node *Parser::parenthesised()
{
    const Nesting nesting(*this);
    const std::size_t where = m_token.at;
    expect("(");
    ast::Node *inside = at(Keyword::Select) ? node(where, ast::NestedQuery{query(false)}) : eitherOr();
    expect(")");
    return inside;
}

ast::Node *Parser::nameOrCall()
{
    const std::size_t where = m_token.at;
    if (accept(Keyword::Null))
        return node(where, ast::NullWord{});
    if (at(Keyword::Case))
        return caseOf();
    if (at(Keyword::Convert))
        return convert();
    const ast::Word first = name();
    if (at("("))
        return callOf(first);
    if (accept("."))
        return node(where, ast::ColumnName{first, name()});
    return node(where, ast::ColumnName{{}, first});
}

ast::Node *Parser::callOf(ast::Word function)
{
    const Nesting nesting(*this);
    expect("(");
    if (sameName(function.text, "cast"))
        return cast(function.at);
    std::vector<ast::Node *> arguments;
    if (!at(")")) {
        do
            arguments.push_back(value());
        while (accept(","));
    }
    expect(")");
    return node(function.at, ast::FunctionCall{function, m_tree.keep(arguments)});
}

ast::Node *Parser::cast(std::size_t where)
{
    ast::Node *operand = value();
    expect(Keyword::As);
    const int size = varcharSize();
    expect(")");
    return node(where, ast::ToVarchar{operand, size, false});
}

ast::Node *Parser::convert()
{
    const Nesting nesting(*this);
    const std::size_t where = take().at;
    expect("(");
    const int size = varcharSize();
    expect(",");
    ast::Node *operand = value();
    bool iso = false;
    if (accept(",")) {
        const std::size_t style = m_token.at;
        if (wholeNumber() != 126)
            refuse(style, "日期格式只支持126");
        iso = true;
    }
    expect(")");
    return node(where, ast::ToVarchar{operand, size, iso});
}

int Parser::varcharSize()
{
    const ast::Word type = name();
    if (!sameName(type.text, "varchar"))
        refuse(type.at, "只能转换为varchar");
    expect("(");
    const std::size_t where = m_token.at;
    const int size = wholeNumber();
    if (size < 1 || size > longestVarchar)
        refuse(where, "varchar的长度应在1到8000之间");
    expect(")");
    return size;
}

int Parser::wholeNumber()
{
    int result = 0;
    const std::string_view digits = m_token.text;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), result);
    if (m_token.kind != TokenKind::Number || error != std::errc{} || end != digits.data() + digits.size())
        unexpected();
    m_token = m_lexer.nextVisible();
    return result;
}

ast::Node *Parser::caseOf()
{
    const Nesting nesting(*this);
    ast::CaseOf result;
    const std::size_t where = take().at;
    if (!at(Keyword::When))
        result.operand = value();
    std::vector<ast::CaseBranch> branches;
    do {
        expect(Keyword::When);
        ast::Node *when = result.operand ? value() : condition();
        expect(Keyword::Then);
        branches.push_back({when, value()});
    } while (at(Keyword::When));
    result.branches = m_tree.keep(branches);
    if (accept(Keyword::Else))
        result.otherwise = value();
    expect(Keyword::End);
    return node(where, result);
}

ast::Node *Parser::asValue(ast::Node *either) const
{
    if (either->isCondition())
        refuse(either->at, "此处应为值，不能是条件");
    return either;
}

ast::Node *Parser::asCondition(ast::Node *either) const
{
    if (!either->isCondition())
        unexpected();
    return either;
}

} // namespace vortaq::sql
