// SPDX-License-Identifier: MIT
// Numbers through display formats.
#include "values/displayformat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Row {
    const char *name;
    const char *format; ///< UTF-8
    long double value;
    const char *text;
};

class FormatFloat : public testing::TestWithParam<Row> { };

TEST_P(FormatFloat, showsTheNumber)
{
    EXPECT_EQ(values::formatFloat(QString::fromUtf8(GetParam().format), GetParam().value).toStdString(),
              GetParam().text);
}

constexpr char Money[] = ",0.00;-,0.00";
constexpr char Price[] = "￥,0.0000;-￥,0.0000";
constexpr char Whole[] = ",0;-,0";

const Row Rows[] = {
    {"Money", Money, 1234.5L, "1,234.50"},
    {"MoneyZero", Money, 0.0L, "0.00"},
    {"MoneyNegative", Money, -1234567.891L, "-1,234,567.89"},
    {"MoneyThousand", Money, 1000.0L, "1,000.00"},
    {"MoneyBelowThousand", Money, 999.99L, "999.99"},
    {"MoneyRoundsIntoThousand", Money, 999.995L, "1,000.00"},
    {"MoneyMillions", Money, 123456789.0L, "123,456,789.00"},
    {"MoneyHalfAwayFromZero", Money, 0.125L, "0.13"},
    {"MoneyNegativeHalfAwayFromZero", Money, -0.125L, "-0.13"},
    {"MoneyHalfOnTheDecimalDigits", Money, 1.005L, "1.01"},
    {"MoneyHalfOnTheDecimalDigitsAgain", Money, 2.675L, "2.68"},
    {"MoneyOfADouble", Money, static_cast<long double>(1.005), "1.00"},
    {"MoneyBelowHalf", Money, 0.1249999L, "0.12"},
    {"MoneyRoundsToNothing", Money, 0.004L, "0.00"},
    {"MoneyRoundsToACent", Money, 0.005L, "0.01"},
    {"MoneyNegativeRoundsToNothing", Money, -0.004L, "0.00"},
    {"MoneyNegativeZero", Money, -0.0L, "0.00"},
    {"MoneyNines", Money, 9.999L, "10.00"},
    {"MoneySumOfTenths", Money, 0.1L + 0.2L, "0.30"},
    {"Price", Price, 12.3456L, "￥12.3456"},
    {"PriceThousands", Price, 12345.6L, "￥12,345.6000"},
    {"PriceNegative", Price, -1.0L, "-￥1.0000"},
    {"PriceHalf", Price, 0.00005L, "￥0.0001"},
    {"Whole", Whole, 17.0L, "17"},
    {"WholeRounds", Whole, 2.5L, "3"},
    {"WholeNegative", Whole, -1234.5L, "-1,235"},
    {"WholeZero", Whole, 0.0L, "0"},
    {"OneSectionNegative", "0.00", -1.5L, "-1.50"},
    {"OneSectionNegativeBeforeLiterals", "￥0.00", -1.5L, "-￥1.50"},
    {"WithoutThousands", "0.00", 1234567.0L, "1234567.00"},
    {"ThousandsAnywhere", "0.00,", 1234567.0L, "1,234,567.00"},
    {"OptionalPlaces", "#,##0.##", 1234.5L, "1,234.5"},
    {"OptionalPlacesWithoutFraction", "#,##0.##", 1234.0L, "1,234"},
    {"OptionalWholePlace", "#.00", 0.5L, ".50"},
    {"OptionalPlacesOfNothing", "#.##", 0.0L, ""},
    {"LeastWholePlaces", "0000", 12.0L, "0012"},
    {"LeastWholePlacesWithThousands", ",0000000", 1234.0L, "0,001,234"},
    {"MoreDigitsThanPlaces", "00.0", 12345.67L, "12345.7"},
    {"WithoutWholePlace", ".00", 12.5L, "12.50"},
    {"LiteralsBetweenPlaces", "0-00-00", 12345.0L, "1-23-45"},
    {"LiteralsBehind", "0.00元", 3.0L, "3.00元"},
    {"QuotedLiterals", "'0#;'0.0\" ,;\"", 1.25L, "0#;1.3 ,;"},
    {"QuoteNeverClosed", "0'abc", 1.0L, "1abc"},
    {"SecondPointIsDropped", "0.0.0", 1.25L, "1.25"},
    {"ZeroSection", "0.00;-0.00;无", 0.0L, "无"},
    {"ZeroSectionOfWhatRoundsToNothing", "0.00;-0.00;无", -0.001L, "无"},
    {"EmptyNegativeSection", "0.0;;无", -2.0L, "-2.0"},
    {"EmptyZeroSection", "0.0;(0.0);", 0.0L, "0.0"},
    {"NegativeSectionOfItsOwn", "0.0;(0.00)", -2.5L, "(2.50)"},
    {"LiteralsOnly", "无", 5.0L, "无"},
    {"EmptyFormat", "", 1234.5L, "1234.5"},
    {"EmptyFormatOfNothing", "", -0.0L, "0"},
    {"EmptyFormatOfASum", "", 0.1L + 0.2L, "0.3"},
    {"EmptyFormatNegative", "", -12.0L, "-12"},
    {"EmptyFormatLarge", "", 1e20L, "1E20"},
    {"EmptyFirstSection", ";-0.00", 1.25L, "1.25"},
    {"EighteenWholeDigits", Money, 123456789012345678.0L, "123,456,789,012,345,678.00"},
    {"TooLargeForAFormat", Money, 1234567890123456789.0L, "1.23456789012346E18"},
    {"Tiny", Money, 1e-4900L, "0.00"},
    {"EmptyFormatSmall", "", 0.00004L, "0.00004"},
    {"EmptyFormatSmallest", "", 0.00001L, "0.00001"},
    {"EmptyFormatSmallNegative", "", -0.000125L, "-0.000125"},
    {"EmptyFormatTiny", "", 0.000004L, "4E-6"},
    {"EmptyFormatTinyNegative", "", -0.00000125L, "-1.25E-6"},
    {"EmptyFormatOfAThird", "", 1.0L / 3, "0.333333333333333"},
    {"EmptyFormatSmallThird", "", 0.0001L / 3, "0.0000333333333333333"},
    {"EmptyFormatFifteenDigits", "", 123456789012345.0L, "123456789012345"},
    {"EmptyFormatSixteenDigits", "", 1234567890123456.0L, "1.23456789012346E15"},
    {"EmptyFormatRoundsIntoSixteenDigits", "", 999999999999999.9L, "1E15"},
    {"Scientific", "0.00E+00", 12345.678L, "1.23E+04"},
    {"ScientificHalf", "0.00E+00", 1.005L, "1.01E+00"},
    {"ScientificHalfNegative", "0.00E+00", -1.005L, "-1.01E+00"},
    {"ScientificSmall", "0.00E+00", 0.00012345L, "1.23E-04"},
    {"ScientificCarries", "0.00E+00", 9.995L, "1.00E+01"},
    {"ScientificZero", "0.00E+00", 0.0L, "0.00E+00"},
    {"ScientificOfANegativePowerOnly", "0.00E-00", 12345.678L, "1.23E04"},
    {"ScientificOfANegativePower", "0.00E-00", 0.012L, "1.20E-02"},
    {"ScientificSmallLetter", "0.0e+000", 12345.0L, "1.2e+004"},
    {"ScientificSmallLetterWithoutPlus", "0.0e-0", 12345.0L, "1.2e4"},
    {"ScientificWithoutZeros", "0.0E+", 12345.0L, "1.2E+4"},
    {"ScientificPowerOfMoreDigits", "0.0E+0", 1.5e100L, "1.5E+100"},
    {"ScientificFourZeros", "0E+0000", 5.0L, "5E+0000"},
    {"ScientificFifthZeroIsAPlace", "0.0E+00000", 1.25L, "1.2E+00005"},
    {"ScientificWholePlaces", "000.0E+00", 12345.678L, "123.5E+02"},
    {"ScientificWholePlacesOfASmallNumber", "00.0E+00", 1.0L, "10.0E-01"},
    {"ScientificWithoutWholePlace", ".00E+00", 123.0L, ".12E+03"},
    {"ScientificOptionalPlaces", "0.###E+00", 1500.0L, "1.5E+03"},
    {"ScientificOptionalPlacesWithoutFraction", "#.##E+00", 1000.0L, "1E+03"},
    {"ScientificLarge", "0.00E+00", 1e20L, "1.00E+20"},
    {"ScientificWithLiterals", "'E+'0.0E+0' 元'", 1500.0L, "E+1.5E+3 元"},
    {"ScientificSections", "0.0E+0;(0.0E+0);无", -1500.0L, "(1.5E+3)"},
    {"ScientificZeroSection", "0.0E+0;(0.0E+0);无", 0.0L, "无"},
    {"ScientificNegativeSectionOnly", "0.00;0.0E+0", -1500.0L, "1.5E+3"},
    {"LetterEIsALiteral", "0.0E", 1.5L, "1.5E"},
    {"LetterEBeforeAPlace", "0E0", 15.0L, "1E5"},
    {"SemicolonInQuotes", "0.0';';-0.0\";\";'没;有'", -2.5L, "-2.5;"},
    {"SemicolonInQuotesOfZero", "0.0';';-0.0\";\";'没;有'", 0.0L, "没;有"},
    {"FourthSectionIsNothing", "0.0;-0.0;无;错", 3.0L, "3.0"},
    {"QuotedPlacesArePlain", "'#,##0.00='#,##0.00", 1234.5L, "#,##0.00=1,234.50"},
    {"OptionalPlacesOfThousands", "#,###", 1234567.0L, "1,234,567"},
    {"OptionalPlacesOfThousandsBelow", "#,###", 12.0L, "12"},
    {"OptionalPlaceBehindARequiredOne", "0.0#", 1.5L, "1.5"},
    {"OptionalPlaceBeforeARequiredOne", "0.#0", 1.5L, "1.50"},
    {"HalfAwayFromZeroInTens", "0", 24.5L, "25"},
    {"HalfAwayFromZeroInTensNegative", "0;-0", -24.5L, "-25"},
    {"HalfOfManyNines", "0.000", 9.9995L, "10.000"},
    {"HalfBelowOne", "0.0", 0.05L, "0.1"},
};

INSTANTIATE_TEST_SUITE_P(Formats, FormatFloat, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

TEST(FormatFloatOf, whatIsNoNumberIsNamed)
{
    EXPECT_EQ(values::formatFloat(u",0.00"_s, std::numeric_limits<long double>::infinity()), u"inf"_s);
    EXPECT_EQ(values::formatFloat(u",0.00"_s, std::numeric_limits<long double>::quiet_NaN()), u"nan"_s);
}

TEST(FormatFloatOf, centsReadFromTextComeBackAsTheyWere)
{
    for (int cents = 0; cents < 200'000; cents += 13) {
        const QString text = QString::number(cents / 100) + u'.' + QString::number(100 + cents % 100).sliced(1);
        ASSERT_EQ(values::formatFloat(u"0.00"_s, values::parseAmount(text)), text);
    }
}

} // namespace
