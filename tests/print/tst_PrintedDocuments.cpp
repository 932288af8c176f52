// SPDX-License-Identifier: MIT
// Settlement sheet and approval form: the ordered conversation with the host, and the answers to the variables.
#include "print/PrintedDocuments.h"

#include "Common/executablefolder.h"
#include "host/clientdataset.h"
#include "host/statementbuffer.h"
#include "tests/print/notedpapers.h"
#include "tests/print/printhost.h"
#include "toolkit/TdxTreeList.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using print::PrintSettings;
using print::SettlementRoute;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

const char *const Household = " select HomeProperty from p_CbNhGrXx  where CoopMedCode='00''12' and IDNo=1";
const char *const Properties = " select PropertyCode,PropertyName from p_HomeProperty ";
const char *const Formula = " select ExpressionsName from p_ZyBxGs where ExpressionsId = 'G''1'";
const char *const Procedure = "ExecProc Pro_Zy_FeeInterFace @OrgCode='4201',@CoopMedCode='00''12',@IDNo='1',"
                              "@DiagNo='3',@Type='1',@Info=:Info OutPut ";
const char *const ArchiveProcedure = "ExecProc Pro_Zy_SFeeInterFace @OrgCode='4201',@CoopMedCode='00''12',@IDNo='1',"
                                     "@DiagNo='3',@Type='1',@Info=:Info OutPut ";
const char *const SheetTypes = " select FeeTypeCode,FeeTypeName from p_fylb where len(feetypecode)=2 order by "
                               "FeeTypeCode ";
const char *const SheetTypesOtherwise = " select FeeTypeCode,FeeTypeName from p_fylb where length(feetypecode)=2 "
                                        "order by FeeTypeCode ";
const char *const FormTypes = " select FeeTypeCode,FeeTypeName from p_Fylb where Len(FeeTypeCode)=2 order by "
                              "FeeTypeCode ";
const char *const FormTypesOtherwise = " select FeeTypeCode,FeeTypeName from p_Fylb where Length(FeeTypeCode)=2 order "
                                       "by FeeTypeCode ";

/// %1 is the letter of the tables.
QString sheet(const char *letter, const char *household = "一般农户")
{
    return QStringLiteral(" select CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,convert(varchar(10),BirthDay,"
                          "126) as BirthDay, RelationName,Address,convert(varchar(10),InDate,126) as InDate,convert("
                          "varchar(10),OutDate,126) as OutDate, DayCount,PatientNo,IllName,InHosCount,Fee,CanFreeFee,"
                          "FreeFee,MzFee,HosFee,'%2' as HomeProperty  from %1_CbZyJsb  where OrgCode='4201' and "
                          "CoopMedCode='00''12'   and IDNo=1 and DiagNo=3")
        .arg(text(letter), text(household));
}

QString fees(const char *letter)
{
    return QStringLiteral(" select FeeTypeCode,Fee,CanFreeFee,FreeFee  from %1_CbZyJsMxb  where OrgCode='4201' and "
                          "CoopMedCode='00''12'   and IDNO=1 and DiagNo=3")
        .arg(text(letter));
}

QString form(const char *letter, const char *limit, const char *formula = "", const char *printInfo = "")
{
    return QStringLiteral(
               " select CoopMedCode,PatientName,HouseHolder,Sex,convert(varchar(10),BirthDay,126) as BirthDay,  "
               "RelationName,Address,HospitalName,InHosCount,convert(varchar(10),InDate,126) as InDate,  "
               "convert(varchar(10),OutDate,126) as OutDate,DayCount,PatientNo,'%2' as LimitDef, "
               "IllName,Fee,CanFreeFee,FreeFee,MzFee,HosFee,'%3' as ExpressionsName,'%4' as PrintInfo, (select "
               "sum(TotalFee)   from (select sum(TotalFee) TotalFee from o_CbZyBxDj a         where "
               "a.CoopMedCode=%1_CbZyJsb.CoopMedCode and a.IDNo=%1_CbZyJsb.IDNo         union all         select "
               "sum(TotalFee) from s_CbZyBxDj a         where a.CoopMedCode=%1_CbZyJsb.CoopMedCode and "
               "a.IDNo=%1_CbZyJsb.IDNo ) a) TSumTotalFee, (select sum(FreeFee)   from (select sum(FreeFee) FreeFee "
               "from o_CbZyBxDj a         where a.CoopMedCode=%1_CbZyJsb.CoopMedCode and a.IDNo=%1_CbZyJsb.IDNo       "
               "  union all         select sum(FreeFee) from s_CbZyBxDj a         where "
               "a.CoopMedCode=%1_CbZyJsb.CoopMedCode and a.IDNo=%1_CbZyJsb.IDNo ) a) as TSumFree  from %1_CbZyJsb  "
               "where OrgCode='4201' and CoopMedCode='00''12'   and IDNo=1 and DiagNo=3")
        .arg(text(letter), text(limit), text(formula), text(printInfo));
}

QStringList opened(const QStringList &statements)
{
    QStringList calls;
    for (const QString &statement : statements) {
        calls.append(statement);
        if (!statement.startsWith(QStringLiteral("ExecProc")) && !statement.startsWith(QStringLiteral("Alert")))
            calls.append(QStringLiteral("CloseSql"));
    }
    return calls;
}

const std::vector<toolkit::ColumnDefinition> Columns = {
    {.name = "dxTLAnyDiagNo"}, {.name = "dxTLAnyOrgCode"},  {.name = "dxTLAnyCoopMedCode"},
    {.name = "dxTLAnyIDNo"},   {.name = "dxTLAnyLimitDef"}, {.name = "dxTLAnyExpressionsID"},
};

class DocumentTest : public testing::Test {
protected:
    DocumentTest()
    {
        common::setExecutableFolder(m_folder.path());
        EXPECT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("Module")));
        lay("结算单.rmf", "结算单 [CoopMedCode]");
        lay("住院审批表.rmf", "审批表 [CoopMedCode]");
        m_grid.setObjectName(QStringLiteral("dxTLAny"));
        m_grid.setColumns(Columns);
        focus("0");
    }
    ~DocumentTest() override { common::setExecutableFolder({}); }

    /// Puts a form in place that has one line of text.
    void lay(const char *name, const char *line) const
    {
        QFile file(m_folder.filePath(QStringLiteral("Module/") + text(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QStringLiteral(R"(<report title="t" paper="A4"><title><text x="0" y="0" w="170" h="6">%1</text>)"
                                  "</title></report>")
                       .arg(text(line))
                       .toUtf8());
    }
    void focus(const char *limit)
    {
        m_grid.clearNodes();
        const TdxTreeListNode row = m_grid.addNode();
        const char *const values[] = {"3", "4201", "00'12", "1", limit, "G'1"};
        for (int i = 0; i < 6; ++i)
            row.setValue(i, text(values[i]));
        m_grid.setFocusedNode(row);
    }
    void answer(const QString &sql, const std::vector<QString> &columns, const std::vector<QStringList> &rows)
    {
        m_host.script.answers.insert(sql, printhost::packet(columns, rows));
    }
    void answerHousehold(const char *codes)
    {
        answer(text(Household), {QStringLiteral("HomeProperty")}, {{text(codes)}});
        answer(text(Properties), {QStringLiteral("PropertyCode"), QStringLiteral("PropertyName")},
               {{text("01"), text("五保户")}, {text("02"), text("军烈'属")}, {text("03"), text("低保户")}});
    }
    void answerFees()
    {
        const std::vector<QString> feeColumns = {text("FeeTypeCode"), text("Fee"), text("CanFreeFee"), text("FreeFee")};
        answer(fees("o"), feeColumns,
               {{text("01"), text("60.10"), text("50.05"), text("30.00")},
                {text("03"), text("40.00"), text("30.00"), text("20.02")}});
        answer(text(SheetTypes), {text("FeeTypeCode"), text("FeeTypeName")},
               {{text("01"), text("西药费")}, {text("02"), text("中成药费")}, {text("03"), text("床位费")}});
    }
    [[nodiscard]] QStringList printSheet(int type = 1, const PrintSettings &settings = {1, SettlementRoute::None})
    {
        m_documents.PrintSettlementSheet(m_grid, type, settings);
        return std::exchange(m_host.script.calls, {});
    }
    [[nodiscard]] QStringList printForm(int type = 1, const PrintSettings &settings = {1, SettlementRoute::None})
    {
        m_documents.PrintApprovalForm(m_grid, type, settings);
        return std::exchange(m_host.script.calls, {});
    }
    /// What a settlement sheet of that one line prints.
    [[nodiscard]] std::string printed(const char *line)
    {
        lay("结算单.rmf", line);
        (void)printSheet();
        return m_papers.take().join(u'|').toStdString();
    }

    QTemporaryDir m_folder;
    printhost::Host m_host;
    NotedPapers m_papers;
    host::StatementBuffer m_statements;
    TClientDataSet m_scratch;
    QObject m_form;
    print::PrintedDocuments m_documents{m_statements, m_scratch, &m_form};
    TdxTreeList m_grid;
};

} // namespace

TEST_F(DocumentTest, SettlementSheetAsksInThisOrder)
{
    answer(sheet("o"), {text("CoopMedCode")}, {{text("00'12")}});
    EXPECT_EQ(printSheet(), opened({text(Household), sheet("o"), fees("o"), text(SheetTypes)}));
    EXPECT_EQ(m_papers.take(), QStringList(text("结算单 00'12")));
}

TEST_F(DocumentTest, SettlementSheetTablesFollowTheType)
{
    EXPECT_EQ(printSheet(2), opened({text(Household), sheet("s"), fees("s"), text(SheetTypes)}));
    EXPECT_EQ(printSheet(3), opened({text(Household), sheet(""), fees(""), text(SheetTypes)}));
    EXPECT_EQ(printSheet(1, {2, SettlementRoute::None}),
              opened({text(Household), sheet("o"), fees("o"), text(SheetTypesOtherwise)}));
    EXPECT_EQ(printSheet(1, {1, SettlementRoute::Procedure}).size(), 8) << "the sheet asks no settlement engine";
}

struct HouseholdCase {
    const char *name;
    const char *codes;
    const char *written;
};

class HouseholdTest : public DocumentTest, public testing::WithParamInterface<HouseholdCase> { };

TEST_P(HouseholdTest, NamesEveryPropertyWhoseCodeOccurs)
{
    answerHousehold(GetParam().codes);
    EXPECT_EQ(printSheet(),
              opened({text(Household), text(Properties), sheet("o", GetParam().written), fees("o"), text(SheetTypes)}));
}

INSTANTIATE_TEST_SUITE_P(All, HouseholdTest,
                         testing::Values(HouseholdCase{"Two", "0103", "五保户/低保户"},
                                         HouseholdCase{"InTheOrderOfTheList", "0301", "五保户/低保户"},
                                         HouseholdCase{"Quoted", "02", "军烈''属"},
                                         HouseholdCase{"Anywhere", "1020", "军烈''属"},
                                         HouseholdCase{"AcrossTwoCodes", "3013", "五保户"},
                                         HouseholdCase{"NoneOfThem", "99", ""}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(DocumentTest, AHouseholdWithoutPropertiesIsOrdinary)
{
    answerHousehold("");
    EXPECT_EQ(printSheet(), opened({text(Household), sheet("o"), fees("o"), text(SheetTypes)}));
}

TEST_F(DocumentTest, ApprovalFormAsksInThisOrder)
{
    answer(text(Formula), {text("ExpressionsName")}, {{text("县级'公式")}});
    m_host.script.procedureResult = text("1&12.5#补偿'12.5'元");
    EXPECT_EQ(printForm(1, {1, SettlementRoute::Procedure}),
              opened({text(Formula), text(Procedure), form("o", "不限", "县级''公式", "补偿''12.5''元"), fees("o"),
                      text(FormTypes)}));
    EXPECT_EQ(m_papers.take(), QStringList(text("审批表 ")));
}

TEST_F(DocumentTest, ApprovalFormTablesFollowTheType)
{
    m_host.script.procedureResult = text("1&1#x");
    EXPECT_EQ(printForm(2, {1, SettlementRoute::Procedure}),
              opened({text(Formula), text(ArchiveProcedure), form("s", "不限", "", "x"), fees("s"), text(FormTypes)}));
    EXPECT_EQ(printForm(3, {2, SettlementRoute::None}),
              opened({text(Formula), form("s", "不限", "", "x"), fees("s"), text(FormTypesOtherwise)}))
        << "every type but 1 means the archive here";
}

TEST_F(DocumentTest, AfterARefusalTheFormCarriesTheSummaryOfTheStayBefore)
{
    m_host.script.procedureResult = text("1&1#前一人");
    (void)printForm(1, {1, SettlementRoute::Procedure});
    m_host.script.procedureResult = text("0&没有结算");
    EXPECT_EQ(printForm(1, {1, SettlementRoute::Procedure}),
              opened({text(Formula), text(Procedure), text("Alert 没有结算"), form("o", "不限", "", "前一人"),
                      fees("o"), text(FormTypes)}));
}

TEST_F(DocumentTest, AMalformedResultStopsTheForm)
{
    m_host.script.procedureResult = text("没有格式");
    EXPECT_THROW((void)printForm(1, {1, SettlementRoute::Procedure}), std::invalid_argument);
    EXPECT_EQ(m_host.script.calls, opened({text(Formula), text(Procedure)}));
    EXPECT_TRUE(m_papers.take().isEmpty());
}

struct LimitCase {
    const char *name;
    const char *limitDef;
    const char *written;
};

class LimitTest : public DocumentTest, public testing::WithParamInterface<LimitCase> { };

TEST_P(LimitTest, IsWordedByItsFirstCharacter)
{
    focus(GetParam().limitDef);
    EXPECT_EQ(print::limitText(text(GetParam().limitDef)), text(GetParam().written));
    EXPECT_EQ(printForm(), opened({text(Formula), form("o", GetParam().written), fees("o"), text(FormTypes)}));
}

INSTANTIATE_TEST_SUITE_P(
    All, LimitTest,
    testing::Values(LimitCase{"None", "0", "不限"}, LimitCase{"NoneDropsTheRest", "0500", "不限"},
                    LimitCase{"Limited", "1500", "限额500"}, LimitCase{"LimitedWithoutAmount", "1", "限额"},
                    LimitCase{"Fixed", "2800", "定额800"}, LimitCase{"FixedWithText", "2八百元", "定额八百元"},
                    LimitCase{"Others", "3100", "3100"}, LimitCase{"Text", "特批", "特批"}, LimitCase{"Empty", "", ""}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(DocumentTest, NothingHappensWithoutAFocusedRow)
{
    m_grid.clearNodes();
    ASSERT_TRUE(QDir(m_folder.filePath(QStringLiteral("Module"))).removeRecursively()) << "not even the form is read";
    EXPECT_TRUE(printSheet().isEmpty());
    EXPECT_TRUE(printForm(1, {1, SettlementRoute::Procedure}).isEmpty());
    EXPECT_TRUE(m_papers.take().isEmpty());
}

TEST_F(DocumentTest, AMissingFormIsNamedBeforeAnythingIsAsked)
{
    ASSERT_TRUE(QDir(m_folder.filePath(QStringLiteral("Module"))).removeRecursively());
    for (const bool isSheet : {true, false}) {
        try {
            (void)(isSheet ? printSheet() : printForm());
            FAIL() << "no error";
        } catch (const std::exception &error) {
            const std::string message = error.what();
            EXPECT_NE(message.find(isSheet ? "结算单.rmf" : "住院审批表.rmf"), std::string::npos) << message;
        }
    }
    EXPECT_TRUE(m_host.script.calls.isEmpty());
}

TEST_F(DocumentTest, AFormWithAMistakeIsNamedWithItsLine)
{
    QFile file(m_folder.filePath(text("Module/结算单.rmf")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<report title=\"t\" paper=\"A4\">\n <title>\n  <picture/>\n </title>\n</report>\n");
    file.close();
    try {
        (void)printSheet();
        FAIL() << "no error";
    } catch (const std::exception &error) {
        const std::string message = error.what();
        EXPECT_NE(message.find("结算单.rmf, 第3行: "), std::string::npos) << message;
    }
}

struct VariableCase {
    const char *name;
    const char *line;
    const char *printed;
};

class VariableTest : public DocumentTest, public testing::WithParamInterface<VariableCase> { };

TEST_P(VariableTest, IsAnsweredByTheFeeTypes)
{
    answerFees();
    EXPECT_EQ(printed(GetParam().line), GetParam().printed);
}

INSTANTIATE_TEST_SUITE_P(
    All, VariableTest,
    testing::Values(VariableCase{"Names", "[FTYPE01],[FTYPE02],[FTYPE03]", "西药费,中成药费,床位费"},
                    VariableCase{"NamesWhateverTheCase", "[Ftype01],[FType02],[FTYPe03]", "西药费,中成药费,床位费"},
                    VariableCase{"Amounts", "[FTFee01|0.00],[FCFee01|0.00],[FUFee01|0.00]", "60.10,50.05,10.05"},
                    VariableCase{"AmountsOfAnother", "[FTFee03|0.00],[FCFee03|0.00],[FUFee03|0.00]",
                                 "40.00,30.00,10.00"},
                    VariableCase{"AmountsExactCaseOnly", "[FTFEE01],[FCfee01],[FuFee01]", ",,"},
                    VariableCase{"TypeWithoutAmounts", "[FTFee02],[FCFee02],[FUFee02]", ",,"},
                    VariableCase{"BeyondTheListIsItsLast", "[FTYPE04],[FTYPE99],[FTFee77|0.00]", "床位费,床位费,40.00"},
                    VariableCase{"ZeroIsTheFirst", "[FTYPE00],[FTFee00|0.00]", "西药费,60.10"},
                    VariableCase{"OtherNamesWithDigits", "[Fxx01],[F01]", ","},
                    VariableCase{"SmallFIsNoneOfThem", "[fTYPE01],[fTFee01],[xFTFee01]", ",,"}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(DocumentTest, ReportsOwnValuesStay)
{
    answerFees();
    EXPECT_EQ(printed("[Page],[Row]"), "1,1");
}

TEST_F(DocumentTest, AVariableWithoutDigitsFails)
{
    answerFees();
    for (const char *line : {"[FTYPE]", "[FTFeeX1]", "[F]"})
        EXPECT_THROW((void)printed(line), std::exception) << line;
}

TEST_F(DocumentTest, ASettlementWithoutItsColumnsIsToldInASentence)
{
    answerFees();
    lay("结算单.rmf", "[PatientName] [FTYPE01] [Fee|0.00]");
    lay("住院审批表.rmf", "[PatientName] [FreeFee|0.00]");
    for (const bool isSheet : {true, false}) {
        try {
            (void)(isSheet ? printSheet() : printForm());
            ADD_FAILURE() << "printed";
        } catch (const std::exception &error) {
            EXPECT_STREQ(error.what(), "没有取到这次住院的结算数据，不能打印。请刷新后再试。");
        }
        EXPECT_TRUE(m_papers.take().isEmpty());
    }
}

TEST_F(DocumentTest, ASettlementWithoutARowIsAnEmptyForm)
{
    answerFees();
    answer(sheet("o"), {text("PatientName"), text("Fee")}, {});
    EXPECT_EQ(printed("[PatientName],[Fee|0.00]"), ",");
}

TEST_F(DocumentTest, TheAmountsStayFilteredUntilTheNextVariable)
{
    answerFees();
    auto *amounts = m_documents.findChild<TClientDataSet *>(QStringLiteral("CDSPrintFee"));
    ASSERT_NE(amounts, nullptr);
    EXPECT_EQ(printed("[FTFee03|0.00],[FTYPE01]"), "40.00,西药费");
    EXPECT_EQ(amounts->recordCount(), 1);
    EXPECT_EQ(amounts->text(QStringLiteral("FeeTypeCode")), QStringLiteral("03"));
    EXPECT_EQ(printed("[FTFee01|0.00]"), "60.10") << "the next document is not short of rows";
}
