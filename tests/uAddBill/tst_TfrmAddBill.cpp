// SPDX-License-Identifier: MIT
// The dialog "添加制单".
#include "tests/support/gridreading.h"
#include "tests/uAddBill/addbill.h"
#include "toolkit/CaptionPanel.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>

using namespace expected;

namespace {

const char *const Candidates =
    " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
    " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
    " TotalFee,CanFreeFee,FreeFee,DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode,"
    " (case when CheckerCode1 is null then '2' else '1' end) as isCheck  from o_cbzybxdj "
    " where BillNo is null and OutDate is not null ";
const char *const GrantedOnly =
    " and OrgCode in (select OrgCode "
    "                      from r_UserRights a,r_RoleItem b,r_SubSysInfo c,r_BillCheckList d "
    "                      where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode "
    "                        and b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and b.SubSysCode=d.SubSysCode"
    "                        and b.IsBillAll='2' and c.SubSysCode='1' and d.BillCheck='1' "
    "                        and a.UserCode='02'                        and b.RightCode='07')";
const char *const ByDischarge = " order by OutDate ";

const QString First = QStringLiteral("(OrgCode='42990101' and CoopMedCode='0012' and IDNo=1 and DiagNo=3)");
const QString Second = QStringLiteral("(OrgCode='42990101' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)");
const QString Third = QStringLiteral("(OrgCode='42990102' and CoopMedCode='00''7' and IDNo=1 and DiagNo=1)");

QString assign(const QString &condition)
{
    return execSql(QStringLiteral(" update o_CbZyBxDj  set BillCode ='42990102',BillNo=3 where ") + condition);
}

const char *const Recompute = " update o_CbZyZdb set o_CbZyZdb.Fee=a.TotalFee,o_CbZyZdb.CanFreeFee=a.CanFreeFee  from "
                              "     ( select sum(TotalFee) as TotalFee,sum(CanFreeFee) as CanFreeFee "
                              "       from o_CbZyBxDj a "
                              "       where a.BillCode='42990102' and a.BillNo=3) a"
                              " where o_CbZyZdb.BillCode='42990102' and o_CbZyZdb.BillNo=3";

const char *const Columns[][2] = {
    {"Check", "选择"},
    {"ID", "序"},
    {"CoopMedCode", "合作医疗证号"},
    {"IDNo", "序号"},
    {"PatientName", "患者姓名"},
    {"HouseHolder", "户主姓名"},
    {"Sex", "性别"},
    {"Age", "年龄"},
    {"InDate", "就诊时间"},
    {"IllCode", "疾病代码"},
    {"IllName", "疾病名称"},
    {"TotalFee", "总费用"},
    {"CanFee", "可报销费用"},
    {"FreeFee", "报销费用"},
    {"DoctName", "医生姓名"},
    {"InputerCode", "录入人代码"},
    {"InputerName", "录入人姓名"},
    {"HospCode", "医疗服务单位代码"},
    {"HospName", "医疗服务单位名称"},
    {"Interface", "是否接口导入"},
    {"AreaCode", "行政区划"},
    {"OutDate", "出院时间"},
    {"DayCount", "住院天数"},
    {"PatientNo", "住院号"},
    {"DiagNo", ""},
    {"OrgCode", "当前医疗机构"},
};

} // namespace

TEST_F(AddBillTest, offersEveryDischargedRecordWithoutABill)
{
    inDialog([this](QWidget &dialog) {
        const QString format = read("DigitalFormat");
        EXPECT_EQ(said(),
                  QStringList({read("Color-5"), format, format, format, read("isBillAll")})
                      + query(QString::fromUtf8(Candidates) + QString::fromUtf8(ByDischarge)));
        EXPECT_EQ(hands::columnTexts(grid(dialog), "dxTLUpCoopMedCode"),
                  QStringList(
                      {QStringLiteral("0012"), QStringLiteral("0040"), QStringLiteral("00'7"), QStringLiteral("0012")}))
            << "whatever institution, in the order of discharge";
        EXPECT_EQ(hands::columnTexts(grid(dialog), "dxTLUpCheck"), QStringList(4, QString()));
        EXPECT_EQ(hands::columnTexts(grid(dialog), "dxTLUpTotalFee").first(), QStringLiteral("100.10"))
            << "amounts as the database gives them";
        EXPECT_EQ(grids::shownTexts(grid(dialog), "dxTLUpTotalFee")[2], QStringLiteral("1,300.30"));
        EXPECT_EQ(grids::shownTexts(grid(dialog), "dxTLUpID"),
                  QStringList({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4")}));
    });
}

TEST_F(AddBillTest, grantedUsersAreOfferedTheirInstitutionsOnly)
{
    Desk::Options options;
    options.user = QStringLiteral("02");
    inDialog(
        [this](QWidget &dialog) {
            const QString format = read("DigitalFormat");
            EXPECT_EQ(said(),
                      QStringList({read("Color-5"), format, format, format, read("isBillAll"),
                                   QStringLiteral("FuncStorage.UserID()"), read("RightCode")})
                          + query(QString::fromUtf8(Candidates) + QString::fromUtf8(GrantedOnly)
                                  + QString::fromUtf8(ByDischarge)));
            EXPECT_EQ(hands::columnTexts(grid(dialog), "dxTLUpOrgCode"), QStringList(3, QStringLiteral("42990101")));
        },
        options);
}

TEST_F(AddBillTest, anyOtherRuleNarrowsNothing)
{
    Desk::Options options;
    options.parameters = {{QStringLiteral("isBillAll"), QStringLiteral("3")}};
    inDialog([](QWidget &dialog) { EXPECT_EQ(grid(dialog).count(), 4); }, options);
}

TEST_F(AddBillTest, hasItsColumnsInOrder)
{
    inDialog([](QWidget &dialog) {
        ASSERT_EQ(grid(dialog).columnCount(), 26);
        for (int i = 0; i < 26; ++i) {
            const TdxTreeListColumn &column = *grid(dialog).column(i);
            EXPECT_EQ(column.objectName(), QStringLiteral("dxTLUp") + QString::fromUtf8(Columns[i][0]));
            EXPECT_EQ(column.caption(), QString::fromUtf8(Columns[i][1])) << i;
            EXPECT_EQ(column.isVisible(), i < 24) << i;
            EXPECT_EQ(column.isEditable(), i == 0 || i == 13 || i == 25) << i;
        }
        const auto *interface = qobject_cast<const TdxTreeListCheckColumn *>(grid(dialog).column(19));
        ASSERT_NE(interface, nullptr);
        EXPECT_EQ(interface->valueChecked(), QStringLiteral("True"));
        EXPECT_EQ(interface->valueUnchecked(), QStringLiteral("False"));
        EXPECT_EQ(grid(dialog).node(0).text(19), QStringLiteral("1"));
        EXPECT_EQ(grids::shownTexts(grid(dialog), "dxTLUpInterface"), QStringList(4, QStringLiteral("未勾选")))
            << "the database never says True";
    });
}

TEST_F(AddBillTest, hasItsTexts)
{
    inDialog([](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("添加制单"));
        const auto &panel = hands::find<CaptionPanel>(dialog, "pnlAdd");
        const auto &label = hands::find<QLabel>(dialog, "LbAdd");
        EXPECT_EQ(label.text(), QStringLiteral("住\r\n \r\n院\r\n \r\n报\r\n \r\n销\r\n \r\n登\r\n \r\n记\r\n \r\n表"));
        EXPECT_EQ(label.y(), (panel.height() - label.height()) / 2);
        EXPECT_EQ(hands::find<QAbstractButton>(dialog, "btnSave").text(), QStringLiteral("确定(&O)"));
        EXPECT_EQ(hands::find<QAbstractButton>(dialog, "btnCancel").text(), QStringLiteral("取消(&C)"));
        for (const char *name : {"edtUpNum", "dxCEUpTotal", "dxCEUpCanFee", "dxCEUpFreeFee"})
            EXPECT_FALSE(hands::find<QWidget>(dialog, name).isEnabled()) << name;
    });
}

TEST_F(AddBillTest, rowsAreColouredInTurnAndTheFocusedOneApart)
{
    inDialog([](QWidget &dialog) {
        EXPECT_EQ(grids::backgrounds(grid(dialog), "dxTLUpPatientName"),
                  QStringList({QStringLiteral("#336699"), QStringLiteral("#eef4f7"),
                               dialog.palette().color(QPalette::Base).name(), QStringLiteral("#eef4f7")}));
    });
}

TEST_F(AddBillTest, totalsAreEmptyBeforeTheFirstTickAndFollowTheTicks)
{
    inDialog([this](QWidget &dialog) {
        EXPECT_EQ(totals(dialog), QStringLiteral("|||"));
        (void)said();
        tick(dialog, {0});
        EXPECT_EQ(totals(dialog), QStringLiteral("1|100.10|80.05|50.02"));
        tick(dialog, {2});
        EXPECT_EQ(totals(dialog), QStringLiteral("2|1,400.40|1,080.05|650.52"));
        tick(dialog, {0});
        EXPECT_EQ(totals(dialog), QStringLiteral("1|1,300.30|1,000.00|600.50"));
        EXPECT_EQ(grid(dialog).node(0).value(0), QVariant(2)) << "a click unticks with the number";
        tick(dialog, {2});
        EXPECT_EQ(totals(dialog), QStringLiteral("0|0.00|0.00|0.00"));
        EXPECT_TRUE(said().isEmpty());
    });
}

TEST_F(AddBillTest, aTypedAmountFeedsTheTotalsAtTheNextTickAndIsNeverSaved)
{
    inDialog([](QWidget &dialog) {
        tick(dialog, {0});
        const QModelIndex cell = grid(dialog).model()->index(0, 13);
        ASSERT_TRUE(grid(dialog).model()->setData(cell, QStringLiteral("77.5"), Qt::EditRole));
        EXPECT_EQ(totals(dialog).section(u'|', 3), QStringLiteral("50.02")) << "not yet";
        tick(dialog, {1});
        EXPECT_EQ(totals(dialog).section(u'|', 3), QStringLiteral("177.50"));
        hands::click(dialog, "btnSave");
    });
    EXPECT_EQ(m_desk->rows("select FreeFee from o_CbZyBxDj where BillNo=3 order by CoopMedCode"),
              QStringList({QStringLiteral("50.02"), QStringLiteral("100"), QStringLiteral("5")}));
}

TEST_F(AddBillTest, aTickOnAnAmountThatIsNullIsStoredAllTheSame)
{
    inDialog([this](QWidget &dialog) {
        tick(dialog, {3});
        EXPECT_EQ(m_desk->errors().size(), 1) << "an empty amount is no number";
        EXPECT_EQ(grid(dialog).node(3).text(0), QStringLiteral("1"));
        EXPECT_EQ(totals(dialog), QStringLiteral("|||"));
    });
}

TEST_F(AddBillTest, savingJoinsTheRecordsAndSumsTheBillAnew)
{
    inDialog([this](QWidget &dialog) {
        tick(dialog, {2, 0});
        (void)said();
        hands::click(dialog, "btnSave");
        EXPECT_EQ(said(),
                  QStringList({Begin, assign(QStringLiteral(" ") + First + QStringLiteral(" or ") + Third),
                               execSql(QString::fromUtf8(Recompute)), Commit, hint("添加制单成功！")}))
            << "in the order shown";
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(bill(), QStringList({QStringLiteral("1410.4|1088.05|1")}));
    EXPECT_EQ(m_desk->rows("select CoopMedCode from o_CbZyBxDj where BillCode='42990102' and BillNo=3 order by 1"),
              QStringList({QStringLiteral("00'7"), QStringLiteral("0012"), QStringLiteral("0080")}));
}

TEST_F(AddBillTest, recordsAreNamedInTheOrderThatTheHeaderGaveThem)
{
    inDialog([this](QWidget &dialog) {
        QHeaderView &header = *grid(dialog).header();
        const int name =
            header.sectionViewportPosition(grid(dialog).columnByName(QStringLiteral("dxTLUpPatientName"))->position());
        for (int click = 0; click < 2; ++click) // the second turns the order round
            QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {name + 10, header.height() / 2});
        ASSERT_EQ(hands::columnTexts(grid(dialog), "dxTLUpPatientName").join(u' '),
                  QStringLiteral("张伟 王建国 王建国 李秀英"));
        tick(dialog, {3, 1, 0});
        (void)said();
        hands::click(dialog, "btnSave");
        EXPECT_EQ(
            said().value(1),
            assign(QStringLiteral(" ") + Third + QStringLiteral(" or ") + First + QStringLiteral(" or ") + Second));
    });
    EXPECT_EQ(bill(), QStringList({QStringLiteral("1610.6|1238.05|1")}));
}

// No statement asks whether the bill is still there: the records get the number of a bill that is gone, the sum finds
// no row to go to, and the clerk is told of success.
TEST_F(AddBillTest, addingToABillThatIsGoneStampsTheRecordsAllTheSame)
{
    inDialog([this](QWidget &dialog) {
        m_desk->sqlite("delete from o_CbZyZdb where BillNo=3");
        tick(dialog, {0});
        (void)said();
        hands::click(dialog, "btnSave");
        EXPECT_EQ(said(),
                  QStringList({Begin, assign(QStringLiteral(" ") + First), execSql(QString::fromUtf8(Recompute)),
                               Commit, hint("添加制单成功！")}));
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_TRUE(bill().isEmpty());
    EXPECT_EQ(m_desk->rows("select CoopMedCode,BillCode from o_CbZyBxDj where BillNo=3 order by 1"),
              QStringList({QStringLiteral("0012|42990102"), QStringLiteral("0080|42990102")}));
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(AddBillTest, theBillsStatusStaysAndSoDoReviews)
{
    inDialog(
        [](QWidget &dialog) {
            tick(dialog, {0});
            hands::click(dialog, "btnSave");
        },
        Desk::Options(), "update o_CbZyZdb set CheckStatus='9',CheckFee1=3");
    EXPECT_EQ(m_desk->rows("select Fee,CheckStatus,CheckFee1 from o_CbZyZdb where BillNo=3"),
              QStringList({QStringLiteral("110.1|9|3")}));
}

TEST_F(AddBillTest, sumsOfNothingButNullsStayNull)
{
    inDialog(
        [](QWidget &dialog) {
            tick(dialog, {3});
            hands::click(dialog, "btnSave");
        },
        Desk::Options(), "update o_CbZyBxDj set TotalFee=null,CanFreeFee=null where BillNo=3");
    EXPECT_EQ(bill(), QStringList({QStringLiteral("null|null|1")}));
}

TEST_F(AddBillTest, withNothingTickedTheClerkIsTold)
{
    inDialog([this](QWidget &dialog) {
        (void)said();
        hands::click(dialog, "btnSave");
        EXPECT_EQ(said(), QStringList(alert("没有要制单的记录，请打勾选择！")));
        tick(dialog, {1, 1});
        (void)said();
        hands::click(dialog, "btnSave");
        EXPECT_EQ(said(), QStringList(alert("没有要制单的记录，请打勾选择！"))) << "unticked again";
        EXPECT_TRUE(dialog.isVisible());
    });
}

TEST_F(AddBillTest, anEmptyListSavesNothing)
{
    inDialog(
        [this](QWidget &dialog) {
            (void)said();
            hands::click(dialog, "btnSave");
            EXPECT_TRUE(said().isEmpty());
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_EQ(totals(dialog), QStringLiteral("|||"));
        },
        Desk::Options(), "update o_CbZyBxDj set OutDate=null");
}

TEST_F(AddBillTest, everyStepOfSavingRollsBackAndKeepsTheSelection)
{
    for (int call = 1; call <= 4; ++call) {
        inDialog([this, call](QWidget &dialog) {
            tick(dialog, {0, 2});
            (void)said();
            const QStringList before = m_desk->contents();
            m_desk->engine().failCall(call);
            hands::click(dialog, "btnSave");
            const QStringList lines = said();
            EXPECT_EQ(lines.mid(lines.size() - 2), QStringList({Rollback, alert("添加制单失败！\r\n故障")})) << call;
            EXPECT_EQ(m_desk->contents(), before) << call;
            EXPECT_TRUE(dialog.isVisible()) << call;
            EXPECT_EQ(hands::columnTexts(grid(dialog), "dxTLUpCheck"),
                      QStringList({QStringLiteral("1"), QString(), QStringLiteral("1"), QString()}));
            m_desk->engine().failCall(0);
            hands::click(dialog, "btnSave");
            EXPECT_FALSE(dialog.isVisible()) << "the next attempt succeeds";
        });
        EXPECT_EQ(bill(), QStringList({QStringLiteral("1410.4|1088.05|1")})) << call;
    }
}

TEST_F(AddBillTest, cancelSavesNothing)
{
    inDialog([this](QWidget &dialog) {
        tick(dialog, {0});
        (void)said();
        hands::click(dialog, "btnCancel");
        EXPECT_TRUE(said().isEmpty());
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(bill(), QStringList({QStringLiteral("10|8|1")}));
}

TEST_F(AddBillTest, aListThatCannotBeLoadedReachesTheCaller)
{
    Desk desk;
    desk.open();
    desk.engine().failCall(1);
    TfrmAddBill dialog({QStringLiteral("42990102"), QStringLiteral("3")}, &desk.form());
    EXPECT_THROW(dialog.ShowModal(), std::exception);
    EXPECT_FALSE(dialog.isVisible());
}
