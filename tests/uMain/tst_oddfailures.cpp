// SPDX-License-Identifier: MIT
// A host may throw what is no standard exception: no change may leave its transaction open then, and none goes untold.
#include "tests/support/modalvisit.h"
#include "tests/uMain/billpages.h"

using namespace expected;

namespace {

const QString Unknown = QStringLiteral("未知错误。");

class OddFailuresTest : public BillPageTest {
protected:
    /// Whatever call of the action fails, its transaction is rolled back, the failure told and noted.
    template <typename Action>
    void failEach(Bill bill, int begin, int commit, const char *failure, const Action &action)
    {
        for (int call = begin; call <= commit; ++call) {
            open();
            choose(bill);
            const QStringList before = m_desk->contents();
            m_desk->engine().failCallOddly(call);
            const QStringList lines = action();
            EXPECT_TRUE(lines.contains(alert(failure).chopped(1) + QStringLiteral("\r\n") + Unknown + QLatin1Char(')')))
                << call << lines.join(u'\n').toStdString();
            EXPECT_EQ(lines.count(Rollback), 1) << call;
            EXPECT_EQ(lines.filter(QStringLiteral(" !") + Unknown).size(), 1) << call;
            EXPECT_EQ(m_desk->contents(), before) << call;
            EXPECT_TRUE(m_desk->errors().isEmpty()) << call;
            m_desk->sqlite("begin immediate"); // another program finds the database free
            m_desk->sqlite("rollback");
        }
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, OddFailuresTest, testing::Values(&Reported, &Returned), pageName);

TEST_P(OddFailuresTest, inCancellingABill)
{
    failEach(Two, 1, 4, "取消制单失败！", [this] { return triggerAndConfirm(m_page->cancel); });
}

TEST_P(OddFailuresTest, inTakingARecordOut)
{
    failEach(Two, 1, 5, "取消制单失败！", [this] { return clickAndConfirm(m_page->cancelOne); });
}

TEST_P(OddFailuresTest, inAddingRecords)
{
    failEach(Two, 2, 5, "添加制单失败！", [this] {
        const ModalVisit visit(QStringLiteral("frmAddBill"), [](QWidget &dialog) {
            hands::clickCell(hands::find<TdxTreeList>(dialog, "dxTLUp"), 0, "dxTLUpCheck");
            hands::click(dialog, "btnSave");
        });
        hands::click(form(), m_page->add);
        return said();
    });
}

TEST_P(OddFailuresTest, inReporting)
{
    for (int call = 1; call <= 2; ++call) { // the check, the change
        open();
        choose(Two);
        const QStringList before = m_desk->contents();
        m_desk->engine().failCallOddly(call);
        const QStringList lines = triggerAndConfirm(m_page->report);
        EXPECT_EQ(lines.last(), alert("上报制单失败！\r\n未知错误。")) << call;
        EXPECT_TRUE(lines.at(lines.size() - 2).endsWith(QStringLiteral(" !") + Unknown)) << call;
        EXPECT_EQ(m_desk->contents(), before) << call;
    }
}

class OddFailuresOfCandidatesTest : public testing::Test {
protected:
    template <typename Action> void failEach(int first, int commit, const QString &alerted, const Action &action)
    {
        for (int call = first; call <= commit; ++call) {
            Desk desk;
            hands::clickCell(hands::find<TdxTreeList>(desk.open(), "dxTLUp"), 0, "dxTLUpCheck");
            (void)desk.conversation().take();
            const QStringList before = desk.contents();
            desk.engine().failCallOddly(call);
            action(desk);
            const QStringList lines = desk.conversation().take();
            EXPECT_EQ(lines.mid(lines.size() - 2), QStringList({Rollback, alerted})) << call;
            EXPECT_TRUE(lines.at(lines.size() - 3).endsWith(QStringLiteral(" !") + Unknown)) << call;
            EXPECT_EQ(desk.contents(), before) << call;
        }
    }
};

TEST_F(OddFailuresOfCandidatesTest, inSaving)
{
    // Three checks and the begin come first; then number, bill, records, commit.
    failEach(5, 8, alert("制单失败！\r\n未知错误。"), [](Desk &desk) { hands::click(desk.form(), "btnSave"); });
}

TEST_F(OddFailuresOfCandidatesTest, inReturning)
{
    failEach(2, 5, alert("退单失败！\r\n未知错误。"), [](Desk &desk) {
        desk.conversation().answerYes();
        hands::click(desk.form(), "btnBack");
    });
}
