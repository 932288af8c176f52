// SPDX-License-Identifier: MIT
// The print menu of the page "历史制单查询": when it is there, and what its items do without a bill.
#include "tests/print/deskforms.h"
#include "tests/print/notedpapers.h"
#include "tests/support/modalvisit.h"
#include "tests/uMain/billpages.h"

#include <QContextMenuEvent>

using namespace expected;

namespace {

const char *const Items[] = {"mJxP", "mCheckP", "mFeeDetail"};

class HistoryMenuTest : public testing::Test {
protected:
    /// The archive is empty; a bill in use, number 5, has the one record of 王建国's third stay.
    void open()
    {
        m_desk.sqlite("delete from s_CbZyZdb");
        m_desk.sqlite("insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckStatus) values "
                      "('42990101',5,'甲镇卫生院','2026-03-08',100.10,80.05,'1')");
        m_desk.sqlite("update o_CbZyBxDj set BillCode='42990101',BillNo=5 where CoopMedCode='0012' and DiagNo=3");
        m_desk.open();
        hands::showPage(form(), "TabSheet2");
        (void)said();
    }
    [[nodiscard]] QWidget &form() const { return m_desk.form(); }
    [[nodiscard]] TdxTreeList &tree() const { return hands::find<TdxTreeList>(form(), "dxTLOldOrg"); }
    [[nodiscard]] TdxTreeList &grid() const { return hands::find<TdxTreeList>(form(), "dxTLOldBill"); }
    [[nodiscard]] QStringList said() { return m_desk.conversation().take(); }
    void confirm(const std::function<void()> &deed)
    {
        m_desk.conversation().answerYes();
        deed();
    }
    void cancelTheOnlyBill()
    {
        hands::showPage(form(), "tbUp");
        hands::clickNode(hands::find<TdxTreeList>(form(), "dxTLUpOrgInfo"), 0, 0);
        confirm([this] { hands::trigger(form(), "mUpCancel"); });
        EXPECT_TRUE(said().contains(hint("取消制单成功！")));
        hands::showPage(form(), "TabSheet2");
    }
    void makeABill()
    {
        hands::showPage(form(), "TabSheet3");
        hands::clickCell(hands::find<TdxTreeList>(form(), "dxTLUp"), 0, "dxTLUpCheck");
        hands::click(form(), "btnSave");
        EXPECT_TRUE(said().contains(hint("制单成功！")));
        hands::showPage(form(), "TabSheet2");
    }
    [[nodiscard]] bool offersAMenu() const
    {
        QContextMenuEvent request(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(&grid(), &request);
        QWidget *menu = QApplication::activePopupWidget();
        if (menu != nullptr)
            menu->close();
        return menu != nullptr;
    }
    /// Every item reaches the host's error display, sends nothing, and the page goes on working.
    void everyItemFails()
    {
        (void)said();
        for (const char *item : Items) {
            const qsizetype before = m_desk.errors().size();
            hands::trigger(form(), item);
            EXPECT_EQ(m_desk.errors().size(), before + 1) << item;
            EXPECT_TRUE(said().isEmpty()) << item;
            EXPECT_TRUE(form().isVisible()) << item;
        }
    }

    Desk m_desk;
    NotedPapers m_papers;
};

} // namespace

TEST_F(HistoryMenuTest, goesForGoodWithTheLastBill)
{
    open();
    EXPECT_TRUE(offersAMenu());
    cancelTheOnlyBill();
    EXPECT_EQ(tree().count(), 0);
    EXPECT_FALSE(offersAMenu());
    makeABill();
    ASSERT_EQ(tree().count(), 1);
    hands::clickNode(tree(), 0, 0);
    ASSERT_EQ(grid().count(), 1);
    EXPECT_EQ(grid().popupMenu(), nullptr);
    EXPECT_FALSE(offersAMenu());
    form().hide();
    form().show();
    EXPECT_FALSE(offersAMenu()) << "another showing does not bring it back";
}

TEST_F(HistoryMenuTest, staysAsLongAsTheArchiveHasABill)
{
    open();
    m_desk.sqlite("insert into s_CbZyZdb(BillCode,BillNo,BillName,WriteDate,CheckStatus) values "
                  "('42990101',7,'甲镇卫生院','2025-12-01','4')");
    cancelTheOnlyBill();
    EXPECT_EQ(tree().topNode().childCount(), 1);
    EXPECT_TRUE(offersAMenu());
}

TEST_F(HistoryMenuTest, itemsOnTheInstitutionReachTheHostsErrorDisplay)
{
    open();
    ASSERT_EQ(tree().focusedNode(), tree().topNode());
    everyItemFails();
    hands::clickNode(tree(), 0, 0);
    EXPECT_EQ(grid().count(), 1);
}

TEST_F(HistoryMenuTest, itemsWithoutAnyBillReachTheHostsErrorDisplay)
{
    open();
    cancelTheOnlyBill();
    ASSERT_TRUE(tree().focusedNode().isNull());
    everyItemFails();
    makeABill();
    EXPECT_EQ(tree().count(), 1);
}

TEST_F(HistoryMenuTest, theFeeListOfABillInUseReadsTheTablesInUse)
{
    layForms(QStringLiteral(TEMPLATES));
    open();
    hands::clickNode(tree(), 0, 0);
    hands::clickCell(grid(), 0, "dxTLOldBillPatientName");
    (void)said();
    {
        const ModalVisit visit(QStringLiteral("frmPrint"), [](QWidget &dialog) { hands::click(dialog, "btnPrint"); });
        hands::trigger(form(), "mFeeDetail");
    }
    const QStringList statements = said().filter(QStringLiteral("OpenSql"));
    ASSERT_EQ(statements.size(), 2);
    EXPECT_TRUE(statements[0].contains(QStringLiteral(" from o_CbZyBxDj "))) << statements[0].toStdString();
    EXPECT_TRUE(statements[1].contains(QStringLiteral(" from o_CbZyBxDjZb a,p_BxXm b ")));
    for (const QString &statement : statements)
        EXPECT_TRUE(statement.contains(QStringLiteral("'0012'"))) << statement.toStdString();
    EXPECT_EQ(m_papers.take().size(), 1);
    EXPECT_TRUE(m_desk.errors().isEmpty());
}
