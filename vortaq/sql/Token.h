// SPDX-License-Identifier: MIT
// The pieces that a statement's text is made of.
#pragma once

#include <cstddef>
#include <string_view>

namespace vortaq::sql {

enum class TokenKind { Blank, Word, Number, String, Symbol, End };

/// Words of the grammar. Reserved: a word T-SQL keeps for constructs outside the subset, so that it is never taken for
/// a name (“select distinct x” is no column distinct called x).
enum class Keyword {
    None,
    Reserved,
    All,
    And,
    As,
    Asc,
    Between,
    By,
    Case,
    Convert,
    Delete,
    Desc,
    Else,
    End,
    From,
    Group,
    In,
    Insert,
    Into,
    Is,
    Join,
    Left,
    Like,
    Not,
    Null,
    On,
    Or,
    Order,
    Outer,
    Select,
    Set,
    Then,
    Union,
    Update,
    Values,
    When,
    Where
};

struct Token {
    TokenKind kind = TokenKind::End;
    Keyword keyword = Keyword::None; ///< of a Word
    std::size_t at = 0; ///< first byte in the statement
    std::string_view text; ///< exactly as written, a String with its quotes; empty at the end
};

/// None for a word that may be a name.
[[nodiscard]] Keyword keywordOf(std::string_view word);

} // namespace vortaq::sql
