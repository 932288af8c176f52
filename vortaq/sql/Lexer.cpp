// SPDX-License-Identifier: MIT
// Token by token through a statement.
#include "vortaq/sql/Lexer.h"

#include "vortaq/sql/character.h"
#include "vortaq/sql/diagnostic.h"

namespace vortaq::sql {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

Token Lexer::next()
{
    if (m_at == m_text.size())
        return {TokenKind::End, Keyword::None, m_at, {}};
    const char c = m_text[m_at];
    const char following = m_at + 1 < m_text.size() ? m_text[m_at + 1] : '\0';
    if (isBlank(c)) {
        std::size_t end = m_at;
        while (end < m_text.size() && isBlank(m_text[end]))
            ++end;
        return cut(TokenKind::Blank, end);
    }
    if (c == '\'')
        return cut(TokenKind::String, endOfString());
    if (isDigit(c) || (c == '.' && isDigit(following)))
        return cut(TokenKind::Number, endOfNumber());
    const std::size_t end = endOfWord(m_at);
    if (end == m_at)
        return symbol();
    Token word = cut(TokenKind::Word, end);
    word.keyword = keywordOf(word.text);
    return word;
}

Token Lexer::nextVisible()
{
    Token token = next();
    while (token.kind == TokenKind::Blank)
        token = next();
    return token;
}

Token Lexer::cut(TokenKind kind, std::size_t end)
{
    const Token token{kind, Keyword::None, m_at, m_text.substr(m_at, end - m_at)};
    m_at = end;
    return token;
}

std::size_t Lexer::endOfString() const
{
    std::size_t at = m_at + 1;
    while (at < m_text.size()) {
        if (m_text[at] == '\'') {
            if (at + 1 == m_text.size() || m_text[at + 1] != '\'')
                return at + 1;
            at += 2;
            continue;
        }
        const Character character = characterAt(m_text, at);
        if (character.length == 0 || character.code == 0)
            refuseCharacter(at);
        at += character.length;
    }
    failSyntax(m_text, m_at, "字符串没有结束的引号");
}

std::size_t Lexer::endOfNumber() const
{
    std::size_t at = m_at;
    while (at < m_text.size() && isDigit(m_text[at]))
        ++at;
    if (at < m_text.size() && m_text[at] == '.') {
        ++at;
        while (at < m_text.size() && isDigit(m_text[at]))
            ++at;
    }
    // "1abc" is a mistyped number rather than 1 called abc.
    const std::size_t end = endOfWord(at);
    if (end != at || (at < m_text.size() && m_text[at] == '.'))
        failSyntax(m_text, m_at, quoted(m_text.substr(m_at, end - m_at)) + "不是数字");
    return at;
}

std::size_t Lexer::endOfWord(std::size_t begin) const
{
    std::size_t at = begin;
    while (at < m_text.size()) {
        const Character character = characterAt(m_text, at);
        if (character.length == 0)
            refuseCharacter(at);
        if (!isNamePart(character.code))
            break;
        at += character.length;
    }
    return at;
}

Token Lexer::symbol()
{
    const std::string_view rest = m_text.substr(m_at);
    const std::string_view two = rest.substr(0, 2);
    if (two == "--" || two == "/*")
        failSyntax(m_text, m_at, "语句中不能有注释");
    if (two == "<>" || two == "<=" || two == ">=")
        return cut(TokenKind::Symbol, m_at + 2);
    if (rest.front() == ';')
        failSyntax(m_text, m_at, "一次只能执行一条语句");
    constexpr std::string_view single = "(),.=<>+-*";
    if (single.find(rest.front()) == std::string_view::npos)
        refuseCharacter(m_at);
    return cut(TokenKind::Symbol, m_at + 1);
}

void Lexer::refuseCharacter(std::size_t at) const
{
    const Character character = characterAt(m_text, at);
    if (character.length == 0)
        failSyntax(m_text, at, "不是有效的UTF-8文字");
    if (character.code < 0x20 || character.code == 0x7F)
        failSyntax(m_text, at, "不能使用控制字符");
    failSyntax(m_text, at, "不认识的字符" + quoted(m_text.substr(at, character.length)));
}

} // namespace vortaq::sql
