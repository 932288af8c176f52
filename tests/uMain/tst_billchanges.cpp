// SPDX-License-Identifier: MIT
// What the pages "上报制单" and "退单制单" do to bills: reporting, cancelling, taking out, adding.
#include "data/statements/candidates.h"
#include "tests/support/modalvisit.h"
#include "tests/uMain/billpages.h"

#include <functional>

using namespace expected;

namespace {

const char *const ReportQuestion = "您确认上报此笔制单记录吗？";
const char *const CancelQuestion = "您确认取消此笔制单记录吗？";

QString guard(const char *number)
{
    return QStringLiteral(" select CheckStatus from o_CbZyZdb  where BillCode='42990101'   and BillNo=%1   and "
                          "CheckStatus not in ( '1','9' ) ")
        .arg(QString::fromUtf8(number));
}

QString report(const char *number)
{
    return execSql(QStringLiteral(" update o_cbzyzdb    set CheckStatus='2'  where BillCode='42990101'   and BillNo=%1")
                       .arg(QString::fromUtf8(number)));
}

QString recompute(const char *number)
{
    return execSql(QStringLiteral(" update o_CbZyZdb set Fee=a.TotalFee,CanFreeFee=a.CanFreeFee  from (select "
                                  "isnull(sum(TotalFee),0) as TotalFee,isnull(sum(CanFreeFee),0) as CanFreeFee"
                                  "        from o_CbZyBxDj        where BillCode='42990101' and BillNo=%1) a "
                                  " where BillCode='42990101' and BillNo=%1")
                       .arg(QString::fromUtf8(number)));
}

QString refusal(const char *word)
{
    return QStringLiteral("tell(提示,该单据现在状态为:%1)").arg(QString::fromUtf8(word));
}

Desk::Options withoutChecks()
{
    Desk::Options options;
    options.setupFile = QStringLiteral("[system]\nconnStyle=2\n");
    return options;
}

class BillChangesTest : public BillPageTest {
protected:
    using Action = std::function<QStringList()>;

    [[nodiscard]] QString release(const char *statement, const char *card, const char *idNo, const char *diagNo) const
    {
        return execSql(QString::fromUtf8(statement).arg(QString::fromUtf8(card), QString::fromUtf8(idNo),
                                                        QString::fromUtf8(diagNo)));
    }

    /// Each of the action's first `steps` calls fails once: the database stays as it was, the clerk is told, and the
    /// next attempt succeeds.
    void everyStepFails(Bill bill, int steps, const QStringList &end, const char *success, const Action &action)
    {
        for (int call = 1; call <= steps; ++call) {
            open();
            choose(bill);
            const QStringList before = m_desk->contents();
            m_desk->engine().failCall(call);
            const QStringList lines = action();
            EXPECT_EQ(lines.mid(lines.size() - end.size()), end) << call;
            EXPECT_EQ(lines.filter(QStringLiteral("!故障")).size(), 1) << call;
            EXPECT_EQ(m_desk->contents(), before) << call;
            EXPECT_TRUE(m_desk->errors().isEmpty()) << call;
            m_desk->engine().failCall(0);
            EXPECT_TRUE(action().contains(hint(success))) << call;
        }
    }

    [[nodiscard]] QStringList cancelBill() { return triggerAndConfirm(m_page->cancel); }
    [[nodiscard]] QStringList reportBill() { return triggerAndConfirm(m_page->report); }
    [[nodiscard]] QStringList cancelRecord() { return clickAndConfirm(m_page->cancelOne); }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, BillChangesTest, testing::Values(&Reported, &Returned), pageName);

TEST_P(BillChangesTest, reportingIsOneStatementWithoutATransaction)
{
    open();
    choose(Two);
    EXPECT_EQ(reportBill(),
              QStringList(ask(ReportQuestion)) + query(guard("21"))
                  + QStringList({report("21"), hint("上报制单成功！")}) + ownTree() + history());
    EXPECT_EQ(billRows().first(), QStringLiteral("21|1200.3|950.15|2"));
    ASSERT_EQ(tree().topNode().childCount(), 2) << "a reported bill is on neither bill page";
    EXPECT_EQ(tree().topNode().child(0).text(3), QStringLiteral("20"));
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00"));
    const auto &history = hands::find<TdxTreeList>(form(), "dxTLOldOrg");
    EXPECT_EQ(history.topNode().child(0).text(0), QStringLiteral("2026-03-02【上报】"));
}

TEST_P(BillChangesTest, otherConnStylesReportWithoutLooking)
{
    open(withoutChecks());
    choose(Two);
    reviewElsewhere("4");
    EXPECT_EQ(reportBill(),
              QStringList({ask(ReportQuestion), report("21"), hint("上报制单成功！")}) + ownTree() + history());
    EXPECT_EQ(billRows().first(), QStringLiteral("21|1200.3|950.15|2"));
}

TEST_P(BillChangesTest, aBillThatMovedOnIsNotReported)
{
    struct Row {
        const char *status;
        const char *word;
        bool reloads;
    };
    for (const Row row : {Row{"2", "上报", false}, Row{"3", "一级审核", true}, Row{"4", "", true},
                          Row{"", "取消", false}, Row{"7", "", false}}) {
        open();
        choose(Two);
        reviewElsewhere(row.status);
        const QStringList before = m_desk->contents();
        QStringList lines = QStringList(ask(ReportQuestion)) + query(guard("21")) + QStringList(refusal(row.word));
        if (row.reloads)
            lines += reportedBills() + returnedBills() + history();
        EXPECT_EQ(reportBill(), lines) << row.status;
        EXPECT_EQ(m_desk->contents(), before) << row.status;
        EXPECT_EQ(tree().topNode().childCount(), row.reloads ? 2 : 3) << row.status;
        EXPECT_TRUE(m_desk->errors().isEmpty()) << row.status;
    }
}

TEST_P(BillChangesTest, aBillOfTheOtherPageMayBeReported)
{
    open();
    choose(Two);
    reviewElsewhere(m_page == &Reported ? "9" : "1");
    EXPECT_TRUE(reportBill().contains(hint("上报制单成功！")));
}

TEST_P(BillChangesTest, reportingABillThatIsGoneChangesNothing)
{
    open();
    choose(Two);
    m_desk->sqlite("delete from o_CbZyZdb where BillNo=21");
    const QStringList before = m_desk->contents();
    EXPECT_TRUE(reportBill().contains(hint("上报制单成功！"))) << "no row, no objection";
    EXPECT_EQ(m_desk->contents(), before);
    EXPECT_EQ(tree().topNode().childCount(), 2);
}

TEST_P(BillChangesTest, failingToReportIsTold)
{
    everyStepFails(Two, 2, {alert("上报制单失败！\r\n故障")}, "上报制单成功！", [this] {
        QStringList lines = reportBill();
        EXPECT_FALSE(lines.contains(Rollback)) << "there is no transaction";
        return lines;
    });
}

TEST_P(BillChangesTest, aReloadThatFailsAfterReportingIsToldAlike)
{
    open();
    choose(Two);
    m_desk->engine().failCall(3);
    const QStringList lines = reportBill();
    EXPECT_TRUE(lines.contains(hint("上报制单成功！")));
    EXPECT_EQ(lines.last(), alert("上报制单失败！\r\n故障"));
    EXPECT_EQ(billRows().first(), QStringLiteral("21|1200.3|950.15|2"));
}

TEST_P(BillChangesTest, cancellingWholeFreesTheRecordsAndDeletesTheBill)
{
    open();
    choose(Two);
    EXPECT_EQ(cancelBill(),
              QStringList({ask(CancelQuestion), Begin, execSql(ofBill(m_page->releaseAll, "21")),
                           execSql(ofBill(m_page->deleteBill, "21")), hint("取消制单成功！"), Commit})
                  + unbilledTree() + candidates() + ownTree() + history());
    EXPECT_EQ(billRows().size(), 2);
    EXPECT_EQ(m_desk->rows("select BillCode,BillNo,CheckerCode1,CheckFee from o_CbZyBxDj where CoopMedCode='01''1'"),
              QStringList({QStringLiteral("null|null|K1|650")}))
        << "only the bill key is cleared";
    EXPECT_EQ(tree().topNode().childCount(), 2);
}

TEST_P(BillChangesTest, cancellingWholeAsksForNoStatus)
{
    open();
    choose(Two);
    reviewElsewhere("4");
    EXPECT_TRUE(cancelBill().contains(hint("取消制单成功！")));
    EXPECT_EQ(billRows().size(), 2);
}

TEST_P(BillChangesTest, anEmptyBillCanBeCancelledWhole)
{
    open();
    choose(Empty);
    EXPECT_TRUE(cancelBill().contains(hint("取消制单成功！")));
    EXPECT_EQ(billRows().size(), 2);
}

TEST_P(BillChangesTest, cancellingABillThatIsGoneChangesNothing)
{
    open();
    choose(Two);
    m_desk->sqlite("update o_CbZyBxDj set BillCode=null,BillNo=null where BillNo=21");
    m_desk->sqlite("delete from o_CbZyZdb where BillNo=21");
    const QStringList before = m_desk->contents();
    EXPECT_TRUE(cancelBill().contains(hint("取消制单成功！")));
    EXPECT_EQ(m_desk->contents(), before);
}

TEST_P(BillChangesTest, everyStepOfCancellingWholeRollsBack)
{
    everyStepFails(Two, 4, {Rollback, alert("取消制单失败！\r\n故障")}, "取消制单成功！",
                   [this] { return cancelBill(); });
}

TEST_P(BillChangesTest, theHintOfCancellingWholeComesBeforeACommitThatFails)
{
    open();
    choose(Two);
    m_desk->engine().failCall(4);
    const QStringList lines = cancelBill();
    EXPECT_EQ(lines.mid(lines.size() - 4),
              QStringList({hint("取消制单成功！"), Commit + QStringLiteral(" !故障"), Rollback,
                           alert("取消制单失败！\r\n故障")}));
}

TEST_P(BillChangesTest, aReloadThatFailsAfterCancellingIsToldAlike)
{
    open();
    choose(Two);
    m_desk->engine().failCall(5);
    const QStringList lines = cancelBill();
    EXPECT_EQ(lines.mid(lines.size() - 2), QStringList({Rollback, alert("取消制单失败！\r\n故障")}));
    EXPECT_EQ(billRows().size(), 2) << "the bill is gone all the same";
}

TEST_P(BillChangesTest, takingOneOfSeveralOutKeepsTheBill)
{
    open();
    choose(Two);
    EXPECT_EQ(cancelRecord(),
              QStringList({ask(m_page->cancelOneQuestion), Begin, release(m_page->releaseRecord, "01''1", "3", "2"),
                           release(m_page->clearDeductions, "01''1", "3", "2"), recompute("21"), Commit,
                           hint("取消制单成功！")})
                  + records("21") + unbilledTree() + candidates());
    EXPECT_EQ(billRows().first(), QStringLiteral("21|200.2|150.1|%1").arg(QString::fromUtf8(m_page->status)));
    EXPECT_EQ(m_desk->rows("select BillCode,BillNo,CheckerCode1,CheckerName1,CheckOneFee,CheckDate1,Checkone,"
                           "CheckerCode,CheckerName,CheckFee,CheckDate,CheckRemark from o_CbZyBxDj "
                           "where CoopMedCode='01''1'"),
              QStringList({QStringLiteral("null|null|null|null|0|null|null|null|null|0|null|null")}))
        << "both reviews are wiped";
    EXPECT_EQ(m_desk->rows("select KnockOffFee1,KnockOffFee from o_CbZyBxDjZb where CoopMedCode='01''1' "
                           "order by FeeNo"),
              QStringList({QStringLiteral("0|0"), QStringLiteral("0|0"), QStringLiteral("0|null")}))
        << "a line without deductions is left alone";
    EXPECT_EQ(totals(), QStringLiteral("1|200.20|150.10"));
    EXPECT_EQ(tree().focusedNode().text(3), QStringLiteral("21")) << "the tree is not rebuilt";
}

TEST_P(BillChangesTest, takingTheFocusedRecordOut)
{
    open();
    choose(Two);
    hands::clickCell(grid(), 1, (QByteArray(m_page->grid) + "PatientName").constData());
    const QStringList lines = cancelRecord();
    EXPECT_TRUE(lines.contains(release(m_page->releaseRecord, "0102", "2", "1")));
    EXPECT_TRUE(lines.contains(release(m_page->clearDeductions, "0102", "2", "1"))) << "reviewed or not";
    EXPECT_EQ(hands::columnTexts(grid(), (QByteArray(m_page->grid) + "CoopMedCode").constData()),
              QStringList({QStringLiteral("01'1")}));
}

TEST_P(BillChangesTest, theLastRecordTakesItsBillWithIt)
{
    open();
    choose(Single);
    EXPECT_EQ(cancelRecord(),
              QStringList({ask(m_page->cancelOneQuestion), Begin, release(m_page->releaseRecord, "0103", "1", "1"),
                           release(m_page->clearDeductions, "0103", "1", "1"), recompute("20"),
                           execSql(ofBill(m_page->deleteEmptied, "20")), Commit, hint("取消制单成功！")})
                  + ownTree() + unbilledTree() + candidates());
    EXPECT_EQ(billRows().size(), 2);
    EXPECT_EQ(tree().topNode().childCount(), 2);
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00"));
}

TEST_P(BillChangesTest, oneAfterTheOtherUntilTheBillIsGone)
{
    open();
    choose(Two);
    EXPECT_TRUE(cancelRecord().contains(hint("取消制单成功！")));
    EXPECT_TRUE(cancelRecord().contains(execSql(ofBill(m_page->deleteEmptied, "21"))));
    EXPECT_EQ(billRows().size(), 2);
}

TEST_P(BillChangesTest, sumsOfNothingAreZeroAfterTakingOut)
{
    open();
    m_desk->sqlite("update o_CbZyBxDj set TotalFee=null,CanFreeFee=null where CoopMedCode='0102'");
    choose(Two);
    EXPECT_TRUE(cancelRecord().contains(hint("取消制单成功！")));
    EXPECT_EQ(billRows().first(), QStringLiteral("21|0|0|%1").arg(QString::fromUtf8(m_page->status)));
}

TEST_P(BillChangesTest, everyStepOfTakingOneOutRollsBack)
{
    everyStepFails(Two, 5, {Rollback, alert("取消制单失败！\r\n故障")}, "取消制单成功！",
                   [this] { return cancelRecord(); });
}

TEST_P(BillChangesTest, everyStepOfTakingTheLastOneOutRollsBack)
{
    everyStepFails(Single, 6, {Rollback, alert("取消制单失败！\r\n故障")}, "取消制单成功！",
                   [this] { return cancelRecord(); });
}

TEST_P(BillChangesTest, aReloadThatFailsAfterTakingOutIsToldAlike)
{
    open();
    choose(Two);
    m_desk->engine().failCall(6);
    const QStringList lines = cancelRecord();
    EXPECT_TRUE(lines.contains(hint("取消制单成功！")));
    EXPECT_EQ(lines.mid(lines.size() - 2), QStringList({Rollback, alert("取消制单失败！\r\n故障")}));
    EXPECT_EQ(billRows().first(), QStringLiteral("21|200.2|150.1|%1").arg(QString::fromUtf8(m_page->status)));
}

TEST_P(BillChangesTest, aRefusalOfTheDatabaseItselfRollsBack)
{
    open();
    choose(Two);
    m_desk->sqlite("create trigger t before update on o_CbZyZdb begin select raise(abort,'no'); end");
    const QStringList before = m_desk->contents();
    const QStringList lines = cancelRecord();
    EXPECT_EQ(lines[lines.size() - 2], Rollback);
    EXPECT_TRUE(lines.last().startsWith(QStringLiteral("FuncStorage.Alert(取消制单失败！\r\n")));
    EXPECT_EQ(m_desk->contents(), before);
}

TEST_P(BillChangesTest, addingReloadsWhateverHappenedInTheDialog)
{
    open();
    choose(Two);
    {
        const ModalVisit visit(QStringLiteral("frmAddBill"), [this](QWidget &) { (void)said(); });
        hands::click(form(), m_page->add);
    }
    EXPECT_EQ(said(), unbilledTree() + candidates() + records("21"));
    EXPECT_EQ(totals(), QStringLiteral("2|1,200.30|950.15"));
}

TEST_P(BillChangesTest, addedRecordsShowInTheGrid)
{
    open();
    choose(Two);
    {
        const ModalVisit visit(QStringLiteral("frmAddBill"), [](QWidget &dialog) {
            hands::clickCell(hands::find<TdxTreeList>(dialog, "dxTLUp"), 1, "dxTLUpCheck");
            hands::click(dialog, "btnSave");
        });
        hands::click(form(), m_page->add);
    }
    EXPECT_EQ(totals(), QStringLiteral("3|1,400.50|1,100.15"));
    EXPECT_EQ(billRows().first(), QStringLiteral("21|1400.5|1100.15|%1").arg(QString::fromUtf8(m_page->status)))
        << "the status stays";
}

TEST_P(BillChangesTest, aDialogThatCannotLoadReachesTheHostAndReloadsNothing)
{
    open();
    choose(Two);
    m_desk->engine().failCall(1);
    hands::click(form(), m_page->add);
    EXPECT_EQ(m_desk->errors(), QStringList(failedWhile("添加单据")));
    EXPECT_EQ(said().last(), openSql(data::addBillCandidates(std::nullopt)) + QStringLiteral(" !故障"));
}

TEST_P(BillChangesTest, aReloadThatFailsAfterAddingReachesTheHost)
{
    open();
    choose(Two);
    {
        const ModalVisit visit(QStringLiteral("frmAddBill"), [this](QWidget &) { m_desk->engine().failCall(1); });
        hands::click(form(), m_page->add);
    }
    EXPECT_EQ(m_desk->errors(), QStringList(failedWhile("添加单据"))) << "no page's own alert";
    EXPECT_FALSE(said().join(u'\n').contains(QStringLiteral("Alert")));
}

TEST_P(BillChangesTest, aNoSendsNothing)
{
    open();
    choose(Two);
    for (const char *item : {m_page->report, m_page->cancel}) {
        m_desk->conversation().answerNo();
        hands::trigger(form(), item);
    }
    m_desk->conversation().answerNo();
    hands::click(form(), m_page->cancelOne);
    EXPECT_EQ(
        said(),
        QStringList({ask(ReportQuestion, false), ask(CancelQuestion, false), ask(m_page->cancelOneQuestion, false)}));
}

TEST_P(BillChangesTest, theGroupNodeIsNoBill)
{
    open();
    EXPECT_EQ(reportBill() + cancelBill() + cancelRecord(),
              QStringList({ask(ReportQuestion), ask(CancelQuestion), ask(m_page->cancelOneQuestion)}));
    hands::click(form(), m_page->add);
    EXPECT_TRUE(said().isEmpty());
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_P(BillChangesTest, withoutAnyBillNothingIsSent)
{
    open();
    m_desk->sqlite("delete from o_CbZyZdb");
    form().hide();
    form().show();
    (void)said();
    EXPECT_EQ(reportBill() + cancelBill() + cancelRecord(),
              QStringList({ask(ReportQuestion), ask(CancelQuestion), ask(m_page->cancelOneQuestion)}));
    hands::click(form(), m_page->add);
    EXPECT_TRUE(said().isEmpty());
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_P(BillChangesTest, anEmptyBillHasNoRecordToTakeOutAndTakesNoneIn)
{
    open();
    choose(Empty);
    EXPECT_EQ(cancelRecord(), QStringList(ask(m_page->cancelOneQuestion)));
    hands::click(form(), m_page->add);
    EXPECT_TRUE(said().isEmpty());
}
