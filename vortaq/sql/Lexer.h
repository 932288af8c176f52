// SPDX-License-Identifier: MIT
// Cuts a statement into tokens without losing a byte.
#pragma once

#include "vortaq/sql/Token.h"

namespace vortaq::sql {

/// The text (UTF-8) is borrowed and must outlive the lexer and its tokens.
class Lexer {
public:
    explicit Lexer(std::string_view text)
        : m_text(text)
    {
    }

    /// The next token, blanks included; End over and over at the end. The texts of all tokens joined are the text.
    /// Throws SqlError (Syntax) for unknown characters, broken UTF-8, unterminated strings, malformed numbers,
    /// comments and statement separators.
    [[nodiscard]] Token next();
    /// The next token that is no blank.
    [[nodiscard]] Token nextVisible();

    [[nodiscard]] std::string_view text() const { return m_text; }

private:
    [[nodiscard]] Token cut(TokenKind kind, std::size_t end);
    [[nodiscard]] std::size_t endOfString() const;
    [[nodiscard]] std::size_t endOfNumber() const;
    [[nodiscard]] std::size_t endOfWord(std::size_t begin) const;
    [[nodiscard]] Token symbol();
    [[noreturn]] void refuseCharacter(std::size_t at) const;

    std::string_view m_text;
    std::size_t m_at = 0;
};

} // namespace vortaq::sql
