// SPDX-License-Identifier: MIT
// Tokens: nothing lost, positions right, names of any script, mistakes named with their place.
#include "tests/vortaq/sql/corpus.h"
#include "tests/vortaq/sql/refusal.h"
#include "vortaq/sql/Lexer.h"
#include "vortaq/sql/character.h"

#include <gtest/gtest.h>

using namespace vortaq;
using namespace vortaq::sql;

namespace {

std::vector<Token> tokensOf(std::string_view text)
{
    Lexer lexer(text);
    std::vector<Token> result;
    for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next())
        result.push_back(token);
    return result;
}

std::string refusalOf(std::string_view text)
{
    try {
        const auto tokens = tokensOf(text);
        return std::to_string(tokens.size()) + " tokens";
    } catch (const SqlError &error) {
        EXPECT_EQ(error.reason(), SqlError::Reason::Syntax);
        return test::firstLineOf(error);
    }
}

TEST(Lexer, JoinedTokensAreTheStatement)
{
    for (const test::CorpusEntry &entry : test::readCorpus("good.txt")) {
        std::string joined;
        for (const Token &token : tokensOf(entry.statement)) {
            EXPECT_EQ(token.at, joined.size()) << entry.title;
            EXPECT_FALSE(token.text.empty()) << entry.title;
            joined += token.text;
        }
        EXPECT_EQ(joined, entry.statement);
    }
}

TEST(Lexer, KindsOfTokens)
{
    const std::string_view text = "select 医疗_1,1.5 .5 5.\r\n\t'it''s' <> <= >= < > = ( ) + - * a.b";
    std::string kinds;
    for (const Token &token : tokensOf(text)) {
        if (token.kind != TokenKind::Blank)
            kinds += "WNS."[static_cast<int>(token.kind) - static_cast<int>(TokenKind::Word)];
    }
    EXPECT_EQ(kinds, "WW.NNNS...........W.W");
}

TEST(Lexer, KeywordsInAnyLetterCase)
{
    EXPECT_EQ(keywordOf("SeLeCt"), Keyword::Select);
    EXPECT_EQ(keywordOf("convert"), Keyword::Convert);
    EXPECT_EQ(keywordOf("add"), Keyword::Reserved);
    EXPECT_EQ(keywordOf("WRITETEXT"), Keyword::Reserved);
    EXPECT_EQ(keywordOf("selects"), Keyword::None);
    EXPECT_EQ(keywordOf(""), Keyword::None);
    EXPECT_EQ(keywordOf("a_name_longer_than_any_keyword"), Keyword::None);
    EXPECT_EQ(keywordOf("名称"), Keyword::None);
}

TEST(Lexer, EndComesOverAndOver)
{
    Lexer lexer(" ");
    EXPECT_EQ(lexer.nextVisible().kind, TokenKind::End);
    EXPECT_EQ(lexer.next().kind, TokenKind::End);
    EXPECT_EQ(lexer.next().at, 1U);
}

struct Refusal {
    const char *name;
    std::string_view text;
    const char *message;
};

class LexerRefusals : public testing::TestWithParam<Refusal> { };

TEST_P(LexerRefusals, NamePlaceAndReason)
{
    EXPECT_EQ(refusalOf(GetParam().text), GetParam().message);
}

using namespace std::string_view_literals;

INSTANTIATE_TEST_SUITE_P(
    Texts, LexerRefusals,
    testing::Values(Refusal{"openString", "a 'b"sv, "语法错误（第1行第3列）：字符串没有结束的引号"},
                    Refusal{"openAfterDoubledQuote", "'b''"sv, "语法错误（第1行第1列）：字符串没有结束的引号"},
                    Refusal{"lineComment", "a\n --b"sv, "语法错误（第2行第2列）：语句中不能有注释"},
                    Refusal{"blockComment", "/*b*/"sv, "语法错误（第1行第1列）：语句中不能有注释"},
                    Refusal{"separator", "a;b"sv, "语法错误（第1行第2列）：一次只能执行一条语句"},
                    Refusal{"number", "12ab"sv, "语法错误（第1行第1列）：“12ab”不是数字"},
                    Refusal{"twoPoints", "1.2.3"sv, "语法错误（第1行第1列）：“1.2”不是数字"},
                    Refusal{"unknown", "病@"sv, "语法错误（第1行第2列）：不认识的字符“@”"},
                    Refusal{"fullWidthComma", "a，b"sv, "语法错误（第1行第2列）：不认识的字符“，”"},
                    Refusal{"fullWidthBlank", "a\u3000b"sv, "语法错误（第1行第2列）：不认识的字符“\u3000”"},
                    Refusal{"bracket", "[a]"sv, "语法错误（第1行第1列）：不认识的字符“[”"},
                    Refusal{"control", "a\x01"sv, "语法错误（第1行第2列）：不能使用控制字符"},
                    Refusal{"zero", "a\0b"sv, "语法错误（第1行第2列）：不能使用控制字符"},
                    Refusal{"zeroInString", "'a\0b'"sv, "语法错误（第1行第3列）：不能使用控制字符"},
                    Refusal{"brokenBytes", "a\xff"sv, "语法错误（第1行第2列）：不是有效的UTF-8文字"},
                    Refusal{"brokenString", "'\xe5\x8c'"sv, "语法错误（第1行第2列）：不是有效的UTF-8文字"},
                    Refusal{"overlong", "\xc0\xaf"sv, "语法错误（第1行第1列）：不是有效的UTF-8文字"},
                    Refusal{"surrogate", "\xed\xa0\x80"sv, "语法错误（第1行第1列）：不是有效的UTF-8文字"}),
    [](const testing::TestParamInfo<Refusal> &row) { return row.param.name; });

TEST(Character, DecodesAllLengths)
{
    const std::string_view text = "aé中𠀀";
    EXPECT_EQ(characterAt(text, 0).code, U'a');
    EXPECT_EQ(characterAt(text, 1).code, U'é');
    EXPECT_EQ(characterAt(text, 3).code, U'中');
    EXPECT_EQ(characterAt(text, 6).code, U'𠀀');
    EXPECT_EQ(characterAt(text, 6).length, 4U);
    EXPECT_EQ(characterCount(text), 4U);
}

} // namespace
