// SPDX-License-Identifier: MIT
// Two clerks, each with a host of his own, on one database: what the second sees of what the first did.
#include "tests/support/modalvisit.h"
#include "tests/uMain/billpages.h"

#include <QAbstractButton>

#include <functional>

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

    /// What a clerk does: opens the dialog for the bill chosen, ticks 李秀英 (200.20, 150.00) and saves, while
    /// something else happens between the dialog's opening and his tick.
    void add(
        const Desk &desk, const std::function<void()> &meanwhile = [] {}) const
    {
        const ModalVisit visit(QStringLiteral("frmAddBill"), [&meanwhile](QWidget &dialog) {
            meanwhile();
            auto &list = hands::find<TdxTreeList>(dialog, "dxTLUp");
            ASSERT_EQ(list.node(1).text(2), QStringLiteral("0040"));
            hands::clickCell(list, 1, "dxTLUpCheck");
            hands::click(dialog, "btnSave");
        });
        hands::find<QAbstractButton>(desk.form(), m_page->add).click();
    }
    [[nodiscard]] QStringList recordOfLi() const
    {
        return m_desk->rows("select BillCode,BillNo from o_CbZyBxDj where CoopMedCode='0040'");
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

// The statement that joins records to a bill does not ask whether they have joined another one meanwhile. The record
// goes to the bill of whoever saves last, and only that bill is summed anew: the other one keeps amounts that its
// records no longer make up, until its next change.
TEST_P(TwoClerksTest, aRecordThatBothAddBelongsToTheLastWhoSaves)
{
    openBoth();
    m_second->sitDown();
    hands::clickNode(treeOf(*m_second), 0, Single);
    (void)m_second->conversation().take();
    add(*m_second, [this] {
        m_desk->sitDown();
        add(*m_desk);
        EXPECT_EQ(recordOfLi(), QStringList({QStringLiteral("42990101|21")}));
        m_second->sitDown();
        (void)m_second->conversation().take();
    });
    const QStringList lines = m_second->conversation().take();
    EXPECT_EQ(lines.filter(QStringLiteral("execSql")).size(), 2);
    EXPECT_TRUE(lines.contains(hint("添加制单成功！"))) << "he is not told of the other";
    EXPECT_TRUE(lines.filter(QStringLiteral("Alert")).isEmpty());
    EXPECT_EQ(recordOfLi(), QStringList({QStringLiteral("42990101|20")}));
    EXPECT_EQ(billRows().mid(0, 2).join(u' '),
              QStringLiteral("21|1400.5|1100.15|%1 20|205.7|150|%1").arg(QString::fromUtf8(m_page->status)));

    m_desk->sitDown();
    EXPECT_TRUE(clickAndConfirm(m_page->cancelOne).contains(hint("取消制单成功！")));
    EXPECT_EQ(billRows().first(), QStringLiteral("21|200.2|150.1|%1").arg(QString::fromUtf8(m_page->status)))
        << "a change of the first bill puts its amounts right";
    EXPECT_EQ(recordOfLi(), QStringList({QStringLiteral("42990101|20")}));
}
