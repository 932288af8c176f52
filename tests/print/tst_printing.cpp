// SPDX-License-Identifier: MIT
// The buttons of the page "报销制单" and the reprints from history, with the forms as they are delivered.
#include "tests/print/deskforms.h"
#include "tests/print/notedpapers.h"
#include "tests/support/desk.h"
#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"
#include "tests/uMain/expected.h"

#include <gtest/gtest.h>

#include <QDateEdit>

using namespace expected;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

// The settlement of 王建国's third stay, and one in the archive.
const char *const Settlements = R"(
insert into p_fylb(FeeTypeCode,FeeTypeName) values ('01','西药费'),('02','中成药费'),('03','床位费'),('0101','抗微生物药');
insert into p_CbNhGrXx(CoopMedCode,IDNo,isHouseHolder,Address,HomeProperty) values
 ('0012',1,'1','甲镇一村','0103'),('0090',1,'1','甲镇二村',null);
insert into p_HomeProperty(PropertyCode,PropertyName) values ('01','五保户'),('02','优抚对象'),('03','低保户');
insert into p_ZyBxGs(ExpressionsId,ExpressionsName) values ('G1','镇级住院公式');
insert into p_BxXm(ItemCode,Gg) values ('A1','0.5g*10'),('A3','三人间');
insert into o_CbZyJsb(OrgCode,CoopMedCode,IDNo,DiagNo,HospitalName,HouseHolder,PatientName,Sex,InDate,OutDate,DayCount,
 PatientNo,IllName,InHosCount,Fee,CanFreeFee,FreeFee,MzFee,HosFee) values
 ('42990101','0012',1,3,'甲镇卫生院','王大山','王建国','男','2026-02-20','2026-03-01',9,'Z1','肺炎',1,100.10,80.05,50.02,0,100.10);
insert into o_CbZyJsMxb(OrgCode,CoopMedCode,IDNo,DiagNo,FeeTypeCode,Fee,CanFreeFee,FreeFee) values
 ('42990101','0012',1,3,'01',60.10,50.05,30.00),('42990101','0012',1,3,'03',40.00,30.00,20.02);
insert into s_CbZyJsb(OrgCode,CoopMedCode,IDNo,DiagNo,PatientName,Fee,CanFreeFee,FreeFee,MzFee,HosFee) values
 ('42990101','0090',1,1,'吴刚',90.00,60.00,40.00,0,90.00);
insert into s_CbZyJsMxb(OrgCode,CoopMedCode,IDNo,DiagNo,FeeTypeCode,Fee,CanFreeFee,FreeFee) values
 ('42990101','0090',1,1,'03',90.00,60.00,40.00);
insert into o_CbZyBxDjZb(OrgCode,CoopMedCode,IDNo,DiagNo,FeeNo,ItemCode,ItemName,IfPass,Unit,Price,Num,Fee,YyDate) values
 ('42990101','0012',1,3,1,'A3','床位','2','日',20,2,40,'2026-02-21'),
 ('42990101','0012',1,3,2,'A1','青霉素','1','盒',30.05,2,60.10,'2026-02-20'),
 ('42990101','0012',1,3,3,'A9','不在目录','1','盒',1,1,1,'2026-02-20');
insert into s_CbZyBxDjZb(OrgCode,CoopMedCode,IDNo,DiagNo,FeeNo,ItemCode,ItemName,IfPass,Unit,Price,Num,Fee,YyDate) values
 ('42990101','0090',1,1,1,'A3','旧床位','1','日',30,3,90,'2025-11-02'))";

const char *const ProcedureRows = R"(
insert into v_Procedure(Name,Text) values
 ('Pro_Zy_FeeInterFace','select isnull((select ''1&''+cast(FreeFee as varchar(20))+''#补偿说明''+@Type
   from o_CbZyJsb where OrgCode=@OrgCode and CoopMedCode=@CoopMedCode and IDNo=@IDNo and DiagNo=@DiagNo),''0&没有结算'')'),
 ('Pro_Zy_SFeeInterFace','select isnull((select ''1&''+cast(FreeFee as varchar(20))+''#归档说明''+@Type
   from s_CbZyJsb where OrgCode=@OrgCode and CoopMedCode=@CoopMedCode and IDNo=@IDNo and DiagNo=@DiagNo),''0&没有结算''
 )'))";

QStringList statements(const QStringList &conversation)
{
    QStringList found;
    for (const QString &line : conversation) {
        if (line.startsWith(QStringLiteral("DataCtl.OpenSql(")) || line.startsWith(QStringLiteral("DataCtl.ExecProc(")))
            found.append(line);
    }
    return found;
}

class PrintingTest : public testing::Test {
protected:
    void open(bool withProcedures = true, const std::vector<const char *> &more = {})
    {
        m_desk.emplace();
        for (const QString &statement : text(Settlements).split(u';'))
            m_desk->sqlite(statement.toUtf8().constData());
        if (withProcedures)
            m_desk->sqlite(ProcedureRows);
        for (const char *statement : more)
            m_desk->sqlite(statement);
        layForms(QStringLiteral(TEMPLATES));
        m_desk->open();
        (void)said();
    }
    void focusCandidate(int row)
    {
        hands::clickCell(hands::find<TdxTreeList>(form(), "dxTLUp"), row, "dxTLUpPatientName");
        (void)said();
    }
    /// The first record of the first bill in history.
    void focusHistorical()
    {
        hands::showPage(form(), "TabSheet2");
        hands::clickNode(hands::find<TdxTreeList>(form(), "dxTLOldOrg"), 0, 0);
        hands::clickCell(hands::find<TdxTreeList>(form(), "dxTLOldBill"), 0, "dxTLOldBillPatientName");
        (void)said();
    }
    [[nodiscard]] QWidget &form() const { return m_desk->form(); }
    [[nodiscard]] QStringList said() { return m_desk->conversation().take(); }
    /// The boxes of the only document printed.
    [[nodiscard]] QStringList paper()
    {
        const QStringList papers = m_papers.take();
        EXPECT_EQ(papers.size(), 1);
        return papers.value(0).split(u'\n');
    }
    [[nodiscard]] static QString behind(const QStringList &boxes, const char *caption)
    {
        return boxes.value(boxes.indexOf(text(caption)) + 1);
    }

    std::optional<Desk> m_desk;
    NotedPapers m_papers;
};

const char *const SheetKey = "OrgCode='42990101' and CoopMedCode='0012'   and IDNo=1 and DiagNo=3";

} // namespace

TEST_F(PrintingTest, SettlementSheetOfTheFocusedCandidate)
{
    open();
    focusCandidate(0);
    hands::click(form(), "btnOutFee");
    EXPECT_EQ(
        said(),
        query(text(" select HomeProperty from p_CbNhGrXx  where CoopMedCode='0012' and IDNo=1"))
            + query(text(" select PropertyCode,PropertyName from p_HomeProperty "))
            + query(
                text(" select CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,convert(varchar(10),BirthDay,126)"
                     " as BirthDay, RelationName,Address,convert(varchar(10),InDate,126) as InDate,"
                     "convert(varchar(10),OutDate,126) as OutDate, DayCount,PatientNo,IllName,InHosCount,Fee,"
                     "CanFreeFee,FreeFee,MzFee,HosFee,'五保户/低保户' as HomeProperty  from o_CbZyJsb  where ")
                + text(SheetKey))
            + query(text(" select FeeTypeCode,Fee,CanFreeFee,FreeFee  from o_CbZyJsMxb  where OrgCode='42990101' and "
                         "CoopMedCode='0012'   and IDNO=1 and DiagNo=3"))
            + query(
                text(" select FeeTypeCode,FeeTypeName from p_fylb where len(feetypecode)=2 order by FeeTypeCode ")));
    const QStringList boxes = paper();
    EXPECT_EQ(behind(boxes, "患者姓名"), text("王建国"));
    EXPECT_EQ(behind(boxes, "家庭属性"), text("五保户/低保户"));
    EXPECT_EQ(behind(boxes, "实际补偿"), QStringLiteral("50.02"));
    EXPECT_EQ(behind(boxes, "补偿金额（大写）"), text("人民币：伍拾元零贰分"));
    EXPECT_EQ(boxes.mid(boxes.indexOf(text("西药费")), 4),
              QStringList({text("西药费"), text("60.10"), text("50.05"), text("10.05")}));
    EXPECT_EQ(boxes.count(text("床位费")), 10) << "places beyond the three types repeat the last one";
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(PrintingTest, ApprovalFormOfTheFocusedCandidate)
{
    open();
    focusCandidate(0);
    hands::click(form(), "btnFeeGs");
    const QStringList asked = statements(said());
    ASSERT_EQ(asked.size(), 5);
    EXPECT_EQ(asked.at(0), openSql(text(" select ExpressionsName from p_ZyBxGs where ExpressionsId = 'G1'")));
    EXPECT_EQ(
        asked.at(1),
        text("DataCtl.ExecProc( Pro_Zy_FeeInterFace @OrgCode='42990101',@CoopMedCode='0012',@IDNo='1',@DiagNo='3',"
             "@Type='1',@Info=:Info OutPut )"));
    EXPECT_TRUE(asked.at(2).contains(text("'不限' as LimitDef, IllName")));
    EXPECT_TRUE(asked.at(2).contains(text("'镇级住院公式' as ExpressionsName,'补偿说明1' as PrintInfo,")));
    EXPECT_TRUE(asked.at(3).contains(text("from o_CbZyJsMxb ")));
    EXPECT_EQ(asked.at(4),
              openSql(text(" select FeeTypeCode,FeeTypeName from p_Fylb where Len(FeeTypeCode)=2 order by "
                           "FeeTypeCode ")));
    const QStringList boxes = paper();
    EXPECT_EQ(behind(boxes, "计算说明"), text("补偿说明1"));
    EXPECT_EQ(behind(boxes, "补偿限额"), text("不限"));
    EXPECT_EQ(behind(boxes, "累计总费用"), QStringLiteral("100.10")) << "of two stays, one without amounts";
    EXPECT_EQ(behind(boxes, "累计补偿"), QStringLiteral("50.02"));
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(PrintingTest, AStayWithoutSettlementIsAlertedAndItsFormCarriesTheSummaryBefore)
{
    open();
    focusCandidate(0);
    hands::click(form(), "btnFeeGs");
    (void)paper();
    focusCandidate(1);
    hands::click(form(), "btnFeeGs");
    const QStringList lines = said();
    EXPECT_TRUE(lines.contains(alert("没有结算")));
    EXPECT_TRUE(statements(lines).value(2).contains(text("'限额500' as LimitDef")));
    EXPECT_TRUE(statements(lines).value(2).contains(text("'补偿说明1' as PrintInfo")));
    EXPECT_EQ(behind(paper(), "患者姓名"), QString()) << "the form has no header row";
}

TEST_F(PrintingTest, ALongSummaryGoesOnOnASecondPageWithTheBoxesForSignatures)
{
    QString summary;
    for (int step = 1; summary.size() < 1500; ++step)
        summary += QStringLiteral("第%1步：按比例计算；").arg(step);
    const QByteArray procedure =
        QStringLiteral(
            "insert into v_Procedure(Name,Text) values ('Pro_Zy_FeeInterFace','select ''1&''+cast(FreeFee as "
            "varchar(20))+''#%1'' from o_CbZyJsb where OrgCode=@OrgCode and CoopMedCode=@CoopMedCode and "
            "IDNo=@IDNo and DiagNo=@DiagNo and @Type=@Type')")
            .arg(summary)
            .toUtf8();
    open(false, {procedure.constData()});
    focusCandidate(0);
    hands::click(form(), "btnFeeGs");
    const QStringList boxes = paper();
    EXPECT_TRUE(boxes.contains(text("第 1 页　共 2 页")));
    EXPECT_TRUE(boxes.contains(text("第 2 页　共 2 页")));
    const QString first = behind(boxes, "计算说明");
    const QString second = behind(boxes.mid(boxes.indexOf(first)), "计算说明");
    EXPECT_EQ(first + second, summary);
    EXPECT_GT(boxes.indexOf(text("审批")), boxes.indexOf(second));
    EXPECT_TRUE(boxes.contains(text("审批表（续）　患者：王建国　　医疗证号：0012")));
    EXPECT_EQ(m_desk->errors().join(u'\n').toStdString(), "");
}

TEST_F(PrintingTest, WithoutAProcedureTheLibraryIsTried)
{
    open(false);
    focusCandidate(0);
    hands::click(form(), "btnFeeGs");
    const QStringList asked = statements(said());
    EXPECT_EQ(asked.size(), 4);
    EXPECT_TRUE(asked.value(1).contains(text("'' as PrintInfo,")));
    EXPECT_EQ(behind(paper(), "患者姓名"), text("王建国")) << "the form is printed without a summary";
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(PrintingTest, FeeListOfTheFocusedCandidate)
{
    open();
    focusCandidate(0);
    const ModalVisit visit(QStringLiteral("frmPrint"), [](QWidget &dialog) {
        EXPECT_EQ(hands::find<QDateEdit>(dialog, "dtpBegDate").date(), QDate(2026, 2, 20));
        EXPECT_EQ(hands::find<QDateEdit>(dialog, "dtpEndDate").date(), QDate(2026, 3, 1));
        hands::click(dialog, "btnPrint");
    });
    hands::click(form(), "btnFeeInfo");
    const QStringList lines = said();
    EXPECT_EQ(statements(lines).size(), 2);
    EXPECT_TRUE(lines.contains(QStringLiteral("FuncStorage.UserName()")));
    EXPECT_FALSE(lines.contains(QStringLiteral("DataCtl.CloseSql()"))) << "the dialog closes nothing";
    const QStringList boxes = paper();
    EXPECT_LT(boxes.indexOf(text("青霉素")), boxes.indexOf(text("床位"))) << "by date, then by number";
    EXPECT_NE(boxes.indexOf(text("青霉素")), -1);
    EXPECT_FALSE(boxes.contains(text("不在目录"))) << "items without an entry in the catalogue are left out";
    EXPECT_EQ(behind(boxes, "合计（元）"), QStringLiteral("100.10"));
}

TEST_F(PrintingTest, ArchivedStaysAreReprintedFromTheArchive)
{
    open();
    focusHistorical();
    hands::trigger(form(), "mJxP");
    QStringList asked = statements(said());
    ASSERT_EQ(asked.size(), 4) << "without properties the list of them is not asked for";
    EXPECT_TRUE(asked.at(1).contains(text("'一般农户' as HomeProperty  from s_CbZyJsb  where OrgCode='42990101' and "
                                          "CoopMedCode='0090'   and IDNo=1 and DiagNo=1")));
    EXPECT_TRUE(asked.at(2).contains(text(" from s_CbZyJsMxb  where OrgCode='42990101' and CoopMedCode='0090'   and "
                                          "IDNO=1 and DiagNo=1")));
    EXPECT_EQ(behind(paper(), "实际补偿"), QStringLiteral("40.00"));

    hands::trigger(form(), "mCheckP");
    asked = statements(said());
    EXPECT_TRUE(asked.value(1).startsWith(text("DataCtl.ExecProc( Pro_Zy_SFeeInterFace @OrgCode='42990101',"
                                               "@CoopMedCode='0090',@IDNo='1',@DiagNo='1',")));
    EXPECT_TRUE(asked.value(2).contains(text(" from s_CbZyJsb ")));
    const QStringList boxes = paper();
    EXPECT_EQ(behind(boxes, "计算说明"), text("归档说明1"));
    EXPECT_EQ(behind(boxes, "累计总费用"), QStringLiteral("90.00"));

    const ModalVisit visit(QStringLiteral("frmPrint"), [](QWidget &dialog) { hands::click(dialog, "btnPrint"); });
    hands::trigger(form(), "mFeeDetail");
    asked = statements(said());
    ASSERT_EQ(asked.size(), 2);
    EXPECT_TRUE(asked.at(0).contains(text(" from s_CbZyBxDj ")));
    EXPECT_TRUE(asked.at(1).contains(text(" from s_CbZyBxDjZb a,p_BxXm b ")));
    EXPECT_TRUE(paper().contains(text("旧床位")));
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(PrintingTest, BillsInUseAreReprintedFromTheTablesInUse)
{
    // The settled stay stands on a bill newer than the archived one.
    open(true,
         {"update o_CbZyBxDj set BillCode='42990101',BillNo=9 where CoopMedCode='0012' and DiagNo=3",
          "insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,CheckStatus) values "
          "('42990101',9,'甲镇卫生院','2026-03-08','2')"});
    focusHistorical();
    hands::trigger(form(), "mJxP");
    const QStringList asked = statements(said());
    ASSERT_EQ(asked.size(), 5);
    EXPECT_TRUE(asked.at(2).contains(text("  from o_CbZyJsb  where ") + text(SheetKey)));
    EXPECT_EQ(behind(paper(), "实际补偿"), QStringLiteral("50.02"));
    hands::trigger(form(), "mCheckP");
    EXPECT_TRUE(statements(said()).value(1).startsWith(text("DataCtl.ExecProc( Pro_Zy_FeeInterFace ")));
    EXPECT_EQ(behind(paper(), "计算说明"), text("补偿说明1"));
}

TEST_F(PrintingTest, AMissingFormIsShownByTheHostAndTheProgramGoesOn)
{
    open();
    focusCandidate(0);
    ASSERT_TRUE(QFile::remove(common::executableFolder() + text("Module/结算单.rmf")));
    hands::click(form(), "btnOutFee");
    EXPECT_TRUE(said().isEmpty());
    ASSERT_EQ(m_desk->errors().size(), 1);
    EXPECT_TRUE(m_desk->errors().at(0).contains(text("结算单.rmf"))) << m_desk->errors().at(0).toStdString();
    hands::click(form(), "btnFeeGs");
    EXPECT_EQ(m_papers.take().size(), 1);
}

TEST_F(PrintingTest, AVariableWithoutDigitsIsShownByTheHost)
{
    open();
    focusCandidate(0);
    QFile file(common::executableFolder() + text("Module/结算单.rmf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<report title=\"t\" paper=\"A4\"><title><text x=\"0\" y=\"0\" w=\"9\" h=\"9\">[FTYPEx]</text></title>"
               "</report>");
    file.close();
    hands::click(form(), "btnOutFee");
    EXPECT_EQ(m_desk->errors().size(), 1);
    EXPECT_TRUE(m_papers.take().isEmpty());
}
