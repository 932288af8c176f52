// SPDX-License-Identifier: MIT
// The button "退单": ticked records go back to the ward, all in one transaction or none.
#include "tests/support/desk.h"
#include "tests/support/hands.h"
#include "tests/uMain/expected.h"

#include <gtest/gtest.h>

#include <QAbstractButton>

using namespace expected;

namespace {

// What is settled about the first and the third candidate. The second has no settlement rows at all.
const char *const Settlements =
    "insert into o_CbZyJsb(OrgCode,CoopMedCode,IDNo,DiagNo,PatientName) values ('42990101','0012',1,3,'王建国'),"
    "('42990101','0012',1,4,'王建国'),('42990102','00''7',1,1,'张伟')";
const char *const SettlementFees =
    "insert into o_CbZyJsMxb(OrgCode,CoopMedCode,IDNo,DiagNo,FeeTypeCode,Fee) values ('42990101','0012',1,3,'01',60),"
    "('42990101','0012',1,3,'02',40.1),('42990101','0012',1,4,'01',5),('42990102','00''7',1,1,'01',1300.3)";
const char *const Fees = "insert into o_CbZyBxDjZb(OrgCode,CoopMedCode,IDNo,DiagNo,FeeNo,FeeTypeCode,Fee) values "
                         "('42990101','0012',1,3,1,'01',60),('42990102','00''7',1,1,1,'01',1300.3)";

// The three statements of the small hospital's first three candidates, letter for letter.
const QStringList FirstRecord = {
    execSql(QStringLiteral(" update o_cbzybxdj  set OutDate=null,DayCount=null,JsDate=null  where OrgCode='42990101'"
                           "   and CoopMedCode='0012'   and IDNo=1 and DiagNo=3")),
    execSql(QStringLiteral(" delete from o_CbZyJsMxb  where CoopMedCode='0012'   and IDNo=1 and DiagNo=3   and "
                           "OrgCode='42990101'")),
    execSql(QStringLiteral(" delete from o_CbZyJsb  where OrgCode='42990101'   and CoopMedCode='0012'   and IDNo=1 and "
                           "DiagNo=3")),
};
const QStringList SecondRecord = {
    execSql(QStringLiteral(" update o_cbzybxdj  set OutDate=null,DayCount=null,JsDate=null  where OrgCode='42990101'"
                           "   and CoopMedCode='0040'   and IDNo=2 and DiagNo=1")),
    execSql(QStringLiteral(" delete from o_CbZyJsMxb  where CoopMedCode='0040'   and IDNo=2 and DiagNo=1   and "
                           "OrgCode='42990101'")),
    execSql(QStringLiteral(" delete from o_CbZyJsb  where OrgCode='42990101'   and CoopMedCode='0040'   and IDNo=2 and "
                           "DiagNo=1")),
};
const QStringList ThirdRecord = {
    execSql(QStringLiteral(" update o_cbzybxdj  set OutDate=null,DayCount=null,JsDate=null  where OrgCode='42990102'"
                           "   and CoopMedCode='00''7'   and IDNo=1 and DiagNo=1")),
    execSql(QStringLiteral(" delete from o_CbZyJsMxb  where CoopMedCode='00''7'   and IDNo=1 and DiagNo=1   and "
                           "OrgCode='42990102'")),
    execSql(QStringLiteral(" delete from o_CbZyJsb  where OrgCode='42990102'   and CoopMedCode='00''7'   and IDNo=1 "
                           "and DiagNo=1")),
};

const QString Confirmed = QStringLiteral("ask(确认,您确认要退回所有打勾的记录吗？)=yes");
const QString Declined = QStringLiteral("ask(确认,您确认要退回所有打勾的记录吗？)=no");
const QString Failed = alert("退单失败！\r\n故障");

/// Calls of the engine for three ticked records.
enum Call { BeginCall = 1, FirstStatement = 2, LastStatement = 10, CommitCall = 11, FirstReload = 12, LastReload = 14 };

class ReturningTest : public testing::Test {
protected:
    void open()
    {
        m_desk.emplace();
        m_desk->sqlite(Settlements);
        m_desk->sqlite(SettlementFees);
        m_desk->sqlite(Fees);
        m_desk->open();
        m_desk->conversation().take();
    }

    [[nodiscard]] TdxTreeList &grid() { return hands::find<TdxTreeList>(m_desk->form(), "dxTLUp"); }
    void tick(std::initializer_list<int> rows)
    {
        for (const int row : rows)
            hands::clickCell(grid(), row, "dxTLUpCheck");
    }
    [[nodiscard]] QStringList giveBack()
    {
        hands::click(m_desk->form(), "btnBack");
        return m_desk->conversation().take();
    }
    /// Records without a discharge date, with what else the return clears.
    [[nodiscard]] QStringList inHospital() const
    {
        return m_desk->rows("select CoopMedCode,DiagNo,DayCount,JsDate from o_CbZyBxDj where OutDate is null and "
                            "OrgCode<>'42990103' order by 1,2");
    }

    std::optional<Desk> m_desk;
};

const QStringList AllReturned = {QStringLiteral("00'7|1|null|null"), QStringLiteral("0012|3|null|null"),
                                 QStringLiteral("0040|1|null|null"), QStringLiteral("0055|1|null|null")};

} // namespace

TEST_F(ReturningTest, threeRecordsAreNineStatementsInOneTransaction)
{
    open();
    tick({0, 1, 2});
    m_desk->conversation().answerYes();
    EXPECT_EQ(giveBack(),
              QStringList({Confirmed, Begin}) + FirstRecord + SecondRecord + ThirdRecord + QStringList(Commit)
                  + candidates() + unbilledTree() + QStringList(hint("退单成功！")));
    EXPECT_EQ(inHospital(), AllReturned) << "a record without settlement rows is returned too";
    EXPECT_EQ(m_desk->rows("select CoopMedCode,DiagNo from o_CbZyJsb"), QStringList(QStringLiteral("0012|4")));
    EXPECT_EQ(m_desk->rows("select CoopMedCode,DiagNo from o_CbZyJsMxb"), QStringList(QStringLiteral("0012|4")));
    EXPECT_EQ(m_desk->rows("select count(*) from o_CbZyBxDjZb"), QStringList(QStringLiteral("2")))
        << "the fees themselves stay";
    EXPECT_EQ(hands::columnTexts(grid(), "dxTLUpDiagNo"), QStringList(QStringLiteral("4")));
    EXPECT_EQ(hands::columnTexts(hands::find<TdxTreeList>(m_desk->form(), "dxTLBxDjDetail"), "dxTLBxDjDetailIsZy"),
              QStringList({QStringLiteral("2"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("1")}))
        << "on the first page they count as in hospital";
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(ReturningTest, onlyTickedRowsAreReturnedInTheOrderOfTheGrid)
{
    open();
    tick({2, 0, 1, 1}); // the second row is ticked and unticked
    m_desk->conversation().answerYes();
    EXPECT_EQ(giveBack().mid(1, 8), QStringList(Begin) + FirstRecord + ThirdRecord + QStringList(Commit));
    EXPECT_EQ(m_desk->rows("select OutDate from o_CbZyBxDj where CoopMedCode='0040'"),
              QStringList(QStringLiteral("2026-03-05")));
}

TEST_F(ReturningTest, aKeyWithAQuoteReachesItsOwnRowsOnly)
{
    open();
    tick({2});
    m_desk->conversation().answerYes();
    EXPECT_EQ(giveBack().mid(1, 5), QStringList(Begin) + ThirdRecord + QStringList(Commit));
    EXPECT_EQ(inHospital(), QStringList({QStringLiteral("00'7|1|null|null"), QStringLiteral("0055|1|null|null")}));
    EXPECT_EQ(m_desk->rows("select count(*) from o_CbZyJsMxb"), QStringList(QStringLiteral("3")));
}

TEST_F(ReturningTest, noChangesNothingAndSendsNothing)
{
    open();
    tick({0, 1});
    const QStringList before = m_desk->contents();
    m_desk->conversation().answerNo();
    EXPECT_EQ(giveBack(), QStringList(Declined));
    EXPECT_EQ(m_desk->contents(), before);
    EXPECT_EQ(hands::columnTexts(grid(), "dxTLUpCheck").first(), QStringLiteral("1")) << "the ticks stay";
}

TEST_F(ReturningTest, nothingTickedIsAlerted)
{
    open();
    EXPECT_EQ(giveBack(), QStringList(alert("没有要退单的记录，请打勾选择！")));
    tick({0, 0}); // the number 2
    EXPECT_EQ(giveBack(), QStringList(alert("没有要退单的记录，请打勾选择！")));
}

TEST_F(ReturningTest, anEmptyGridIsSilent)
{
    open();
    m_desk->sqlite("update o_CbZyBxDj set OutDate=null");
    m_desk->form().hide();
    m_desk->form().show();
    m_desk->conversation().take();
    EXPECT_EQ(giveBack(), QStringList());
}

TEST_F(ReturningTest, aFailingBeginPropagates)
{
    open();
    tick({0, 1, 2});
    const QStringList before = m_desk->contents();
    m_desk->conversation().answerYes();
    m_desk->engine().failCall(BeginCall);
    EXPECT_EQ(giveBack(), QStringList({Confirmed, Begin + QStringLiteral(" !故障")}));
    EXPECT_EQ(m_desk->errors(), QStringList(failedWhile("退单")));
    EXPECT_EQ(m_desk->contents(), before);
}

TEST_F(ReturningTest, everyStepOfTheTransactionRollsBackWhenItFails)
{
    const QStringList steps = FirstRecord + SecondRecord + ThirdRecord + QStringList(Commit);
    for (int call = FirstStatement; call <= CommitCall; ++call) {
        open();
        tick({0, 1, 2});
        const QStringList before = m_desk->contents();
        m_desk->conversation().answerYes();
        m_desk->engine().failCall(call);
        QStringList expectedLines = QStringList({Confirmed, Begin}) + steps.mid(0, call - BeginCall);
        expectedLines.last() += QStringLiteral(" !故障");
        EXPECT_EQ(giveBack(), expectedLines + QStringList({Rollback, Failed})) << call;
        EXPECT_EQ(m_desk->contents(), before) << call;
        EXPECT_TRUE(m_desk->errors().isEmpty()) << call;
        EXPECT_EQ(hands::columnTexts(grid(), "dxTLUpCheck").mid(0, 3), QStringList(3, QStringLiteral("1"))) << call;

        m_desk->conversation().answerYes();
        EXPECT_TRUE(giveBack().contains(hint("退单成功！"))) << "the next attempt succeeds";
        EXPECT_EQ(inHospital(), AllReturned) << call;
    }
}

TEST_F(ReturningTest, aReloadFailingAfterTheCommitIsAnsweredByARollback)
{
    const QStringList reloads = candidates() + unbilledTree();
    for (int call = FirstReload; call <= LastReload; ++call) {
        open();
        tick({0, 1, 2});
        m_desk->conversation().answerYes();
        m_desk->engine().failCall(call);
        const QStringList lines = giveBack();
        EXPECT_EQ(lines.mid(lines.size() - 2), QStringList({Rollback, Failed})) << call;
        EXPECT_TRUE(lines[lines.size() - 3].endsWith(QStringLiteral(" !故障"))) << call;
        EXPECT_TRUE(reloads.contains(lines[lines.size() - 3].chopped(4))) << lines[lines.size() - 3].toStdString();
        EXPECT_FALSE(lines.contains(hint("退单成功！"))) << call;
        EXPECT_EQ(inHospital(), AllReturned) << "the records are returned all the same";
    }
}

TEST_F(ReturningTest, aRefusalOfTheDatabaseItselfTakesAllNineBack)
{
    open();
    tick({0, 1, 2});
    m_desk->sqlite("create trigger t before delete on o_CbZyJsMxb when old.OrgCode='42990102' "
                   "begin select raise(abort,'no'); end");
    const QStringList before = m_desk->contents();
    m_desk->conversation().answerYes();
    const QStringList lines = giveBack();
    ASSERT_EQ(lines.size(), 12) << "the eighth of the nine statements failed";
    EXPECT_TRUE(lines[9].startsWith(ThirdRecord[1] + QStringLiteral(" !"))) << lines[9].toStdString();
    EXPECT_EQ(lines[10], Rollback);
    EXPECT_TRUE(lines[11].startsWith(QStringLiteral("FuncStorage.Alert(退单失败！\r\n")));
    EXPECT_EQ(m_desk->contents(), before);
}
