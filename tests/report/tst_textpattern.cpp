// SPDX-License-Identifier: MIT
// Texts with names in place.
#include "report/template/textpattern.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace report;

std::string shown(const TextPattern &pattern)
{
    QString text;
    for (const PatternPiece &piece : pattern.pieces) {
        text += u'"' + piece.literal + u'"';
        if (!piece.hasExpression)
            continue;
        const Expression &expression = piece.expression;
        static const char *const Kinds[] = {"name", "sum", "count"};
        text += u' ' + QString::fromLatin1(Kinds[static_cast<int>(expression.kind)]) + u' ' + expression.name;
        if (expression.inCapitals)
            text += QStringLiteral(" capitals");
        if (!expression.format.isEmpty())
            text += u' ' + expression.format;
        text += u'\n';
    }
    return text.toStdString();
}

struct Row {
    const char *name;
    const char *text;
    const char *result;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

class Pattern : public testing::TestWithParam<Row> { };

TEST_P(Pattern, IsTakenApart)
{
    EXPECT_EQ(shown(parsePattern(QString::fromUtf8(GetParam().text))), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Table, Pattern,
                         testing::Values(Row{"nothing", "", ""}, Row{"literal", "姓名", "\"姓名\""},
                                         Row{"field", "[PatientName]", "\"\" name PatientName\n"},
                                         Row{"between", "第 [Page] 页", "\"第 \" name Page\n\" 页\""},
                                         Row{"chineseName", "[备注]", "\"\" name 备注\n"},
                                         Row{"blanks", "[ Fee |0.00]", "\"\" name Fee 0.00\n"},
                                         Row{"format", "[Fee|,0.00;-,0.00]", "\"\" name Fee ,0.00;-,0.00\n"},
                                         Row{"sum", "[sum( Fee )|0.00]", "\"\" sum Fee 0.00\n"},
                                         Row{"count", "[Count()]", "\"\" count \n"},
                                         Row{"capitals", "[Capital(FreeFee)]", "\"\" name FreeFee capitals\n"},
                                         Row{"capitalsOfSum", "[CAPITAL(Sum(Fee))]", "\"\" sum Fee capitals\n"},
                                         Row{"bracket", "[[注]", "\"[注]\""},
                                         Row{"bracketAndField", "[[[Fee]", "\"[\" name Fee\n"}),
                         [](const auto &tested) { return std::string(tested.param.name); });

class BadPattern : public testing::TestWithParam<Row> { };

TEST_P(BadPattern, IsRefusedWithTheReason)
{
    try {
        (void)parsePattern(QString::fromUtf8(GetParam().text));
        FAIL() << "accepted";
    } catch (const std::invalid_argument &error) {
        EXPECT_STREQ(error.what(), GetParam().result);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, BadPattern,
    testing::Values(Row{"open", "金额[Fee", "“[”没有对应的“]”"}, Row{"empty", "[]", "“”不是字段名、变量名或函数"},
                    Row{"digit", "[1Fee]", "“1Fee”不是字段名、变量名或函数"},
                    Row{"unknownFunction", "[Average(Fee)]", "“Average(Fee)”不是字段名、变量名或函数"},
                    Row{"emptyFormat", "[Fee|]", "“|”后面没有显示格式"},
                    Row{"countOfField", "[Count(Fee)]", "函数 Count() 的括号中不写内容"},
                    Row{"sumOfNothing", "[Sum()]", "“”不是字段名、变量名或函数"},
                    Row{"sumOfSum", "[Sum(Sum(Fee))]", "“Sum(Fee)”不是字段名、变量名或函数"},
                    Row{"capitalsWithFormat", "[Capital(Fee)|0.00]", "大写金额不能再带显示格式"}),
    [](const auto &tested) { return std::string(tested.param.name); });

TEST(PatternNumbers, AreTextsOfOneFormattedValue)
{
    EXPECT_TRUE(parsePattern(QStringLiteral("[Fee|0.00]")).isNumber());
    EXPECT_FALSE(parsePattern(QStringLiteral("￥[Fee|0.00]")).isNumber());
    EXPECT_FALSE(parsePattern(QStringLiteral("[Fee]")).isNumber());
    EXPECT_TRUE(parsePattern(QStringLiteral("￥[Fee|0.00]")).holdsNumber());
    EXPECT_TRUE(parsePattern(QStringLiteral("[Capital(Fee)]")).holdsNumber());
    EXPECT_FALSE(parsePattern(QStringLiteral("[Fee]元")).holdsNumber());
}

} // namespace
