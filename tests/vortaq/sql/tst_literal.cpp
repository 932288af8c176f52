// SPDX-License-Identifier: MIT
// Written values converted as T-SQL converts them.
#include "values/decimaltext.h"
#include "vortaq/sql/datetext.h"
#include "vortaq/sql/literal.h"

#include <gtest/gtest.h>

using namespace vortaq::sql;

namespace {

constexpr auto checked = Conversion::Mode::Checked;
constexpr auto cut = Conversion::Mode::Cut;
constexpr auto store = Conversion::Mode::Store;

constexpr Type text(int size)
{
    return varcharType(size);
}
constexpr Type dateType{Kind::Date, 0, 0};
constexpr Type momentType{Kind::DateTime, 0, 0};
constexpr Type floatType{Kind::Float, 0, 0};

struct Row {
    const char *name;
    const char *from;
    Type fromType;
    Type to;
    Conversion::Mode mode;
    const char *result; // "!": not convertible, "long": too long, "range": out of range
};

std::string shown(const ConvertedText &converted)
{
    switch (converted.misfit) {
    case Misfit::None:
        return converted.text;
    case Misfit::NotConvertible:
        return "!";
    case Misfit::TooLong:
        return "long";
    case Misfit::OutOfRange:
        return "range";
    }
    return {};
}

class Conversions : public testing::TestWithParam<Row> { };

TEST_P(Conversions, AsInTSql)
{
    const Row &row = GetParam();
    EXPECT_EQ(shown(convertText(row.from, row.fromType, row.to, row.mode)), row.result);
}

const auto rowName = [](const testing::TestParamInfo<Row> &row) { return std::string(row.param.name); };

INSTANTIATE_TEST_SUITE_P(ToVarchar, Conversions,
                         testing::Values(Row{"fits", "病房", text(2), text(2), store, "病房"},
                                         Row{"charactersNotBytes", "县级医院", text(4), text(4), store, "县级医院"},
                                         Row{"tooLong", "县级医院", text(4), text(3), store, "long"},
                                         Row{"blanksMayGo", "县级  ", text(4), text(3), store, "县级 "},
                                         Row{"cut", "县级医院", text(4), text(3), cut, "县级医"},
                                         Row{"comparedWhole", "县级医院", text(4), text(3), checked, "县级医院"},
                                         Row{"intFits", "-12", intType(), text(3), cut, "-12"},
                                         Row{"intStar", "1234", intType(), text(3), cut, "*"},
                                         Row{"intStored", "1234", intType(), text(3), store, "long"},
                                         Row{"decimalCut", "12.50", decimalType(4, 2), text(3), cut, "range"}),
                         rowName);

INSTANTIATE_TEST_SUITE_P(
    ToNumbers, Conversions,
    testing::Values(
        Row{"digits", " +007 ", text(6), intType(), checked, "7"},
        Row{"minus", "-5", text(2), intType(), checked, "-5"}, Row{"minusZero", "-0", text(2), intType(), checked, "0"},
        Row{"emptyIsZero", "", text(1), intType(), checked, "0"}, Row{"point", "1.0", text(3), intType(), checked, "!"},
        Row{"word", "abc", text(3), intType(), checked, "!"}, Row{"signAlone", "-", text(1), intType(), checked, "!"},
        Row{"largest", "2147483647", text(10), intType(), checked, "2147483647"},
        Row{"smallest", "-2147483648", text(11), intType(), checked, "-2147483648"},
        Row{"above", "2147483648", text(10), intType(), checked, "range"},
        Row{"below", "-2147483649", text(11), intType(), checked, "range"},
        Row{"huge", "99999999999999999999999999", text(30), intType(), checked, "range"},
        Row{"decimalLosesDecimals", "-2.99", decimalType(3, 2), intType(), store, "-2"},
        Row{"decimalToZero", "-0.99", decimalType(3, 2), intType(), store, "0"},
        Row{"scaled", "12", intType(), decimalType(15, 2), checked, "12.00"},
        Row{"textScaled", " 12.5", text(5), decimalType(15, 2), checked, "12.50"},
        Row{"halfUp", "0.005", text(5), decimalType(15, 2), store, "0.01"},
        Row{"halfAway", "-0.005", text(6), decimalType(15, 2), store, "-0.01"},
        Row{"notQuiteHalf", "0.0049999", text(9), decimalType(15, 2), store, "0.00"},
        Row{"carry", "99.995", text(6), decimalType(5, 2), store, "100.00"},
        Row{"carryTooFar", "999.995", text(7), decimalType(5, 2), store, "range"},
        Row{"negativeToZero", "-0.001", text(6), decimalType(5, 2), store, "0.00"},
        Row{"emptyIsNoDecimal", "", text(1), decimalType(5, 2), checked, "!"},
        Row{"tooWide", "1000", intType(), decimalType(5, 2), store, "range"},
        Row{"exponent", "1e3", text(3), decimalType(5, 2), checked, "!"},
        Row{"toFloat", "1.50", decimalType(3, 2), floatType, checked, "1.50"},
        Row{"wordToFloat", "x", text(1), floatType, checked, "!"}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    ToDates, Conversions,
    testing::Values(Row{"iso", "2024-02-29", text(10), dateType, checked, "2024-02-29"},
                    Row{"short", "2024-2-9", text(8), dateType, checked, "2024-02-09"},
                    Row{"slashes", "2024/02/09", text(10), dateType, checked, "2024-02-09"},
                    Row{"points", "2024.02.09", text(10), dateType, checked, "2024-02-09"},
                    Row{"digitsOnly", "20240209", text(8), dateType, checked, "2024-02-09"},
                    Row{"empty", "  ", text(2), dateType, checked, "1900-01-01"},
                    Row{"timeDropped", "2024-02-09 10:11:12", text(19), dateType, checked, "2024-02-09"},
                    Row{"moment", "2024-02-09", text(10), momentType, checked, "2024-02-09 00:00:00"},
                    Row{"dateToMoment", "2024-02-09", dateType, momentType, checked, "2024-02-09 00:00:00"},
                    Row{"momentToDate", "2024-02-09 10:11:12", momentType, dateType, checked, "2024-02-09"},
                    Row{"joined", "2024-02-09T10:11:12.5", text(21), momentType, checked, "2024-02-09 10:11:12.500"},
                    Row{"zeroFraction", "2024-02-09 1:11:12.0", text(20), momentType, checked, "2024-02-09 01:11:12"},
                    Row{"noSeconds", " 2024-02-09  10:11 ", text(20), momentType, checked, "2024-02-09 10:11:00"},
                    Row{"noLeapYear", "2023-02-29", text(10), dateType, checked, "!"},
                    Row{"century", "1900-02-29", text(10), dateType, checked, "!"},
                    Row{"month13", "2024-13-01", text(10), dateType, checked, "!"},
                    Row{"day0", "2024-01-00", text(10), dateType, checked, "!"},
                    Row{"year0", "0000-01-01", text(10), dateType, checked, "!"},
                    Row{"mixed", "2024-01/02", text(10), dateType, checked, "!"},
                    Row{"shortDigits", "202419", text(6), dateType, checked, "!"},
                    Row{"word", "昨天", text(2), dateType, checked, "!"},
                    Row{"hour24", "2024-02-09 24:00:00", text(19), dateType, checked, "!"},
                    Row{"trailing", "2024-02-09x", text(11), dateType, checked, "!"},
                    Row{"danglingT", "2024-02-09T", text(11), dateType, checked, "!"},
                    Row{"noSeparator", "2024-02-0910:11", text(15), dateType, checked, "!"}),
    rowName);

TEST(TypeOfNumber, IntThenDecimal)
{
    EXPECT_EQ(typeName(typeOfNumber("2147483647")), "int");
    EXPECT_EQ(typeName(typeOfNumber("2147483648")), "decimal(10,0)");
    EXPECT_EQ(typeName(typeOfNumber("0.50")), "decimal(2,2)");
    EXPECT_EQ(typeName(typeOfNumber("0012.5")), "decimal(3,1)");
    EXPECT_EQ(typeName(typeOfNumber("5.")), "decimal(1,0)");
    EXPECT_EQ(typeName(typeOfNumber("123456789012345678901234567890123456789")), "null");
}

TEST(Unquoted, DoubledQuotesBecomeOne)
{
    EXPECT_EQ(unquoted("''"), "");
    EXPECT_EQ(unquoted("''''"), "'");
    EXPECT_EQ(unquoted("'a''b'''"), "a'b'");
    EXPECT_EQ(unquoted("'王''医生'"), "王'医生");
}

TEST(DecimalText, BlanksAroundOnly)
{
    EXPECT_FALSE(values::parseDecimal("1 2").has_value());
    EXPECT_FALSE(values::parseDecimal(".").has_value());
    EXPECT_FALSE(values::parseDecimal("\t1").has_value());
    EXPECT_EQ(values::parseDecimal("  00.10 ")->text(), "0.10");
    EXPECT_EQ(values::parseDecimal("-.5")->text(), "-0.5");
}

} // namespace
