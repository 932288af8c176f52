// SPDX-License-Identifier: MIT
// The page "报销制单": candidates, ticks, totals, look-up.
#include "data/rightsfilter.h"
#include "tests/support/desk.h"
#include "tests/support/hands.h"
#include "tests/uMain/expected.h"
#include "toolkit/TdxCurrencyEdit.h"
#include "uMain/columns.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QMenu>

using namespace expected;

namespace {

class BillMakingTest : public testing::Test {
protected:
    void open(const Desk::Options &options = Desk::Options())
    {
        m_desk.emplace(options);
        m_desk->open();
        m_desk->conversation().take();
    }

    [[nodiscard]] TdxTreeList &grid() { return hands::find<TdxTreeList>(m_desk->form(), "dxTLUp"); }
    void tick(int row) { hands::clickCell(grid(), row, "dxTLUpCheck"); }
    [[nodiscard]] QStringList ticks() { return hands::columnTexts(grid(), "dxTLUpCheck"); }

    /// Count and the three sums as they are shown.
    [[nodiscard]] QString totals()
    {
        QStringList texts;
        for (const char *name : {"edtUpNum", "dxCEUpTotal", "dxCEUpCanFee", "dxCEUpFreeFee"})
            texts.append(hands::find<QLineEdit>(m_desk->form(), name).text());
        return texts.join(QLatin1Char('|'));
    }

    std::optional<Desk> m_desk;
};

} // namespace

TEST_F(BillMakingTest, listsDischargedRecordsWithoutABillInTheOrderOfSettlement)
{
    open();
    EXPECT_EQ(
        hands::columnTexts(grid(), "dxTLUpCoopMedCode"),
        QStringList({QStringLiteral("0012"), QStringLiteral("0040"), QStringLiteral("00'7"), QStringLiteral("0012")}));
    EXPECT_EQ(hands::columnTexts(grid(), "dxTLUpDiagNo"),
              QStringList({QStringLiteral("3"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("4")}))
        << "two stays of one member are two rows";
    EXPECT_EQ(
        hands::columnTexts(grid(), "dxTLUpAge"),
        QStringList({QStringLiteral("45岁"), QStringLiteral("8月"), QStringLiteral("30岁"), QStringLiteral("45岁")}));
    EXPECT_EQ(hands::columnTexts(grid(), "dxTLUpTotalFee"),
              QStringList({QStringLiteral("         100.10"), QStringLiteral("         200.20"),
                           QStringLiteral("        1300.30"), QString()}));
    EXPECT_EQ(hands::columnTexts(grid(), "dxTLUpExpKind"),
              QStringList({QStringLiteral("普通住院"), QStringLiteral("单病种住院"), QStringLiteral("其他"),
                           QStringLiteral("其他住院")}));
    EXPECT_EQ(hands::columnTexts(grid(), "dxTLUpInDate").first(), QStringLiteral("2026-02-20"));
    EXPECT_EQ(ticks(), QStringList(4, QString()));
    EXPECT_EQ(hands::columnTexts(grid(), "dxTLUpID"), QStringList(4, QString())) << "drawn, not stored";
}

TEST_F(BillMakingTest, hasItsColumnsInOrder)
{
    open();
    ASSERT_EQ(grid().columnCount(), 30);
    for (int i = 0; i < grid().columnCount(); ++i) {
        EXPECT_EQ(grid().column(i)->objectName(), QString::fromUtf8(candidateColumns()[i].name));
        EXPECT_EQ(grid().column(i)->isVisible(), i < 25) << i;
        EXPECT_EQ(grid().column(i)->isEditable(), i == 0) << i;
    }
}

TEST_F(BillMakingTest, grantedUsersSeeTheirInstitutionsOnly)
{
    Desk::Options options;
    options.user = QStringLiteral("02");
    m_desk.emplace(options);
    m_desk->open();
    EXPECT_EQ(hands::columnTexts(grid(), "dxTLUpOrgCode"), QStringList(3, QStringLiteral("42990101")));
    const data::Grant grant{QStringLiteral("02"), QStringLiteral("07")};
    EXPECT_TRUE(m_desk->conversation().lines().contains(openSql(data::billCandidates(grant))));
}

TEST_F(BillMakingTest, theUsersTypeOfInstitutionNeverNarrowsTheList)
{
    for (const char *type : {"1", "2", "9"}) {
        Desk::Options options;
        options.parameters = {{QStringLiteral("OrgType"), QString::fromUtf8(type)},
                              {QStringLiteral("AreaCode"), QStringLiteral("nowhere")}};
        open(options);
        EXPECT_EQ(grid().count(), 4) << type;
    }
}

TEST_F(BillMakingTest, totalsFollowTheTicks)
{
    open();
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00|"));
    tick(0);
    EXPECT_EQ(totals(), QStringLiteral("1|100.10|80.05|50.02"));
    tick(2);
    EXPECT_EQ(totals(), QStringLiteral("2|1,400.40|1,080.05|650.52"));
    EXPECT_EQ(ticks(), QStringList({QStringLiteral("1"), QString(), QStringLiteral("1"), QString()}));
    tick(0);
    EXPECT_EQ(totals(), QStringLiteral("1|1,300.30|1,000.00|600.50"));
    EXPECT_EQ(grid().node(0).value(0), QVariant(2)) << "a click unticks with the number";
    EXPECT_TRUE(m_desk->conversation().lines().isEmpty()) << "totals come from the grid";
}

TEST_F(BillMakingTest, spaceTicksTheFocusedRow)
{
    open();
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_Down);
    QTest::keyClick(&grid(), Qt::Key_Space);
    EXPECT_EQ(ticks(), QStringList({QString(), QStringLiteral("1"), QString(), QString()}));
    EXPECT_EQ(totals(), QStringLiteral("1|200.20|150.00|100.00"));
}

TEST_F(BillMakingTest, aTickWithAnAmountThatIsNoNumberIsStoredAllTheSame)
{
    open();
    tick(0);
    tick(3); // its amounts are null
    EXPECT_EQ(m_desk->errors().size(), 1);
    EXPECT_EQ(ticks()[3], QStringLiteral("1"));
    EXPECT_EQ(totals(), QStringLiteral("1|100.10|80.05|50.02")) << "the totals keep their values";
}

TEST_F(BillMakingTest, tickAllAndUntickAll)
{
    open();
    m_desk->sqlite("update o_CbZyBxDj set TotalFee=1,CanFreeFee=1,FreeFee=1 where CoopMedCode='0012' and DiagNo=4");
    m_desk->form().hide();
    m_desk->form().show();
    hands::trigger(m_desk->form(), "mCheck");
    EXPECT_EQ(ticks(), QStringList(4, QStringLiteral("1")));
    EXPECT_EQ(totals(), QStringLiteral("4|1,601.60|1,231.05|751.52"));
    hands::trigger(m_desk->form(), "mUnCheck");
    EXPECT_EQ(ticks(), QStringList(4, QStringLiteral("2")));
    EXPECT_EQ(totals(), QStringLiteral("0|0.00|0.00|0.00"));
}

TEST_F(BillMakingTest, aReloadKeepsTheReimbursedTotal)
{
    open();
    tick(0);
    m_desk->sqlite("update o_CbZyBxDj set OutDate=null");
    m_desk->form().hide();
    m_desk->form().show();
    EXPECT_EQ(grid().count(), 0);
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00|50.02"));
    hands::trigger(m_desk->form(), "mCheck");
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00|50.02")) << "an empty grid computes nothing";
}

TEST_F(BillMakingTest, popupMenuHasItsItems)
{
    open();
    ASSERT_NE(grid().popupMenu(), nullptr);
    QStringList items;
    for (const QAction *item : grid().popupMenu()->actions())
        items.append(item->objectName() + QLatin1Char(' ') + item->text());
    EXPECT_EQ(items,
              QStringList({QStringLiteral("mCheck 全部选定"), QStringLiteral("mUnCheck 全部取消"),
                           QStringLiteral("mFeeInfo 查看费用信息")}));
}

TEST_F(BillMakingTest, buttonsHaveTheirCaptions)
{
    open();
    QStringList captions;
    for (const char *name : {"btnSave", "btnBack", "btnOutFee", "btnFeeGs", "btnFeeInfo", "btnExit"})
        captions.append(hands::find<QAbstractButton>(m_desk->form(), name).text());
    EXPECT_EQ(captions.join(u'|'),
              QStringLiteral("保存制单(&S)|退单(&B)|出院结算单(&Q)|医药费补偿审批表(&P)|费用清单(&Q)|退出(&X)"));
    EXPECT_EQ(hands::find<QAbstractButton>(m_desk->form(), "btnBack").toolTip(),
              QStringLiteral("将当前单据退回为未出院状态"));
}

TEST_F(BillMakingTest, exitClosesTheForm)
{
    open();
    hands::click(m_desk->form(), "btnExit");
    EXPECT_FALSE(m_desk->form().isVisible());
}
