// SPDX-License-Identifier: MIT
// Taking records out of a bill by keyboard: where the focus goes, and which key says yes.
#include "tests/support/modalvisit.h"
#include "tests/uMain/billpages.h"

#include <QAbstractButton>

namespace {

/// Bill 21 has thirty more records, discharged from 2026-02-10 on; the grid is too low for them.
class CuttingTest : public BillPageTest {
protected:
    void openLong()
    {
        open();
        for (int i = 0; i < 30; ++i) {
            m_desk->sqlite(QStringLiteral("insert into o_CbZyBxDj(OrgCode,CoopMedCode,IDNo,DiagNo,PatientName,InDate,"
                                          "OutDate,TotalFee,CanFreeFee,BillCode,BillNo) values ('42990101','%1',1,1,"
                                          "'病人%1','2026-02-01','2026-02-10',1,1,'42990101',21)")
                               .arg(2000 + i)
                               .toUtf8()
                               .constData());
        }
        choose(Two);
        ASSERT_EQ(grid().count(), 32);
        form().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form()));
    }
    [[nodiscard]] QString certificate(const TdxTreeListNode &row) const
    {
        return row ? row.text(grid().columnByName(grid().objectName() + QStringLiteral("CoopMedCode"))->position())
                   : QString();
    }
    [[nodiscard]] QString focused() const { return certificate(grid().focusedNode()); }
    [[nodiscard]] bool focusIsInView() const
    {
        return grid().viewport()->rect().contains(grid().visualRect(grid().currentIndex().siblingAtColumn(1)).center());
    }
    [[nodiscard]] QAbstractButton &button() const { return hands::find<QAbstractButton>(form(), m_page->cancelOne); }
    void cut()
    {
        m_desk->conversation().answerYes();
        button().setFocus();
        button().click();
        (void)said();
    }
};

/// The same questions in the real box.
class QuestionKeysTest : public CuttingTest {
protected:
    /// Enter in the box that the action opens; whether anything was sent.
    template <typename Action> bool enterSends(const Action &action)
    {
        toolkit::setMessageBoxes(nullptr);
        (void)said();
        {
            const ModalVisit visit(QString(), [](QWidget &box) { QTest::keyClick(&box, Qt::Key_Return); });
            action();
        }
        toolkit::setMessageBoxes(&m_desk->conversation());
        return !said().isEmpty();
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, CuttingTest, testing::Values(&Reported, &Returned), pageName);
INSTANTIATE_TEST_SUITE_P(Pages, QuestionKeysTest, testing::Values(&Reported, &Returned), pageName);

TEST_P(CuttingTest, focusesTheNextRecordWhereItStands)
{
    openLong();
    grid().setFocusedNode(grid().node(25));
    const QString next = certificate(grid().node(26));
    const QString afterNext = certificate(grid().node(27));
    cut();
    EXPECT_EQ(focused(), next);
    EXPECT_EQ(grid().focusedNode().index(), 25);
    EXPECT_TRUE(focusIsInView());
    EXPECT_TRUE(button().hasFocus());
    cut();
    EXPECT_EQ(focused(), afterNext);
}

TEST_P(CuttingTest, focusesTheOneBeforeAfterTheLast)
{
    openLong();
    grid().setFocusedNode(grid().node(31));
    const QString before = certificate(grid().node(30));
    cut();
    EXPECT_EQ(focused(), before);
    EXPECT_TRUE(focusIsInView());
}

TEST_P(CuttingTest, goesByTheOrderShown)
{
    openLong();
    grid().sortByColumn(grid().columnByName(grid().objectName() + QStringLiteral("CoopMedCode"))->position(),
                        Qt::DescendingOrder);
    grid().setFocusedNode(grid().node(10));
    const QString next = certificate(grid().node(11));
    cut();
    EXPECT_EQ(focused(), next);
}

TEST_P(CuttingTest, aNeighbourTakenOutElsewhereIsPassedOver)
{
    openLong();
    grid().setFocusedNode(grid().node(10));
    const QString before = certificate(grid().node(9));
    m_desk->sqlite(QStringLiteral("update o_CbZyBxDj set BillCode=null,BillNo=null where CoopMedCode='%1'")
                       .arg(certificate(grid().node(11)))
                       .toUtf8()
                       .constData());
    cut();
    EXPECT_EQ(focused(), before);
}

TEST_P(QuestionKeysTest, threeReturnsTakeNothingOut)
{
    openLong();
    const QString chosen = focused();
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(enterSends([this] {
            button().setFocus();
            button().click();
        }));
    }
    EXPECT_EQ(grid().count(), 32);
    EXPECT_EQ(focused(), chosen);
}

TEST_P(QuestionKeysTest, enterCancelsNoBill)
{
    open();
    choose(Two);
    EXPECT_FALSE(enterSends([this] { hands::trigger(form(), m_page->cancel); }));
}

TEST_P(QuestionKeysTest, enterReportsTheBill)
{
    open();
    choose(Two);
    EXPECT_TRUE(enterSends([this] { hands::trigger(form(), m_page->report); }));
}

TEST_P(QuestionKeysTest, enterReturnsNoStay)
{
    open();
    hands::showPage(form(), "TabSheet3");
    hands::clickCell(hands::find<TdxTreeList>(form(), "dxTLUp"), 0, "dxTLUpCheck");
    EXPECT_FALSE(enterSends([this] { hands::click(form(), "btnBack"); }));
}
