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

TEST(QuotedStrOnly, keepsAZeroCharacter)
{
    EXPECT_EQ(data::quotedStr(QString(QChar(u'\0'))), QStringLiteral("'") + QChar(u'\0') + QStringLiteral("'"));
}

} // namespace
