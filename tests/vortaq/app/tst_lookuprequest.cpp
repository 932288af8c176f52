// SPDX-License-Identifier: MIT
// Tests of the look-up's statement, first filter and place.
#include "vortaq/app/lookup/lookuprequest.h"

#include <gtest/gtest.h>

namespace vortaq::test {

LookupRequest organisations()
{
    LookupRequest request;
    request.table = QStringLiteral("p_ylfwdw");
    request.where = QStringLiteral(" OrgCode like '4210%'");
    request.fieldList = QStringLiteral("OrgCode as 医疗服务单位代码,OrgName as 医疗服务单位名称");
    request.customField = QStringLiteral("OrgCode");
    return request;
}

TEST(LookupRequest, TheStatementOrdersByTheCode)
{
    EXPECT_EQ(
        lookupStatement(organisations()),
        QStringLiteral("select OrgCode as 医疗服务单位代码,OrgName as 医疗服务单位名称 from p_ylfwdw where  OrgCode "
                       "like '4210%' order by OrgCode"));
}

TEST(LookupRequest, AnOrderOfTheModulesOwnIsKept)
{
    LookupRequest request = organisations();
    request.orderBy = QStringLiteral("OrgName desc");
    EXPECT_TRUE(lookupStatement(request).endsWith(QStringLiteral(" order by OrgName desc")));
}

TEST(LookupRequest, BlankPartsAreLeftOut)
{
    LookupRequest request;
    request.table = QStringLiteral("t");
    request.where = QStringLiteral(" ");
    request.fieldList = QStringLiteral("a,b");
    EXPECT_EQ(lookupStatement(request), QStringLiteral("select a,b from t"));
}

TEST(LookupRequest, TheCodeColumnIsFoundByItsField)
{
    LookupRequest request = organisations();
    EXPECT_EQ(codeColumn(request), 0);
    request.fieldList = QStringLiteral("OrgName as 名称, ORGCODE as 代码");
    EXPECT_EQ(codeColumn(request), 1);
    request.customField = QStringLiteral("Other");
    EXPECT_EQ(codeColumn(request), 0);
}

TEST(LookupRequest, TheFirstFilterFollowsTheKey)
{
    struct Row {
        char16_t key;
        const char *filter;
    };
    const Row rows[] = {{u'A', "A"}, {u'Z', "Z"}, {u'0', "0"}, {u'9', "9"}, {0x60, "0"}, {0x69, "9"}, // numeric pad
                        {0, ""}, // Delete and Backspace
                        {0x0D, ""},  {0x20, ""},  {0x25, ""},  {0x28, ""}, // Enter, blank, arrows
                        {0x6A, ""},  {0x70, ""},  {0xBA, ""},  {0xE5, ""}}; // other keys, an input method's among them
    for (const Row &row : rows)
        EXPECT_EQ(initialFilter(QString(QChar(row.key))), QString::fromLatin1(row.filter)) << int(row.key);
    EXPECT_EQ(initialFilter(QString()), QString());
    EXPECT_EQ(initialFilter(QStringLiteral("AB")), QString());
}

struct Placed {
    const char *name;
    QRect field;
    QPoint place;
};

class LookupPlace : public testing::TestWithParam<Placed> { };

TEST_P(LookupPlace, StaysOnTheScreen)
{
    const QRect screen(100, 0, 1000, 800);
    EXPECT_EQ(lookupPosition(GetParam().field, QSize(300, 200), QPoint(0, -2), screen), GetParam().place);
}

INSTANTIATE_TEST_SUITE_P(Fields, LookupPlace,
                         testing::Values(Placed{"Below", QRect(200, 100, 80, 24), QPoint(200, 122)},
                                         Placed{"RightEdge", QRect(1000, 100, 80, 24), QPoint(800, 122)},
                                         Placed{"LeftEdge", QRect(50, 100, 80, 24), QPoint(100, 122)},
                                         Placed{"LowerEdgeGoesAbove", QRect(200, 760, 80, 24), QPoint(200, 562)},
                                         Placed{"JustFitsBelow", QRect(200, 578, 80, 24), QPoint(200, 600)},
                                         Placed{"NoRoomAtAll", QRect(200, 700, 80, 900), QPoint(200, 502)}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(LookupRequest, AListLargerThanTheScreenShowsItsBeginning)
{
    EXPECT_EQ(lookupPosition(QRect(10, 10, 5, 5), QSize(900, 900), QPoint(), QRect(0, 0, 400, 400)), QPoint(0, 0));
}

} // namespace vortaq::test
