// SPDX-License-Identifier: MIT
// Saving a bill ("保存制单"): checks, questions, the transaction, the reloads.
#include "tests/support/desk.h"
#include "tests/support/hands.h"
#include "tests/uMain/expected.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>

using namespace expected;

namespace {

// Two ticked rows of the small hospital as the statements name them.
const QString First = QStringLiteral("(OrgCode='42990101' and CoopMedCode='0012' and IDNo=1 and DiagNo=3)");
const QString Second = QStringLiteral("(OrgCode='42990101' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)");
const QString Third = QStringLiteral("(OrgCode='42990102' and CoopMedCode='00''7' and IDNo=1 and DiagNo=1)");

QStringList billedCheck(const QString &condition)
{
    return query(QStringLiteral(" select OrgCode,CoopMedCode,IDNO,DiagNo,PatientName  from o_CbZyBxDj  where (")
                 + condition + QStringLiteral(") and BillCode is not null"));
}

QStringList returnedCheck(const QString &condition)
{
    return query(QStringLiteral(" select OrgCode,CoopMedCode,IDNo,DiagNo,PatientName  from o_CbZyBxDj  where (")
                 + condition + QStringLiteral(") and OutDate is null "));
}

QStringList dateCheck(const QString &condition, const char *date = "2026-03-09")
{
    return query(
        QStringLiteral(" select CoopMedCode from o_CbZyBxDj  where (%1)  and convert(varchar(10),OutDate,126) > '%2'")
            .arg(condition, QString::fromUtf8(date)));
}

QStringList newNumber(const char *code = "42990101")
{
    return query(
        QStringLiteral(" select max(BillNo) as BillNo  from  (         select isnull(max(BillNo),0) as BillNo  "
                       "        from o_CbZyZdb          where BillCode='%1'         union all          select "
                       "isnull(max(BillNo),0) as BillNo          from s_CbZyZdb          where BillCode='%1') a")
            .arg(QString::fromUtf8(code)));
}

QString insert(const QString &condition)
{
    return execSql(QStringLiteral(" insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,"
                                  "                       CheckFee,CheckStatus,PrincipalName)  select '42990101',8,"
                                  "'甲镇卫生院' ,'2026-03-09',sum(isnull(TotalFee,0)),sum(isnull(CanFreeFee,0)),0,0,1,"
                                  "'管理员' from o_CbZyBxDj where ")
                   + condition);
}

QString assign(const QString &condition)
{
    return execSql(QStringLiteral(" update o_CbZyBxDj  set BillCode ='42990101',BillNo=8 where ") + condition);
}

QStringList reloads()
{
    return unbilledTree() + candidates() + reportedBills() + history();
}

class SavingBillTest : public testing::Test {
protected:
    void open(const Desk::Options &options = Desk::Options())
    {
        m_desk.emplace(options);
        m_desk->open();
        m_desk->conversation().take();
    }

    [[nodiscard]] static Desk::Options withoutChecks()
    {
        Desk::Options options;
        options.setupFile = QStringLiteral("[system]\nconnStyle=2\n");
        return options;
    }

    void tick(std::initializer_list<int> rows)
    {
        for (const int row : rows)
            hands::clickCell(hands::find<TdxTreeList>(m_desk->form(), "dxTLUp"), row, "dxTLUpCheck");
    }
    void type(const char *field, const char *text)
    {
        hands::find<QLineEdit>(m_desk->form(), field).setText(QString::fromUtf8(text));
    }
    [[nodiscard]] QStringList save()
    {
        hands::click(m_desk->form(), "btnSave");
        return m_desk->conversation().take();
    }
    [[nodiscard]] QString focused() const
    {
        const QWidget *widget = m_desk->form().focusWidget();
        return widget == nullptr ? QString() : widget->objectName();
    }
    [[nodiscard]] QStringList bills() const
    {
        return m_desk->rows("select BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,CheckFee,CheckStatus,"
                            "PrincipalName from o_CbZyZdb where BillCode='42990101'");
    }

    std::optional<Desk> m_desk;
};

const QString Both = QStringLiteral(" ") + First + QStringLiteral(" or ") + Second;

} // namespace

TEST_F(SavingBillTest, tickedRecordsBecomeABill)
{
    open();
    tick({0, 1});
    EXPECT_EQ(save(),
              billedCheck(Both) + returnedCheck(Both) + dateCheck(Both) + QStringList(Begin) + newNumber()
                  + QStringList({insert(Both), assign(Both), Commit, hint("制单成功！")}) + reloads());
    EXPECT_EQ(bills(), QStringList({QStringLiteral("42990101|8|甲镇卫生院|2026-03-09|300.3|230.05|0|0|1|管理员")}))
        << "numbers go on from the archive's 7";
    EXPECT_EQ(m_desk->rows("select CoopMedCode,DiagNo from o_CbZyBxDj where BillCode='42990101' and BillNo=8"),
              QStringList({QStringLiteral("0012|3"), QStringLiteral("0040|1")}));
    const auto &tree = hands::find<TdxTreeList>(m_desk->form(), "dxTLUpOrgInfo");
    EXPECT_EQ(tree.topNode().child(0).text(0), QStringLiteral("2026-03-09"));
    EXPECT_EQ(hands::find<TdxTreeList>(m_desk->form(), "dxTLUp").count(), 2);
    EXPECT_EQ(hands::find<QLineEdit>(m_desk->form(), "edtPrincipal").text(), QStringLiteral("管理员"))
        << "the header stays as it was";
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(SavingBillTest, otherConnStylesSkipTheChecks)
{
    open(withoutChecks());
    tick({0, 1});
    EXPECT_EQ(save(),
              dateCheck(Both) + QStringList(Begin) + newNumber()
                  + QStringList({insert(Both), assign(Both), Commit, hint("制单成功！")}) + reloads());
}

TEST_F(SavingBillTest, withoutChecksARecordBilledMeanwhileIsBilledAgain)
{
    open(withoutChecks());
    tick({0});
    m_desk->sqlite("update o_CbZyBxDj set BillCode='42990102',BillNo=3 where CoopMedCode='0012' and DiagNo=3");
    (void)save();
    EXPECT_EQ(m_desk->rows("select BillCode,BillNo from o_CbZyBxDj where CoopMedCode='0012' and DiagNo=3"),
              QStringList({QStringLiteral("42990101|8")}));
}

TEST_F(SavingBillTest, firstBillOfAnInstitutionIsNumberOne)
{
    open();
    tick({0});
    type("edtOrgCode", "42990199");
    (void)save();
    EXPECT_EQ(m_desk->rows("select BillNo from o_CbZyZdb where BillCode='42990199'"),
              QStringList({QStringLiteral("1")}));
}

TEST_F(SavingBillTest, headerGoesInUntrimmedAndQuoted)
{
    open();
    tick({0});
    type("edtPrincipal", " O'甲 ");
    type("edtOrgName", "甲'院");
    (void)save();
    EXPECT_EQ(bills(), QStringList({QStringLiteral("42990101|8|甲'院|2026-03-09|100.1|80.05|0|0|1| O'甲 ")}));
}

TEST_F(SavingBillTest, emptyGridIsSilent)
{
    open();
    m_desk->sqlite("update o_CbZyBxDj set OutDate=null");
    m_desk->form().hide();
    m_desk->form().show();
    m_desk->conversation().take();
    EXPECT_EQ(save(), QStringList());
}

TEST_F(SavingBillTest, validationStopsInOrder)
{
    open();
    type("dxDEWirte", "2026-2-30");
    type("edtPrincipal", "  ");
    type("edtOrgCode", " ");
    EXPECT_EQ(save(), QStringList({alert("没有要制单的记录，请打勾选择！")}));
    tick({0});
    EXPECT_EQ(save(), QStringList({alert("填表日期有误，请重新输入！")}));
    EXPECT_EQ(focused(), QStringLiteral("dxDEWirte"));
    type("dxDEWirte", "2026-03-09");
    EXPECT_EQ(save(), QStringList({alert("责任签名不能为空，请重新输入！")}));
    EXPECT_EQ(focused(), QStringLiteral("edtPrincipal"));
    type("edtPrincipal", "甲");
    EXPECT_EQ(save(), QStringList({alert("制单医疗机构不能为空，请重新输入！")}));
    EXPECT_EQ(focused(), QStringLiteral("edtOrgCode"));
    EXPECT_TRUE(bills().isEmpty());
}

TEST_F(SavingBillTest, untickedRowsDoNotCount)
{
    open();
    tick({0, 0}); // ticked and unticked: the number 2
    EXPECT_EQ(save(), QStringList({alert("没有要制单的记录，请打勾选择！")}));
    m_desk->sqlite("update o_CbZyBxDj set TotalFee=1,CanFreeFee=1,FreeFee=1 where DiagNo=4");
    hands::trigger(m_desk->form(), "mUnCheck"); // the text "2"
    EXPECT_EQ(save(), QStringList({alert("没有要制单的记录，请打勾选择！")}));
}

TEST_F(SavingBillTest, dischargeAfterTheFillInDateStops)
{
    open();
    tick({0, 1});
    type("dxDEWirte", "2026-03-04");
    const QStringList before = m_desk->contents();
    EXPECT_EQ(save(),
              billedCheck(Both) + returnedCheck(Both) + dateCheck(Both, "2026-03-04")
                  + QStringList({alert("制单信息内有出院日期大于填表日期！")}));
    EXPECT_EQ(focused(), QStringLiteral("dxDEWirte"));
    EXPECT_EQ(m_desk->contents(), before);
}

TEST_F(SavingBillTest, billedMeanwhileAndYesGoesOnWithTheRest)
{
    open();
    tick({0, 1, 2});
    m_desk->sqlite("update o_CbZyBxDj set BillCode='42990102',BillNo=3 where CoopMedCode='0040'");
    m_desk->conversation().answerYes();
    const QString all = Both + QStringLiteral(" or ") + Third;
    const QString rest = QStringLiteral(" ") + First + QStringLiteral("  or ") + Third;
    EXPECT_EQ(
        save(),
        billedCheck(all)
            + QStringList({QStringLiteral("ask(提示,当前选择记录有已被制单信息！\r\n0040   李秀英\r\n是否继续？)=yes")})
            + returnedCheck(rest) + dateCheck(rest) + QStringList(Begin) + newNumber()
            + QStringList({insert(rest), assign(rest), Commit, hint("制单成功！")}) + reloads());
    EXPECT_EQ(m_desk->rows("select CoopMedCode from o_CbZyBxDj where BillNo=8 order by 1"),
              QStringList({QStringLiteral("00'7"), QStringLiteral("0012")}));
    EXPECT_EQ(m_desk->rows("select BillNo from o_CbZyBxDj where CoopMedCode='0040'"),
              QStringList({QStringLiteral("3")}));
}

TEST_F(SavingBillTest, billedMeanwhileAndNoReloadsFourViews)
{
    open();
    tick({0, 1});
    m_desk->sqlite(
        "update o_CbZyBxDj set BillCode='42990102',BillNo=3 where CoopMedCode in ('0040','0012') and DiagNo<4");
    m_desk->conversation().answerNo();
    EXPECT_EQ(
        save(),
        billedCheck(Both)
            + QStringList({QStringLiteral("ask(提示,当前选择记录有已被制单信息！\r\n0012   王建国\r\n0040   李秀英\r\n"
                                          "是否继续？)=no")})
            + reloads());
    EXPECT_TRUE(bills().isEmpty());
}

TEST_F(SavingBillTest, returnedMeanwhileAndNoReloadsTwoViews)
{
    open();
    tick({0, 1});
    m_desk->sqlite("update o_CbZyBxDj set OutDate=null where CoopMedCode='0040'");
    m_desk->conversation().answerNo();
    EXPECT_EQ(
        save(),
        billedCheck(Both) + returnedCheck(Both)
            + QStringList({QStringLiteral("ask(提示,当前选择记录有已被退单信息！\r\n0040   李秀英\r\n是否继续？)=no")})
            + unbilledTree() + candidates());
}

TEST_F(SavingBillTest, returnedMeanwhileAndYesGoesOnWithTheRest)
{
    open();
    tick({0, 1});
    m_desk->sqlite("update o_CbZyBxDj set OutDate=null where CoopMedCode='0040'");
    m_desk->conversation().answerYes();
    const QString rest = QStringLiteral(" ") + First + QStringLiteral(" ");
    const QStringList lines = save();
    EXPECT_EQ(lines.mid(5, 2), dateCheck(rest));
    EXPECT_TRUE(lines.contains(hint("制单成功！")));
    EXPECT_EQ(bills(), QStringList({QStringLiteral("42990101|8|甲镇卫生院|2026-03-09|100.1|80.05|0|0|1|管理员")}));
}

TEST_F(SavingBillTest, bothQuestionsMayCome)
{
    open();
    tick({0, 1, 2});
    m_desk->sqlite("update o_CbZyBxDj set BillCode='42990102',BillNo=3 where CoopMedCode='00''7'");
    m_desk->sqlite("update o_CbZyBxDj set OutDate=null where CoopMedCode='0040'");
    m_desk->conversation().answerYes();
    m_desk->conversation().answerYes();
    EXPECT_TRUE(save().contains(hint("制单成功！")));
    EXPECT_EQ(m_desk->rows("select CoopMedCode from o_CbZyBxDj where BillNo=8"), QStringList({QStringLiteral("0012")}));
}

TEST_F(SavingBillTest, cuttingTheFirstRecordOutLeavesAConditionTheDatabaseRefuses)
{
    open();
    tick({0, 1});
    m_desk->sqlite("update o_CbZyBxDj set BillCode='42990102',BillNo=3 where CoopMedCode='0012' and DiagNo=3");
    const QStringList before = m_desk->contents();
    m_desk->conversation().answerYes();
    const QStringList lines = save();
    const QString rest = QStringLiteral(" or ") + Second;
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines.last().startsWith(returnedCheck(rest).first())) << lines.last().toStdString();
    EXPECT_EQ(m_desk->errors().size(), 1) << "the failure reaches the host's display, not the page's own alert";
    EXPECT_EQ(m_desk->contents(), before);
}

TEST_F(SavingBillTest, cuttingEveryRecordOutIsRefusedByTheDatabaseToo)
{
    open();
    tick({1});
    m_desk->sqlite("update o_CbZyBxDj set BillCode='42990102',BillNo=3 where CoopMedCode='0040'");
    m_desk->conversation().answerYes();
    EXPECT_EQ(save().size(), 4);
    EXPECT_EQ(m_desk->errors().size(), 1);
    EXPECT_TRUE(bills().isEmpty());
}

TEST_F(SavingBillTest, aFailingBeginPropagates)
{
    open();
    tick({0});
    m_desk->engine().failCall(4); // three checks, then the begin
    const QStringList lines = save();
    EXPECT_EQ(lines.last(), Begin + QStringLiteral(" !故障"));
    EXPECT_EQ(m_desk->errors(), QStringList(failedWhile("保存制单")));
}

TEST_F(SavingBillTest, aFailingCheckPropagates)
{
    for (int call = 1; call <= 3; ++call) {
        open();
        tick({0});
        m_desk->engine().failCall(call);
        EXPECT_TRUE(save().last().endsWith(QStringLiteral("!故障"))) << call;
        EXPECT_EQ(m_desk->errors(), QStringList(failedWhile("保存制单"))) << call;
    }
}

TEST_F(SavingBillTest, everyStepOfTheTransactionRollsBackWhenItFails)
{
    for (int call = 5; call <= 8; ++call) { // number, insert, update, commit
        open();
        tick({0, 1});
        const QStringList before = m_desk->contents();
        m_desk->engine().failCall(call);
        const QStringList lines = save();
        EXPECT_EQ(lines.mid(lines.size() - 2), QStringList({Rollback, alert("制单失败！\r\n故障")})) << call;
        EXPECT_TRUE(lines[lines.size() - 3].endsWith(QStringLiteral("!故障"))) << call;
        EXPECT_EQ(m_desk->contents(), before) << call;
        EXPECT_TRUE(m_desk->errors().isEmpty()) << call;
        m_desk->engine().failCall(0);
        EXPECT_TRUE(save().contains(hint("制单成功！"))) << "the next attempt succeeds";
    }
}

TEST_F(SavingBillTest, aReloadFailingAfterTheCommitIsAnsweredByARollback)
{
    open();
    tick({0, 1});
    m_desk->engine().failCall(9);
    const QStringList lines = save();
    EXPECT_EQ(lines.mid(lines.size() - 2), QStringList({Rollback, alert("制单失败！\r\n故障")}));
    EXPECT_TRUE(lines.contains(hint("制单成功！")));
    EXPECT_EQ(bills().size(), 1) << "the bill is made all the same";
}

TEST_F(SavingBillTest, aRefusalOfTheDatabaseItselfRollsBack)
{
    open();
    tick({0, 1});
    m_desk->sqlite("create trigger t before update on o_CbZyBxDj begin select raise(abort,'no'); end");
    const QStringList before = m_desk->contents();
    const QStringList lines = save();
    EXPECT_EQ(lines[lines.size() - 2], Rollback);
    EXPECT_TRUE(lines.last().startsWith(QStringLiteral("FuncStorage.Alert(制单失败！\r\n")));
    EXPECT_EQ(m_desk->contents(), before);
}
