// SPDX-License-Identifier: MIT
// Taking a record out of a bill that another program has deleted, or that the record has left.
#include "tests/uMain/billpages.h"

using namespace expected;

namespace {

class GoneBillTest : public BillPageTest {
protected:
    [[nodiscard]] QStringList takeOut(const char *card, const char *idNo, const char *diagNo, const char *number) const
    {
        const auto ofRecord = [&](const char *statement) {
            return execSql(QString::fromUtf8(statement).arg(QString::fromUtf8(card), QString::fromUtf8(idNo),
                                                            QString::fromUtf8(diagNo)));
        };
        const QString recompute =
            QStringLiteral(" update o_CbZyZdb set Fee=a.TotalFee,CanFreeFee=a.CanFreeFee  from (select "
                           "isnull(sum(TotalFee),0) as TotalFee,isnull(sum(CanFreeFee),0) as CanFreeFee        from "
                           "o_CbZyBxDj        where BillCode='42990101' and BillNo=%1) a  where BillCode='42990101' "
                           "and BillNo=%1");
        return {ask(m_page->cancelOneQuestion), Begin, ofRecord(m_page->releaseRecord),
                ofRecord(m_page->clearDeductions), execSql(ofBill(recompute.toUtf8().constData(), number))};
    }
    [[nodiscard]] QStringList recordKeys() const
    {
        return m_desk->rows("select CoopMedCode,BillCode,BillNo,CheckerCode1,CheckFee from o_CbZyBxDj "
                            "where PatientName in ('周强','吴芳','郑和') order by 1");
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, GoneBillTest, testing::Values(&Reported, &Returned), pageName);

// No statement asks whether the bill is still there. The record is freed and its reviews are wiped; where the bill was,
// no row matches, and none is made. Records that another program left behind with the bill's number keep it.
TEST_P(GoneBillTest, theRecordIsFreedAndNothingElseChanges)
{
    open();
    choose(Two);
    m_desk->sqlite("delete from o_CbZyZdb where BillNo=21");
    EXPECT_EQ(clickAndConfirm(m_page->cancelOne),
              takeOut("01''1", "3", "2", "21") + QStringList({Commit, hint("取消制单成功！")}) + records("21")
                  + unbilledTree() + candidates());
    EXPECT_EQ(recordKeys(),
              QStringList({QStringLiteral("01'1|null|null|null|0"), QStringLiteral("0102|42990101|21|null|null"),
                           QStringLiteral("0103|42990101|20|null|null")}));
    EXPECT_EQ(billRows().join(u' '),
              QStringLiteral("20|5.5|null|%1 19|null|null|%1").arg(QString::fromUtf8(m_page->status)));
    EXPECT_EQ(tree().topNode().childCount(), 3) << "the tree, which is not asked for anew, still shows the bill";
    EXPECT_EQ(totals(), QStringLiteral("1|200.20|150.10"));
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_P(GoneBillTest, theLastRecordBringsTheTreeUpToDate)
{
    open();
    choose(Single);
    m_desk->sqlite("delete from o_CbZyZdb where BillNo=20");
    EXPECT_EQ(clickAndConfirm(m_page->cancelOne),
              takeOut("0103", "1", "1", "20")
                  + QStringList({execSql(ofBill(m_page->deleteEmptied, "20")), Commit, hint("取消制单成功！")})
                  + ownTree() + unbilledTree() + candidates());
    EXPECT_EQ(recordKeys().last(), QStringLiteral("0103|null|null|null|0"));
    EXPECT_EQ(tree().topNode().childCount(), 2);
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00"));
}

// The statement names the record, not its bill: a record that was moved meanwhile leaves the bill it is in now, whose
// amounts stay as they were, and the page's own bill is reckoned anew without it.
TEST_P(GoneBillTest, aRecordThatWasMovedLeavesItsNewBill)
{
    open();
    choose(Two);
    m_desk->sqlite("update o_CbZyBxDj set BillNo=20 where CoopMedCode='01''1'");
    m_desk->sqlite("update o_CbZyZdb set Fee=1005.60,CanFreeFee=800.05 where BillNo=20");
    EXPECT_TRUE(clickAndConfirm(m_page->cancelOne).contains(hint("取消制单成功！")));
    EXPECT_EQ(recordKeys().first(), QStringLiteral("01'1|null|null|null|0"));
    EXPECT_EQ(billRows().mid(0, 2).join(u' '),
              QStringLiteral("21|200.2|150.1|%1 20|1005.6|800.05|%1").arg(QString::fromUtf8(m_page->status)));
}

// How many records the page listed decides whether the bill goes, not how many there are: a record that another program
// added meanwhile keeps the number of a bill that is gone.
TEST_P(GoneBillTest, aBillGoesWithTheLastRecordThatThePageShows)
{
    open();
    choose(Single);
    m_desk->sqlite("update o_CbZyBxDj set BillNo=20 where CoopMedCode='0102'");
    EXPECT_TRUE(clickAndConfirm(m_page->cancelOne).contains(execSql(ofBill(m_page->deleteEmptied, "20"))));
    EXPECT_EQ(billRows().size(), 2);
    EXPECT_EQ(recordKeys()[1], QStringLiteral("0102|42990101|20|null|null"));
}
