// SPDX-License-Identifier: MIT
// Amounts and whole numbers read from text, and rounding to cents.
#include "values/displayformat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Amount {
    const char *name;
    std::string text;
    long double value;
};

class ParseAmount : public testing::TestWithParam<Amount> { };

TEST_P(ParseAmount, isCorrectlyRounded)
{
    EXPECT_EQ(values::parseAmount(std::string_view(GetParam().text)), GetParam().value);
    EXPECT_EQ(values::parseAmount(QString::fromStdString(GetParam().text)), GetParam().value);
}

const Amount Amounts[] = {
    {"FixedWidth", "         123.45", 123.45L},
    {"BlanksAround", " \t12.5\r\n", 12.5L},
    {"Zero", "           0.00", 0.0L},
    {"Negative", "          -0.01", -0.01L},
    {"PlusSign", "+7", 7.0L},
    {"WithoutWholePart", ".5", 0.5L},
    {"WithoutFraction", "5.", 5.0L},
    {"LeadingZeros", "000012.50", 12.5L},
    {"FourDecimals", "        0.1234", 0.1234L},
    {"Exponent", "1.5e3", 1500.0L},
    {"NegativeExponent", "15E-3", 0.015L},
    {"ExponentWithPlus", "2e+2", 200.0L},
    {"NineteenDigits", "9999999999999999.999", 9999999999999999.999L},
    {"ManyDigits", "0.10000000000000000000000000000000000000001", 0.10000000000000000000000000000000000000001L},
    {"ManyWholeDigits", "123456789012345678901234567890", 123456789012345678901234567890.0L},
    {"LargeExponent", "1e300", 1e300L},
    {"ZeroWithALargeExponent", "0e99999999999", 0.0L},
    {"TooSmallIsZero", "1e-99999999999", 0.0L},
    {"TooSmallWithoutExponent", "0." + std::string(6000, '0') + "1", 0.0L},
    {"ZerosTakenBackByTheExponent", "1" + std::string(6000, '0') + "e-6000", 1.0L},
};

INSTANTIATE_TEST_SUITE_P(Texts, ParseAmount, testing::ValuesIn(Amounts),
                         [](const testing::TestParamInfo<Amount> &row) { return row.param.name; });

struct Refused {
    const char *name;
    std::string text;
};

class RefusedAmount : public testing::TestWithParam<Refused> { };

TEST_P(RefusedAmount, throwsAMessageWithTheText)
{
    try {
        (void)values::parseAmount(std::string_view(GetParam().text));
        FAIL() << "taken for a number";
    } catch (const std::invalid_argument &error) {
        EXPECT_EQ(error.what(), "“" + GetParam().text + "”不是有效的数值。");
    }
}

const Refused RefusedAmounts[] = {
    {"Empty", ""},
    {"Blanks", "   "},
    {"Word", "abc"},
    {"Sign", "-"},
    {"Point", "."},
    {"TwoPoints", "1.2.3"},
    {"TwoSigns", "--1"},
    {"BlankInside", "1 2"},
    {"Comma", "1,234.00"},
    {"Currency", "￥1"},
    {"OpenExponent", "1e"},
    {"OpenExponentSign", "1e+"},
    {"FractionExponent", "1e1.5"},
    {"Infinity", "inf"},
    {"NotANumber", "nan"},
    {"Hexadecimal", "0x10"},
    {"TrailingText", "12元"},
    {"WideDigits", "１２"},
};

INSTANTIATE_TEST_SUITE_P(Texts, RefusedAmount, testing::ValuesIn(RefusedAmounts),
                         [](const testing::TestParamInfo<Refused> &row) { return row.param.name; });

TEST(ParseAmountOf, aNumberBeyondAllRangeIsRefused)
{
    EXPECT_THROW((void)values::parseAmount(u"1e99999"_s), std::invalid_argument);
    EXPECT_THROW((void)values::parseAmount("1" + std::string(6000, '0') + "e-100"), std::invalid_argument);
}

TEST(ParseAmountOf, agreesWithTheCompilerOverManyCents)
{
    // The exact path, against a division of whole numbers that the processor rounds correctly.
    for (int cents = -250'000; cents < 250'000; cents += 7) {
        const std::string sign = cents < 0 ? "-" : "";
        const std::string fraction = std::to_string(100 + std::abs(cents) % 100).substr(1);
        const std::string text = sign + std::to_string(std::abs(cents) / 100) + "." + fraction;
        ASSERT_EQ(values::parseAmount(std::string_view(text)), static_cast<long double>(cents) / 100) << text;
    }
}

TEST(ParseInteger, takesLeadingBlanksAndASign)
{
    EXPECT_EQ(values::parseInteger(u"1"_s), 1);
    EXPECT_EQ(values::parseInteger(u"  12"_s), 12);
    EXPECT_EQ(values::parseInteger(u"-3"_s), -3);
    EXPECT_EQ(values::parseInteger(u" +4"_s), 4);
    EXPECT_EQ(values::parseInteger(u"007"_s), 7);
    EXPECT_EQ(values::parseInteger(u"2147483647"_s), 2147483647);
    EXPECT_EQ(values::parseInteger(u"-2147483648"_s), std::numeric_limits<int>::min());
}

TEST(ParseInteger, refusesEverythingElse)
{
    for (const QString &text : {u""_s, u" "_s, u"1 "_s, u"1.0"_s, u"+"_s, u"-"_s, u"+-1"_s, u"--1"_s, u"- 1"_s, u"a"_s,
                                u"1a"_s, u"0x1"_s, u"$1"_s, u"１"_s, u"\t1"_s, u"2147483648"_s, u"1e2"_s}) {
        try {
            (void)values::parseInteger(text);
            ADD_FAILURE() << text.toStdString();
        } catch (const std::invalid_argument &error) {
            EXPECT_EQ(error.what(), (u'“' + text + u"”不是有效的整数。"_s).toStdString());
        }
    }
}

struct Rounding {
    const char *name;
    double value;
    double rounded;
};

class RoundToCents : public testing::TestWithParam<Rounding> { };

TEST_P(RoundToCents, takesHalvesToTheEvenCent)
{
    const double rounded = values::roundToCents(GetParam().value);
    EXPECT_EQ(rounded, GetParam().rounded);
    EXPECT_FALSE(rounded == 0 && std::signbit(rounded)) << "a negative zero";
}

const Rounding Roundings[] = {
    {"Whole", 12, 12},
    {"Cents", 123.45, 123.45},
    {"HalfToEvenBelow", 0.125, 0.12},
    {"HalfToEvenAbove", 0.375, 0.38},
    {"HalfOfALargeNumber", 1000000.625, 1000000.62},
    {"HalfOfAnOddCent", 1000000.875, 1000000.88},
    {"NegativeHalfToEven", -0.125, -0.12},
    {"NegativeHalfOfAnOddCent", -0.375, -0.38},
    {"JustBelowAHalf", 0.12499999999999999, 0.12},
    {"JustAboveAHalf", 0.12500000000000003, 0.13},
    {"StoredBelowTheHalfThatIsWritten", 2.675, 2.67},
    {"StoredAboveTheHalfThatIsWritten", 2.345, 2.35},
    {"StoredBelowOne", 1.005, 1.0},
    {"Up", 0.126, 0.13},
    {"Down", 0.124, 0.12},
    {"Nothing", 0, 0},
    {"RoundsToNothing", 0.005, 0.01}, // stored as 0.005000000000000000104
    {"BelowHalfACent", 0.0049, 0},
    {"NegativeRoundsToNothing", -0.001, 0},
    {"Billions", 9876543210.127, 9876543210.13},
};

INSTANTIATE_TEST_SUITE_P(Values, RoundToCents, testing::ValuesIn(Roundings),
                         [](const testing::TestParamInfo<Rounding> &row) { return row.param.name; });

TEST(RoundToCentsOf, everyCentIsItself)
{
    for (int cents = -100'000; cents <= 100'000; ++cents)
        ASSERT_EQ(values::roundToCents(cents / 100.0), cents / 100.0) << cents;
}

} // namespace
