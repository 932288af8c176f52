// SPDX-License-Identifier: MIT
// Amounts in Chinese capital numerals.
#include "values/capitalamount.h"

#include "values/displayformat.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string_view>

namespace {

struct Row {
    const char *name;
    const char *amount;
    const char *text;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

class CapitalAmount : public testing::TestWithParam<Row> { };

TEST_P(CapitalAmount, ReadsAsOnAReceipt)
{
    EXPECT_EQ(values::capitalAmount(values::parseAmount(std::string_view(GetParam().amount))).toStdString(),
              GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Table, CapitalAmount,
    testing::Values(
        Row{"all", "1234.56", "壹仟贰佰叁拾肆元伍角陆分"}, Row{"nothing", "0", "零元整"},
        Row{"lessThanACent", "0.004", "零元整"}, Row{"halfACent", "0.005", "壹分"}, Row{"cent", "0.01", "壹分"},
        Row{"tenth", "0.10", "壹角整"}, Row{"tenthAndCent", "0.15", "壹角伍分"}, Row{"whole", "7", "柒元整"},
        Row{"ten", "10", "壹拾元整"}, Row{"fifteen", "15", "壹拾伍元整"}, Row{"gapToTheCent", "1.05", "壹元零伍分"},
        Row{"tenths", "20.50", "贰拾元伍角整"}, Row{"gapInside", "1005", "壹仟零伍元整"},
        Row{"gapInsideAndTenth", "1050.3", "壹仟零伍拾元叁角整"}, Row{"tenThousand", "10000", "壹万元整"},
        Row{"gapAfterWan", "10010", "壹万零壹拾元整"}, Row{"fullAfterWan", "11000", "壹万壹仟元整"},
        Row{"gapBeforeWan", "1010000", "壹佰零壹万元整"}, Row{"million", "1000010", "壹佰万零壹拾元整"},
        Row{"hundredMillion", "100000000", "壹亿元整"}, Row{"emptyWan", "100000001", "壹亿零壹元整"},
        Row{"everyGroup", "203004050607.08", "贰仟零叁拾亿零肆佰零伍万零陆佰零柒元零捌分"},
        Row{"twelveDigits", "999999999999.99", "玖仟玖佰玖拾玖亿玖仟玖佰玖拾玖万玖仟玖佰玖拾玖元玖角玖分"},
        Row{"roundsUpToThirteen", "999999999999.999", "壹万亿元整"},
        Row{"tenThousandTimesAHundredMillion", "1000000000000", "壹万亿元整"},
        Row{"emptyYiWithWan", "1000000010000", "壹万亿零壹万元整"},
        Row{"emptyYiWithYuan", "1000000000001.05", "壹万亿零壹元零伍分"},
        Row{"fullYi", "1234500000000", "壹万贰仟叁佰肆拾伍亿元整"}, Row{"gapInYi", "1000100000000", "壹万零壹亿元整"},
        Row{"gapsEverywhere", "2003000400050.60", "贰万零叁拾亿零肆拾万零伍拾元陆角整"},
        Row{"noYuan", "5000000000000.07", "伍万亿元零柒分"},
        Row{"thirteenDigits", "1234567890123.45", "壹万贰仟叁佰肆拾伍亿陆仟柒佰捌拾玖万零壹佰贰拾叁元肆角伍分"},
        Row{"negativeThirteen", "-1000000000000", "负壹万亿元整"},
        Row{"largest", "9999999999999.99", "玖万玖仟玖佰玖拾玖亿玖仟玖佰玖拾玖万玖仟玖佰玖拾玖元玖角玖分"},
        Row{"roundsUpTheGroup", "9999.995", "壹万元整"}, Row{"negative", "-300.20", "负叁佰元贰角整"},
        Row{"negativeNothing", "-0.001", "零元整"}),
    [](const auto &tested) { return std::string(tested.param.name); });

TEST(CapitalAmountLimits, RefusesWhatHasNoCapitals)
{
    EXPECT_THROW((void)values::capitalAmount(1e13L), std::out_of_range);
    EXPECT_THROW((void)values::capitalAmount(-1e13L), std::out_of_range);
    EXPECT_THROW((void)values::capitalAmount(std::numeric_limits<long double>::quiet_NaN()), std::out_of_range);
    // Rounds up to the first amount that has none.
    EXPECT_THROW((void)values::capitalAmount(9999999999999.999L), std::out_of_range);
    for (const long double none : {1e13L, -1e13L, 9999999999999.999L, std::numeric_limits<long double>::infinity()})
        EXPECT_FALSE(values::hasCapitals(none));
    EXPECT_TRUE(values::hasCapitals(9999999999999.99L));
    EXPECT_TRUE(values::hasCapitals(-0.01L));
}

} // namespace
