// SPDX-License-Identifier: MIT
// Two clerks, each with a host of his own, on one database: what the second sees of what the first did.
#include "tests/support/modalvisit.h"
#include "tests/uMain/billpages.h"

using namespace expected;

namespace {

class TwoClerksTest : public BillPageTest {
protected:
    /// Both have the page in front with bill 21 chosen; the first clerk sits.
    void openBoth()
    {
        open();
        Desk::Options options;
        options.database = m_desk->databaseFile();
        m_second.emplace(options);
        m_second->open();
        hands::showPage(m_second->form(), m_page->page);
        hands::clickNode(treeOf(*m_second), 0, Two);
        m_desk->sitDown();
        choose(Two);
    }
    [[nodiscard]] TdxTreeList &treeOf(const Desk &desk) const
    {
        return hands::find<TdxTreeList>(desk.form(), m_page->tree);
    }
    /// What the second clerk's form says when he does something and answers with Yes.
    template <typename Deed> [[nodiscard]] QStringList second(const Deed &deed)
    {
        m_second->sitDown();
        (void)m_second->conversation().take();
        m_second->conversation().answerYes();
        deed(m_second->form());
        return m_second->conversation().take();
    }
    [[nodiscard]] QStringList secondTriggers(const char *item)
    {
        return second([item](const QWidget &form) { hands::trigger(form, item); });
    }

    std::optional<Desk> m_second;
};

const char *const Told = "tell(提示,该单据现在状态为:%1)";

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, TwoClerksTest, testing::Values(&Reported, &Returned), pageName);

TEST_P(TwoClerksTest, theSecondToReportABillIsToldThatItIs)
{
    openBoth();
    EXPECT_TRUE(triggerAndConfirm(m_page->report).contains(hint("上报制单成功！")));
    EXPECT_EQ(treeOf(*m_second).topNode().childCount(), 3) << "his screen is stale";
    const QStringList lines = secondTriggers(m_page->report);
    EXPECT_EQ(lines.last(), QString::fromUtf8(Told).arg(QStringLiteral("上报")))
        << "nothing is reloaded for this status";
    EXPECT_EQ(treeOf(*m_second).topNode().childCount(), 3);
    EXPECT_TRUE(m_second->errors().isEmpty());
}

TEST_P(TwoClerksTest, onceTheBillIsReviewedHisScreenIsBroughtUpToDate)
{
    openBoth();
    EXPECT_TRUE(triggerAndConfirm(m_page->report).contains(hint("上报制单成功！")));
    reviewElsewhere("3");
    const QStringList lines = secondTriggers(m_page->report);
    EXPECT_EQ(lines.mid(3),
              QStringList(QString::fromUtf8(Told).arg(QStringLiteral("一级审核"))) + reportedBills() + returnedBills()
                  + history());
    EXPECT_EQ(treeOf(*m_second).topNode().childCount(), 2);
    EXPECT_EQ(billRows().first(), QStringLiteral("21|1200.3|950.15|3"));
}

TEST_P(TwoClerksTest, aBillThatTheFirstCancelledIsReportedIntoNothing)
{
    openBoth();
    EXPECT_TRUE(triggerAndConfirm(m_page->cancel).contains(hint("取消制单成功！")));
    const QStringList before = m_desk->contents();
    EXPECT_TRUE(secondTriggers(m_page->report).contains(hint("上报制单成功！")));
    EXPECT_EQ(m_desk->contents(), before);
    EXPECT_EQ(treeOf(*m_second).topNode().childCount(), 2);
}

TEST_P(TwoClerksTest, bothTakeTheSameRecordOut)
{
    openBoth();
    EXPECT_TRUE(clickAndConfirm(m_page->cancelOne).contains(hint("取消制单成功！")));
    const QStringList before = m_desk->contents();
    const QStringList lines = second([this](const QWidget &form) { hands::click(form, m_page->cancelOne); });
    EXPECT_TRUE(lines.contains(hint("取消制单成功！")));
    EXPECT_EQ(m_desk->contents(), before) << "taking out twice is taking out once";
}

TEST_P(TwoClerksTest, recordsThatTheFirstAddedShowAfterTheSecondsOwnChange)
{
    openBoth();
    {
        const ModalVisit visit(QStringLiteral("frmAddBill"), [](QWidget &dialog) {
            hands::clickCell(hands::find<TdxTreeList>(dialog, "dxTLUp"), 1, "dxTLUpCheck");
            hands::click(dialog, "btnSave");
        });
        hands::click(form(), m_page->add);
    }
    (void)second([this](const QWidget &form) { hands::click(form, m_page->cancelOne); });
    EXPECT_EQ(hands::find<TdxTreeList>(m_second->form(), m_page->grid).count(), 2);
    EXPECT_EQ(billRows().first(), QStringLiteral("21|400.4|300.1|%1").arg(QString::fromUtf8(m_page->status)))
        << "his change sums what there is, not what he sees";
}

TEST_P(TwoClerksTest, recordsThatTheFirstBilledAreLeftOutByTheSecond)
{
    openBoth();
    const auto tick = [](const QWidget &form, std::initializer_list<int> rows) {
        hands::showPage(form, "TabSheet3");
        for (const int row : rows)
            hands::clickCell(hands::find<TdxTreeList>(form, "dxTLUp"), row, "dxTLUpCheck");
    };
    tick(form(), {1});
    hands::click(form(), "btnSave");
    EXPECT_TRUE(said().contains(hint("制单成功！")));
    const QStringList lines = second([&tick](const QWidget &form) {
        tick(form, {0, 1});
        hands::click(form, "btnSave");
    });
    EXPECT_TRUE(lines.contains(hint("制单成功！")));
    EXPECT_EQ(lines.filter(QStringLiteral("ask(")).size(), 1) << lines.join(u'\n').toStdString();
    EXPECT_EQ(m_desk->rows("select BillNo,CoopMedCode from o_CbZyBxDj where BillCode='42990101' and BillNo>21 "
                           "order by 1"),
              QStringList({QStringLiteral("22|0040"), QStringLiteral("23|0012")}));
}
