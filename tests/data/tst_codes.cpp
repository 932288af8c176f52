// SPDX-License-Identifier: MIT
// Words for code values.
#include "data/codes.h"

#include "data/statements/recordcolumns.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Row {
    const char *name;
    const char *code;
    const char *history; ///< UTF-8
    const char *refused;
};

class Status : public testing::TestWithParam<Row> { };

TEST_P(Status, hasItsWordInTheHistory)
{
    EXPECT_EQ(data::statusName(QString::fromUtf8(GetParam().code)).toStdString(), GetParam().history);
}

TEST_P(Status, hasItsWordInARefusal)
{
    EXPECT_EQ(data::refusedStatusName(QString::fromUtf8(GetParam().code)).toStdString(), GetParam().refused);
}

const Row Rows[] = {
    {"Made", "1", "制单", ""},         {"Reported", "2", "上报", "上报"}, {"FirstReview", "3", "一审", "一级审核"},
    {"SecondReview", "4", "二审", ""}, {"Returned", "9", "退单", ""},     {"Gone", "", "", "取消"},
    {"Unknown", "5", "", ""},          {"BlankBehind", "1 ", "", ""},
};

INSTANTIATE_TEST_SUITE_P(Values, Status, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

TEST(ExpenseKind, hasTheWordsThatTheListsGetFromTheDatabase)
{
    for (const char16_t *code : {u"21", u"22", u"23", u"29", u"90"}) {
        const QString kind = QString::fromUtf16(code);
        const QString branch = u"when '"_s + kind + u"' then '"_s + data::expenseKindName(kind) + u"'"_s;
        EXPECT_TRUE(data::expenseNameColumn().contains(branch)) << branch.toStdString();
    }
    EXPECT_EQ(data::expenseNameColumn().count(u"when"_s), 5);
}

TEST(ExpenseKind, hasNoWordForAnUnknownCode)
{
    EXPECT_EQ(data::expenseKindName(u"24"_s), QString());
    EXPECT_EQ(data::expenseKindName(QString()), QString());
}

} // namespace
