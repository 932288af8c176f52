// SPDX-License-Identifier: MIT
// Text compares without letter case and trailing blanks.
#include "vortaq/sqlite/collation.h"

#include <gtest/gtest.h>

namespace {

using vortaq::sqlite::compareText;

struct Row {
    const char *name;
    std::string_view left;
    std::string_view right;
    int expected;
};

class CompareText : public testing::TestWithParam<Row> { };

TEST_P(CompareText, BothWays)
{
    EXPECT_EQ(compareText(GetParam().left, GetParam().right), GetParam().expected);
    EXPECT_EQ(compareText(GetParam().right, GetParam().left), -GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(, CompareText,
                         testing::Values(Row{"Equal", "4201", "4201", 0}, Row{"Case", "a1B", "A1b", 0},
                                         Row{"TrailingBlanks", "A1  ", "a1", 0}, Row{"OnlyBlanks", "   ", "", 0},
                                         Row{"LeadingBlankCounts", " A1", "A1", -1},
                                         Row{"InnerBlankCounts", "A 1", "A1", -1}, Row{"ShorterFirst", "A", "AB", -1},
                                         Row{"ShorterFirstBehindBlank", "A ", "AB", -1},
                                         Row{"UnderscoreBelowLetters", "_", "a", -1},
                                         Row{"UpperSortsAsLower", "B", "a", 1}, Row{"Chinese", "张三", "张三 ", 0},
                                         Row{"ChineseByCode", "一", "丁", -1},
                                         Row{"NoFoldingBeyondAscii", "É", "é", -1}, Row{"Empty", "", "a", -1}),
                         [](const auto &row) { return row.param.name; });

} // namespace
