// SPDX-License-Identifier: MIT
// Values of fields and variables.
#include "report/values/evaluator.h"

#include "host/clientdataset.h"
#include "tests/report/samplepaper.h"
#include "toolkit/clock.h"
#include "values/displayformat.h"

#include <QDate>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace report;

class Values : public testing::Test {
protected:
    Values()
    {
        samplepaper::fill(m_list, samplepaper::names("Name,Fee"),
                          {{"甲", "  0.10"}, {"乙", "0.2"}, {"丙", ""}, {"丁", "1234.005"}});
        samplepaper::fill(m_header, samplepaper::names("Hospital,Name"), {{"卫生院", "没人看"}});
        toolkit::setClock([] { return QDate(2026, 11, 21); });
    }
    ~Values() override { toolkit::setClock({}); }

    std::string text(const char *pattern, Place place = {})
    {
        const Evaluator evaluator(RowSource(m_list), {RowSource(m_header)}, m_answer);
        return evaluator.evaluate(parsePattern(QString::fromUtf8(pattern)), place).text.toStdString();
    }

    TClientDataSet m_list;
    TClientDataSet m_header;
    GetValue m_answer;
    QStringList m_asked;
};

TEST_F(Values, FieldsOfTheListComeFirstThenHeadersThenVariables)
{
    m_answer = [this](const QString &name, QVariant &value) {
        m_asked.append(name);
        value = QStringLiteral("回答");
    };
    EXPECT_EQ(text("[name]/[HOSPITAL]/[Other]", {1, 0, 4, 1}), "乙/卫生院/回答");
    EXPECT_EQ(m_asked, QStringList{QStringLiteral("Other")});
}

TEST_F(Values, VariablesKeepTheReportsOwnValueUnlessAnswered)
{
    m_answer = [this](const QString &name, QVariant &value) {
        m_asked.append(name + u'=' + value.toString());
        if (name == u"page")
            value = 99;
    };
    EXPECT_EQ(text("[Page] [page] [Row] [Today] [Nobody].", {2, 0, 4, 7}), "7 99 3 2026-11-21 .");
    EXPECT_EQ(m_asked,
              (QStringList{QStringLiteral("Page=7"), QStringLiteral("page=7"), QStringLiteral("Row=3"),
                           QStringLiteral("Today=2026-11-21"), QStringLiteral("Nobody=")}));
}

TEST_F(Values, SumsAreExactAndOverTheGivenRows)
{
    EXPECT_EQ(text("[Sum(Fee)|0.00####]", {0, 0, 2, 1}), "0.30");
    EXPECT_EQ(text("[Sum(Fee)|,0.00]", {0, 0, 4, 1}), "1,234.31");
    EXPECT_EQ(text("[Sum(Fee)|0.00]", {0, 2, 2, 1}), "0.00");
    EXPECT_EQ(text("[Count()]项", {0, 1, 4, 1}), "3项");
    EXPECT_EQ(text("[Capital(Sum(Fee))]", {0, 0, 2, 1}), "叁角整");
}

TEST_F(Values, SumsTooLargeToBeExactAreRefused)
{
    samplepaper::fill(m_list, samplepaper::names("Name,Fee"), {{"甲", "8999999999999"}, {"乙", "0.5"}, {"丙", "2"}});
    EXPECT_THROW((void)text("[Sum(Fee)]", {0, 0, 2, 1}), ValueError);
}

TEST_F(Values, NumbersRoundAsDecimals)
{
    m_answer = [](const QString &, QVariant &value) { value = 1.005; };
    EXPECT_EQ(text("[Amount|0.00]"), "1.01");
    EXPECT_EQ(text("[Amount]"), "1.005");
    EXPECT_EQ(text("[Fee|0.00]", {3, 0, 4, 1}), "1234.01");
}

TEST_F(Values, AmountsWithoutCapitalsAreHidden)
{
    samplepaper::fill(m_list, samplepaper::names("Name,Fee"), {{"甲", "9999999999999.99"}, {"乙", "10000000000000"}});
    EXPECT_EQ(text("[Capital(Fee)]", {0, 0, 1, 1}), "玖万玖仟玖佰玖拾玖亿玖仟玖佰玖拾玖万玖仟玖佰玖拾玖元玖角玖分");
    EXPECT_EQ(text("人民币：[Capital(Fee)]", {1, 0, 1, 1}), "人民币：####");
    EXPECT_EQ(text("[Fee|,0.00]", {1, 0, 1, 1}), "10,000,000,000,000.00");
}

TEST_F(Values, EmptyAmountsStayEmpty)
{
    EXPECT_EQ(text("[Fee|0.00]", {2, 0, 4, 1}), "");
    EXPECT_EQ(text("[Capital(Fee)]", {2, 0, 4, 1}), "");
    EXPECT_EQ(text("[Unanswered|0.00]"), "");
}

TEST_F(Values, FieldsWithoutRowsAreEmpty)
{
    samplepaper::fill(m_list, samplepaper::names("Name,Fee"), {});
    EXPECT_EQ(text("[Name]|[Sum(Fee)|0.00]|[Count()]"), "|0.00|0");
}

TEST_F(Values, OnlyTheVisibleRowsOfAFilteredSet)
{
    m_list.setFilter(QStringLiteral("Name='丁'"));
    m_list.setFiltered(true);
    const Evaluator evaluator{RowSource(m_list), {}, {}};
    EXPECT_EQ(evaluator.rowCount(), 1);
    EXPECT_EQ(evaluator.listField(QStringLiteral("Fee"), 0), QStringLiteral("1234.005"));
    EXPECT_EQ(m_list.text(QStringLiteral("Name")), QStringLiteral("丁"));
}

TEST_F(Values, ErrorsNameTheFieldAndItsValue)
{
    const struct {
        const char *pattern;
        const char *reason;
    } rows[] = {{"[Name|0.00]", "“Name”的值“甲”不是有效的数值"},
                {"[Sum(Name)]", "“Name”的值“甲”不是有效的数值"},
                {"[Sum(Hospital)]", "清单中没有字段“Hospital”"},
                {"[Sum(Nobody)]", "清单中没有字段“Nobody”"}};
    for (const auto &[pattern, reason] : rows) {
        try {
            (void)text(pattern, {0, 0, 4, 1});
            ADD_FAILURE() << pattern << " accepted";
        } catch (const ValueError &error) {
            EXPECT_STREQ(error.what(), reason);
        }
    }
}

TEST_F(Values, WhatTheCallbackThrowsPasses)
{
    m_answer = [](const QString &name, QVariant &) { (void)values::parseInteger(name.right(2)); };
    EXPECT_THROW((void)text("[FTYPExx]"), std::invalid_argument);
}

} // namespace
