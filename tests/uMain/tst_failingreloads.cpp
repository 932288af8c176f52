// SPDX-License-Identifier: MIT
// A change is committed, and then one of the lists cannot be loaded again: what is said, what is shown, what is kept.
#include "tests/uMain/billpages.h"

using namespace expected;

namespace {

const char *const Failure = " !故障";

/// The list that fails: its number among the calls of the action, what is sent, and rows shown afterwards as
/// FailingReloadsTest::shown() gives them.
struct FailingList {
    int call;
    QString sent;
    const char *shown;
};

class FailingReloadsTest : public BillPageTest {
protected:
    /// Rows of the unbilled list, of the candidates, of the bill tree, of the bill's records and of history.
    [[nodiscard]] QString shown() const
    {
        const auto count = [this](const char *name) { return hands::find<TdxTreeList>(form(), name).count(); };
        return QStringLiteral("%1 %2 %3 %4 %5")
            .arg(count("dxTLBxDjDetail"))
            .arg(count("dxTLUp"))
            .arg(tree().topNode().childCount())
            .arg(grid().count())
            .arg(hands::find<TdxTreeList>(form(), "dxTLOldOrg").topNode().childCount());
    }
    /// The conversation up to what fails, and its end.
    [[nodiscard]] static QStringList cutAt(const QString &sent, const QStringList &whole, const QStringList &end)
    {
        const qsizetype at = whole.lastIndexOf(openSql(sent));
        EXPECT_GE(at, 0);
        return whole.mid(0, at) + QStringList(openSql(sent) + QString::fromUtf8(Failure)) + end;
    }
    /// Each of the lists fails once, and is there again when the form is shown the next time.
    template <typename Action>
    void failEach(Bill bill, const std::vector<FailingList> &lists, const QStringList &whole, const QStringList &end,
                  const QStringList &bills, const Action &action)
    {
        for (const FailingList &list : lists) {
            open();
            choose(bill);
            ASSERT_EQ(shown(), QStringLiteral("4 4 3 %1 3").arg(grid().count()));
            m_desk->engine().failCall(list.call);
            EXPECT_EQ(action(), cutAt(list.sent, whole, end)) << list.call;
            EXPECT_EQ(shown(), QString::fromUtf8(list.shown)) << list.call;
            EXPECT_EQ(billRows(), bills) << list.call;
            EXPECT_TRUE(m_desk->errors().isEmpty()) << list.call;
            form().hide();
            form().show();
            EXPECT_TRUE(m_desk->errors().isEmpty()) << list.call << ": the next showing goes well";
        }
    }
    [[nodiscard]] QString ownBills() const { return QString::fromUtf8(m_page->bills); }
    [[nodiscard]] QString row(const char *text) const
    {
        return QString::fromUtf8(text).arg(QString::fromUtf8(m_page->status));
    }

    const QString m_institutions = data::institutionsWithUnbilled();
    const QString m_patients = data::unbilledRecords(QStringLiteral("42990101"));
    const QString m_candidates = data::billCandidates(std::nullopt);
    const QString m_history = data::historyBills(QStringLiteral("42990101"), QStringLiteral("42990101"));
};

QStringList alerted(const char *text)
{
    return {Rollback, alert(text)};
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, FailingReloadsTest, testing::Values(&Reported, &Returned), pageName);

TEST_P(FailingReloadsTest, afterAWholeCancel)
{
    open();
    const QStringList whole =
        QStringList({ask("您确认取消此笔制单记录吗？"), Begin, execSql(ofBill(m_page->releaseAll, "21")),
                     execSql(ofBill(m_page->deleteBill, "21")), hint("取消制单成功！"), Commit})
        + unbilledTree() + candidates() + ownTree() + history();
    failEach(Two,
             {{5, m_institutions, "4 4 3 2 3"},
              {6, m_patients, "4 4 3 2 3"},
              {7, m_candidates, "6 4 3 2 3"},
              {8, ownBills(), "6 6 3 2 3"},
              {9, m_history, "6 6 2 0 3"}},
             whole, alerted("取消制单失败！\r\n故障"), {row("20|5.5|null|%1"), row("19|null|null|%1")},
             [this] { return triggerAndConfirm(m_page->cancel); });
}

TEST_P(FailingReloadsTest, afterTakingOneOfSeveralOut)
{
    open();
    choose(Two);
    const QStringList whole = clickAndConfirm(m_page->cancelOne);
    failEach(Two,
             {{6, ofBill(m_page->records, "21"), "4 4 3 0 3"},
              {7, m_institutions, "4 4 3 1 3"},
              {8, m_patients, "4 4 3 1 3"},
              {9, m_candidates, "5 4 3 1 3"}},
             whole, alerted("取消制单失败！\r\n故障"),
             {row("21|200.2|150.1|%1"), row("20|5.5|null|%1"), row("19|null|null|%1")},
             [this] { return clickAndConfirm(m_page->cancelOne); });
}

TEST_P(FailingReloadsTest, afterTakingTheLastOneOut)
{
    open();
    choose(Single);
    const QStringList whole = clickAndConfirm(m_page->cancelOne);
    failEach(Single,
             {{7, ownBills(), "4 4 3 1 3"},
              {8, m_institutions, "4 4 2 0 3"},
              {9, m_patients, "4 4 2 0 3"},
              {10, m_candidates, "5 4 2 0 3"}},
             whole, alerted("取消制单失败！\r\n故障"), {row("21|1200.3|950.15|%1"), row("19|null|null|%1")},
             [this] { return clickAndConfirm(m_page->cancelOne); });
}

TEST_P(FailingReloadsTest, afterAReport)
{
    open();
    choose(Two);
    const QStringList whole = triggerAndConfirm(m_page->report);
    failEach(Two, {{3, ownBills(), "4 4 3 2 3"}, {4, m_history, "4 4 2 0 3"}}, whole, {alert("上报制单失败！\r\n故障")},
             {QStringLiteral("21|1200.3|950.15|2"), row("20|5.5|null|%1"), row("19|null|null|%1")},
             [this] { return triggerAndConfirm(m_page->report); });
}

TEST_P(FailingReloadsTest, whenTheBillTurnsOutToBeReviewed)
{
    const auto report = [this] {
        reviewElsewhere("3");
        return triggerAndConfirm(m_page->report);
    };
    open();
    choose(Two);
    const QStringList whole = report();
    ASSERT_TRUE(whole.contains(QStringLiteral("tell(提示,该单据现在状态为:一级审核)")));
    const QString reported = QString::fromUtf8(Reported.bills);
    const QString returned = QString::fromUtf8(Returned.bills);
    const bool own = m_page == &Reported; // the reported bills come first
    failEach(Two,
             {{2, reported, "4 4 3 2 3"}, {3, returned, own ? "4 4 2 0 3" : "4 4 3 2 3"}, {4, m_history, "4 4 2 0 3"}},
             whole, {alert("上报制单失败！\r\n故障")},
             {QStringLiteral("21|1200.3|950.15|3"), row("20|5.5|null|%1"), row("19|null|null|%1")}, report);
}
