// SPDX-License-Identifier: MIT
// Amounts are exact.
#include "values/decimal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

using namespace values;

std::string printed(std::optional<Units> units, int scale)
{
    return units ? std::string(UnitsText(*units, scale).text()) : "nothing";
}

struct NumberRow {
    const char *name;
    double number;
    int scale;
    const char *expected;
};

class FromNumber : public testing::TestWithParam<NumberRow> { };

TEST_P(FromNumber, Prints)
{
    EXPECT_EQ(printed(unitsOf(GetParam().number, GetParam().scale), GetParam().scale), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(, FromNumber,
                         testing::Values(NumberRow{"Zero", 0, 2, "0.00"}, NumberRow{"Cents", 0.07, 2, "0.07"},
                                         NumberRow{"NegativeCents", -0.05, 2, "-0.05"},
                                         NumberRow{"Padded", 1234.5, 2, "1234.50"}, NumberRow{"NoScale", 42, 0, "42"},
                                         NumberRow{"FourDecimals", 1221.855, 4, "1221.8550"},
                                         NumberRow{"NearestBelow", 0.1 + 0.2, 2, "0.30"},
                                         NumberRow{"NearestOfALargeAmount", 9999999999999.99, 2, "9999999999999.99"},
                                         NumberRow{"HalfAwayFromZero", 0.125, 2, "0.13"},
                                         NumberRow{"NegativeHalfAwayFromZero", -0.125, 2, "-0.13"},
                                         NumberRow{"Huge", 1e30, 2, "1000000000000000019884624838656.00"},
                                         NumberRow{"TooLarge", 1e38, 2, "nothing"},
                                         NumberRow{"NotANumber", std::nan(""), 2, "nothing"},
                                         NumberRow{"Infinite", std::numeric_limits<double>::infinity(), 2, "nothing"}),
                         [](const auto &row) { return row.param.name; });

struct TextRow {
    const char *name;
    const char *text;
    int scale;
    const char *expected;
};

class FromText : public testing::TestWithParam<TextRow> { };

TEST_P(FromText, Prints)
{
    EXPECT_EQ(printed(parseUnits(GetParam().text, GetParam().scale), GetParam().scale), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    , FromText,
    testing::Values(TextRow{"Plain", "12.34", 2, "12.34"}, TextRow{"Blanks", "  -12.3 ", 2, "-12.30"},
                    TextRow{"RoundsHalfAway", "0.005", 2, "0.01"}, TextRow{"RoundsDown", "0.00499", 2, "0.00"},
                    TextRow{"NegativeRounds", "-9.995", 2, "-10.00"}, TextRow{"Whole", "7", 2, "7.00"},
                    TextRow{"MostDigits", "99999999999999999999999999999999999999", 0,
                            "99999999999999999999999999999999999999"},
                    TextRow{"TooManyDigits", "99999999999999999999999999999999999999", 1, "nothing"},
                    TextRow{"Empty", "", 2, "nothing"}, TextRow{"Letters", "12a", 2, "nothing"},
                    TextRow{"Exponent", "1e3", 2, "nothing"}, TextRow{"TwoPoints", "1.2.3", 2, "nothing"}),
    [](const auto &row) { return row.param.name; });

TEST(Rescaled, RoundsHalvesAwayFromZero)
{
    EXPECT_EQ(printed(rescaled(1005, 3, 2), 2), "1.01");
    EXPECT_EQ(printed(rescaled(1004, 3, 2), 2), "1.00");
    EXPECT_EQ(printed(rescaled(-1005, 3, 2), 2), "-1.01");
    EXPECT_EQ(printed(rescaled(12, 0, 4), 4), "12.0000");
    EXPECT_EQ(rescaled(unitsOf(1e30, 0).value(), 0, 10), std::nullopt);
}

TEST(FitsDigits, CountsAllDigits)
{
    EXPECT_TRUE(fitsDigits(99999, 5));
    EXPECT_TRUE(fitsDigits(-99999, 5));
    EXPECT_FALSE(fitsDigits(100000, 5));
    EXPECT_FALSE(fitsDigits(-100000, 5));
}

TEST(ExactNumber, IsTheNumberOfTheDecimal)
{
    EXPECT_EQ(exactNumber(10, 1), 1.0);
    EXPECT_EQ(exactNumber(30, 2), 0.3);
    EXPECT_EQ(exactNumber(-999999999999999, 2), -9999999999999.99);
    EXPECT_EQ(exactNumber(Units{1} << 54, 0), std::nullopt);
}

TEST(Sums, TenTimesATenthIsOne)
{
    Units sum = 0;
    for (int i = 0; i < 10; ++i)
        sum += unitsOf(0.1, 2).value();
    EXPECT_EQ(exactNumber(sum, 2), 1.0);
}

} // namespace
