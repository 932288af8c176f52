// SPDX-License-Identifier: MIT
// An error that reaches the host's display says what the clerk was doing.
#include "tests/support/modalvisit.h"
#include "tests/uMain/billpages.h"

#include <QLineEdit>

namespace {

struct Deed {
    const char *name;
    const char *doing;
    void (*act)(Desk &desk); ///< fails at its first call
};

void tickFirst(Desk &desk)
{
    hands::clickCell(hands::find<TdxTreeList>(desk.form(), "dxTLUp"), 0, "dxTLUpCheck");
}

void failNext(Desk &desk)
{
    desk.engine().failCall(1);
}

const Deed Deeds[] = {
    {"Loading", "载入窗口",
     [](Desk &desk) {
         failNext(desk);
         desk.form().hide();
         desk.form().show();
     }},
    {"Saving", "保存制单",
     [](Desk &desk) {
         tickFirst(desk);
         failNext(desk);
         hands::click(desk.form(), "btnSave");
     }},
    {"Returning", "退单",
     [](Desk &desk) {
         tickFirst(desk);
         desk.conversation().answerYes();
         failNext(desk);
         hands::click(desk.form(), "btnBack");
     }},
    {"LookingUp", "代码查询",
     [](Desk &desk) {
         failNext(desk);
         QTest::keyClick(&hands::find<QLineEdit>(desk.form(), "edtOrgCode"), Qt::Key_4);
     }},
    {"FeeInfo", "查看费用信息",
     [](Desk &desk) {
         failNext(desk);
         hands::trigger(desk.form(), "mFeeInfo");
     }},
    {"SettlementSheet", "打印出院结算单",
     [](Desk &desk) {
         failNext(desk);
         hands::click(desk.form(), "btnOutFee");
     }},
    {"ApprovalForm", "打印医药费补偿审批表",
     [](Desk &desk) {
         failNext(desk);
         hands::click(desk.form(), "btnFeeGs");
     }},
    {"FeeList", "打印费用清单",
     [](Desk &desk) {
         const ModalVisit visit(QStringLiteral("frmPrint"), [&desk](QWidget &dialog) {
             failNext(desk);
             hands::click(dialog, "btnPrint");
         });
         hands::click(desk.form(), "btnFeeInfo");
     }},
    {"Patients", "载入病人记录",
     [](Desk &desk) {
         hands::showPage(desk.form(), "TabSheet1");
         failNext(desk);
         hands::clickNode(hands::find<TdxTreeList>(desk.form(), "dxTLDjOrgInfo"), 1);
     }},
    {"History", "载入制单记录",
     [](Desk &desk) {
         hands::showPage(desk.form(), "TabSheet2");
         failNext(desk);
         hands::clickNode(hands::find<TdxTreeList>(desk.form(), "dxTLOldOrg"), 0, 0);
     }},
    {"HistoryDetail", "查看历史明细",
     [](Desk &desk) {
         hands::showPage(desk.form(), "TabSheet2");
         hands::clickNode(hands::find<TdxTreeList>(desk.form(), "dxTLOldOrg"), 0, 0);
         failNext(desk);
         QTest::keyClick(&hands::find<TdxTreeList>(desk.form(), "dxTLOldBill"), Qt::Key_Return);
     }},
    {"Reprinting", "补打审批表",
     [](Desk &desk) {
         hands::showPage(desk.form(), "TabSheet2");
         hands::clickNode(hands::find<TdxTreeList>(desk.form(), "dxTLOldOrg"), 0, 0);
         failNext(desk);
         hands::trigger(desk.form(), "mCheckP");
     }},
};

class DoingTest : public testing::TestWithParam<Deed> { };

} // namespace

INSTANTIATE_TEST_SUITE_P(Deeds, DoingTest, testing::ValuesIn(Deeds),
                         [](const testing::TestParamInfo<Deed> &deed) { return deed.param.name; });

TEST_P(DoingTest, isNamedBeforeTheError)
{
    Desk desk;
    desk.open();
    GetParam().act(desk);
    ASSERT_EQ(desk.errors().size(), 1);
    // Printing finds no form in this folder before it asks the database.
    EXPECT_TRUE(desk.errors().first().startsWith(QString::fromUtf8(GetParam().doing) + QStringLiteral("时出错：\n")))
        << desk.errors().first().toStdString();
}

namespace {

class DoingOnBillPagesTest : public BillPageTest { };

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, DoingOnBillPagesTest, testing::Values(&Reported, &Returned), pageName);

TEST_P(DoingOnBillPagesTest, isNamedBeforeTheError)
{
    open();
    m_desk->engine().failCall(1);
    hands::clickNode(tree(), 0, Two);
    choose(Single);
    choose(Two);
    m_desk->engine().failCall(1);
    QTest::keyClick(&grid(), Qt::Key_Return);
    m_desk->engine().failCall(1);
    hands::click(form(), m_page->add);
    EXPECT_EQ(m_desk->errors(),
              QStringList({failedWhile("载入制单记录"), failedWhile("查看费用信息"), failedWhile("添加单据")}));
}

TEST(Doing, anAmountThatCannotBeSummedIsTheTicks)
{
    Desk desk;
    desk.open();
    auto &grid = hands::find<TdxTreeList>(desk.form(), "dxTLUp");
    hands::clickCell(grid, 3, "dxTLUpCheck"); // without amounts
    hands::trigger(desk.form(), "mCheck");
    ASSERT_EQ(desk.errors().size(), 2);
    EXPECT_TRUE(desk.errors().at(0).startsWith(QStringLiteral("勾选记录时出错：\n“”")))
        << desk.errors().at(0).toStdString();
    EXPECT_TRUE(desk.errors().at(1).startsWith(QStringLiteral("全部选定时出错：\n“”")));
}
