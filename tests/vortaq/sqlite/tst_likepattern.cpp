// SPDX-License-Identifier: MIT
// LIKE as T-SQL has it.
#include "vortaq/sqlite/likepattern.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using vortaq::sqlite::matchesLike;

struct Row {
    const char *name;
    std::string_view text;
    std::string_view pattern;
    bool expected;
};

class MatchesLike : public testing::TestWithParam<Row> { };

TEST_P(MatchesLike, Pattern)
{
    EXPECT_EQ(matchesLike(GetParam().text, GetParam().pattern), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    , MatchesLike,
    testing::Values(Row{"Prefix", "420100", "4201%", true}, Row{"PrefixItself", "4201", "4201%", true},
                    Row{"OtherPrefix", "420200", "4201%", false}, Row{"CaseDoesNotCount", "abC", "A%c", true},
                    Row{"NoWildcard", "4201", "4201", true}, Row{"NotTheWhole", "42010", "4201", false},
                    Row{"OneChineseCharacter", "张三", "张_", true}, Row{"OneIsNotTwo", "张小三", "张_", false},
                    Row{"Inside", "城关镇卫生院", "%镇%", true}, Row{"TwoPercents", "aXbXc", "%X%X%", true},
                    Row{"LastOccurrence", "abcabd", "%abd", true}, Row{"Set", "A1", "[a-c]1", true},
                    Row{"OutsideSet", "d1", "[a-c]1", false}, Row{"NegatedSet", "d1", "[^a-c]1", true},
                    Row{"SetOfChinese", "乙", "[甲乙]", true}, Row{"BracketedPercent", "5%", "5[%]", true},
                    Row{"BracketedPercentOnly", "55", "5[%]", false}, Row{"DashAtTheEnd", "-", "[a-]", true},
                    Row{"UnclosedSet", "a", "[a", false}, Row{"Empty", "", "", true},
                    Row{"EmptyAndPercent", "", "%%", true}, Row{"EmptyAndOne", "", "_", false},
                    Row{"BrokenUtf8", "\xE5\xBC", "_", true}),
    [](const auto &row) { return row.param.name; });

TEST(MatchesLikeWork, HostilePatternEnds)
{
    const std::string text(5000, 'a');
    std::string pattern;
    for (int i = 0; i < 1000; ++i)
        pattern += "%a";
    EXPECT_FALSE(matchesLike(text, pattern + "b"));
}

} // namespace
