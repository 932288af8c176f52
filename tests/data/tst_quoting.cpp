// SPDX-License-Identifier: MIT
// Values between quotes.
#include "data/quoting.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const char *name;
    const char *value; ///< UTF-8
    const char *quoted;
};

class QuotedStr : public testing::TestWithParam<Row> { };

TEST_P(QuotedStr, enclosesAndDoubles)
{
    EXPECT_EQ(data::quotedStr(QString::fromUtf8(GetParam().value)).toStdString(), GetParam().quoted);
}

const Row Rows[] = {
    {"Empty", "", "''"},
    {"Plain", "4201", "'4201'"},
    {"QuoteInside", "O'Neil", "'O''Neil'"},
    {"QuotesOnly", "''", "''''''"},
    {"QuoteAtBothEnds", "'a'", "'''a'''"},
    {"Chinese", "李'会计", "'李''会计'"},
    {"OtherQuotesStay", "\"a\" `b` “c”", "'\"a\" `b` “c”'"},
    {"BackslashStays", "a\\'", "'a\\'''"},
    {"LineBreakStays", "a\r\nb", "'a\r\nb'"},
    {"BlanksStay", "  a  ", "'  a  '"},
};

INSTANTIATE_TEST_SUITE_P(Values, QuotedStr, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

TEST(ComesBackUnchanged, plainAndChineseText)
{
    for (const char *text : {"", "0012", "证'号", "\xF0\xA0\xAE\xB7", "\xEF\xBF\xBD"}) // 𠮷; the replacement itself
        EXPECT_TRUE(data::comesBackUnchanged(text)) << text;
}

TEST(ComesBackUnchanged, notWithBytesThatAreLostOnTheWay)
{
    using namespace std::string_view_literals;
    for (const std::string_view text : {
             "00\0\x31\x32"sv, // a zero
             "\0"sv,
             "\xBA\xCF"sv, // GBK
             "0012\xFF"sv,
             "\xE8\xAF"sv, // half a character
             "\xED\xA0\x80"sv, // half a pair
             "\xC0\xB0"sv, // a digit in too many bytes
             "\xEF\xBB\xBF\x30"sv, // a byte-order mark
         })
        EXPECT_FALSE(data::comesBackUnchanged(text)) << text;
}

TEST(QuotedStrOnly, keepsAZeroCharacter)
{
    EXPECT_EQ(data::quotedStr(QString(QChar(u'\0'))), QStringLiteral("'") + QChar(u'\0') + QStringLiteral("'"));
}

} // namespace
