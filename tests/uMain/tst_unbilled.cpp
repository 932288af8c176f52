// SPDX-License-Identifier: MIT
// The page "未制单病人查询": institutions, their records without a bill, colours, the way to a record's fees.
#include "tests/support/desk.h"
#include "tests/support/gridreading.h"
#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"
#include "tests/uMain/expected.h"

#include "data/statements/feedetail.h"
#include "toolkit/colours.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QImage>
#include <QStyle>

using namespace expected;

namespace {

constexpr toolkit::WindowsColour FocusedRow = 10053171; // the small hospital's "Color-1"
constexpr toolkit::WindowsColour OddRow = 16250094; // and its "Color-2"

/// Six records of 42990101 in the order listed: admitted and discharged today, discharged today, three on other days,
/// admitted today.
const char *const TodaysRecords =
    "insert into o_CbZyBxDj(OrgCode,CoopMedCode,IDNo,DiagNo,PatientName,InDate,OutDate) values "
    "('42990101','0061',1,1,'今日','2026-03-09','2026-03-09'),('42990101','0062',1,1,'出院','2026-03-01','2026-03-09')";
const char *const AdmittedToday = "update o_CbZyBxDj set InDate='2026-03-09' where CoopMedCode='0055'";

class UnbilledTest : public testing::Test {
protected:
    void prepare(const Desk::Options &options = Desk::Options()) { m_desk.emplace(options); }
    void show()
    {
        m_desk->open();
        hands::showPage(m_desk->form(), "TabSheet1");
    }
    void open(const Desk::Options &options = Desk::Options())
    {
        prepare(options);
        show();
        m_desk->conversation().take();
    }
    void showAgain()
    {
        m_desk->form().hide();
        m_desk->form().show();
    }

    [[nodiscard]] TdxTreeList &tree() { return hands::find<TdxTreeList>(m_desk->form(), "dxTLDjOrgInfo"); }
    [[nodiscard]] TdxTreeList &grid() { return hands::find<TdxTreeList>(m_desk->form(), "dxTLBxDjDetail"); }
    [[nodiscard]] QStringList column(const char *suffix)
    {
        return hands::columnTexts(grid(), (QByteArray("dxTLBxDjDetail") + suffix).constData());
    }
    [[nodiscard]] QStringList shown(const char *suffix)
    {
        return grids::shownTexts(grid(), (QByteArray("dxTLBxDjDetail") + suffix).constData());
    }
    [[nodiscard]] QStringList institutions()
    {
        QStringList nodes;
        for (int row = 0; row < tree().count(); ++row)
            nodes.append(tree().node(row).text(0) + QLatin1Char('|') + tree().node(row).text(1));
        return nodes;
    }
    [[nodiscard]] QString footer()
    {
        return grid().footerText(grid().columnByName(QStringLiteral("dxTLBxDjDetailCoop"))->position());
    }

    [[nodiscard]] QStringList backgrounds() { return grids::backgrounds(grid(), "dxTLBxDjDetailHouse"); }
    [[nodiscard]] int darkest(int row) { return grids::darkestSpot(grid(), row, "dxTLBxDjDetailPatient"); }
    [[nodiscard]] QString colour(toolkit::WindowsColour colour)
    {
        return toolkit::toColour(colour, grid().palette()).name();
    }

    std::optional<Desk> m_desk;
};

QStringList feeDetail(const data::RecordKey &record)
{
    return QStringList({read("Color-5"), read("Color-5")}) + query(data::feeTypes(record))
        + query(data::feeItems(record));
}

} // namespace

TEST_F(UnbilledTest, everyInstitutionWithAnUnbilledRecordIsInTheTree)
{
    open();
    EXPECT_EQ(
        institutions(),
        QStringList({QStringLiteral("(42990101)甲镇卫生院|42990101"), QStringLiteral("(42990102)乙镇卫生院|42990102")}))
        << "an institution without a name of its own is not";
    const QImage folder = tree().style()->standardIcon(QStyle::SP_DirIcon).pixmap(16).toImage();
    ASSERT_FALSE(folder.isNull());
    for (int row = 0; row < tree().count(); ++row) {
        const QVariant image = tree().model()->index(row, 0).data(Qt::DecorationRole);
        EXPECT_EQ(image.value<QIcon>().pixmap(16).toImage(), folder) << row;
    }
}

TEST_F(UnbilledTest, anInstitutionWithPatientsInHospitalOnlyIsInTheTree)
{
    prepare();
    m_desk->sqlite("insert into p_Ylfwdw(OrgCode,OrgName) values ('42990103','丙村卫生室')");
    show();
    EXPECT_EQ(institutions().last(), QStringLiteral("(42990103)丙村卫生室|42990103"));
    m_desk->sqlite("update o_CbZyBxDj set BillCode=OrgCode,BillNo=1 where OrgCode='42990103'");
    showAgain();
    EXPECT_EQ(tree().count(), 2) << "until its last record stands in a bill";
}

TEST_F(UnbilledTest, grantedUsersSeeTheirInstitutionsOnly)
{
    Desk::Options options;
    options.user = QStringLiteral("02");
    prepare(options);
    m_desk->sqlite("insert into r_BillCheckList(RoleCode,SubSysCode,RightCode,OrgCode,BillCheck) values "
                   "('R2','1','07','42990103','1')");
    show();
    EXPECT_EQ(institutions(), QStringList(QStringLiteral("(42990101)甲镇卫生院|42990101")))
        << "a granted institution without a name is not in the tree";
    const QStringList wanted =
        QStringList({read("isBillAll"), read("isBillAll"), QStringLiteral("FuncStorage.UserID()"), read("RightCode")})
        + query(data::grantedInstitutionsWithUnbilled({QStringLiteral("02"), QStringLiteral("07")}))
        + query(data::unbilledRecords(QStringLiteral("42990101")));
    EXPECT_EQ(m_desk->conversation().lines().mid(5, wanted.size()), wanted);
}

TEST_F(UnbilledTest, withoutAnyGrantBothListsAreEmpty)
{
    Desk::Options options;
    options.user = QStringLiteral("02");
    options.parameters = {{QStringLiteral("RightCode"), QStringLiteral("9'9")}};
    prepare(options);
    show();
    EXPECT_EQ(tree().count(), 0);
    EXPECT_EQ(grid().count(), 0);
    EXPECT_EQ(hands::find<TdxTreeList>(m_desk->form(), "dxTLUp").count(), 0);
    EXPECT_TRUE(m_desk->errors().isEmpty());
    for (const QString &line : m_desk->conversation().lines())
        EXPECT_FALSE(line.startsWith(QStringLiteral("FuncStorage.Alert"))) << line.toStdString();
}

TEST_F(UnbilledTest, hasItsColumnsInOrder)
{
    open();
    EXPECT_EQ(grids::columns(grid()).join(u'\n').toStdString(),
              "ID|序|\nCoop|合作医疗证号|CoopMedCode\nIDNo|序号|IDNo\nPatient|患者姓名|PatientName\n"
              "House|户主姓名|HouseHolder\nSex|性别|Sex\nAge|年龄|Age\nExpKind|补偿类别|ExpenseName\n"
              "InDate|入院日期|InDate\nOutDate|出院日期|OutDate\nIsZy|是否在院|IfZy|check\n"
              "IllCode|疾病编码|IllCode\nIllName|疾病名称|IllName\nTotalFee|总费用|TotalFee|,0.00;-,0.00\n"
              "CanFree|可报销费用|CanFreeFee|,0.00;-,0.00\nFreeFee|核销费用|FreeFee|,0.00;-,0.00\n"
              "DocName|医生姓名|DoctorName\nOrgCode|医疗服务单位代码|HospitalCode\n"
              "OrgName|医疗服务单位名称|HospitalName\nIsInterface|是否接口导入|InterfaceIn|check\n"
              "InputCode|录入人员代码|InputerCode\nInputName|录入人员姓名|InputerName\n"
              "IfInToday||IfInToday|hidden\nIfOutToday||IfOutToday|hidden\nDiagNo||DiagNo|hidden");
    EXPECT_EQ(grid().column(0)->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
    EXPECT_EQ(grid().header()->sortIndicatorSection(), 0) << "as loaded: it holds no value";
    EXPECT_EQ(grid().header()->sortIndicatorOrder(), Qt::AscendingOrder);
    EXPECT_EQ(grid().toolTip(), QStringLiteral("绿色表示当天入院记录；红色表示当天出院记录"));
}

TEST_F(UnbilledTest, listsDischargedRecordsBeforeThoseInHospital)
{
    open();
    EXPECT_EQ(
        column("Coop"),
        QStringList({QStringLiteral("0012"), QStringLiteral("0040"), QStringLiteral("0012"), QStringLiteral("0055")}));
    EXPECT_EQ(column("OutDate"),
              QStringList({QStringLiteral("2026-03-08"), QStringLiteral("2026-03-05"), QStringLiteral("2026-03-01"),
                           QString()}));
    EXPECT_EQ(column("IsZy"),
              QStringList({QStringLiteral("2"), QStringLiteral("2"), QStringLiteral("2"), QStringLiteral("1")}));
    EXPECT_EQ(shown("IsZy").last(), QStringLiteral("已勾选")) << "a patient in hospital";
    EXPECT_EQ(column("DiagNo"),
              QStringList({QStringLiteral("4"), QStringLiteral("1"), QStringLiteral("3"), QStringLiteral("1")}));
    EXPECT_EQ(column("Age").at(1), QStringLiteral("8月"));
    EXPECT_EQ(column("ExpKind").last(), QStringLiteral("正常分娩住院"));
    EXPECT_EQ(column("TotalFee").at(1), QStringLiteral("         200.20")) << "as the query returned it";
    EXPECT_EQ(shown("TotalFee"),
              QStringList({QString(), QStringLiteral("200.20"), QStringLiteral("100.10"), QString()}));
    EXPECT_EQ(footer(), QStringLiteral("共 4 人次"));
}

TEST_F(UnbilledTest, anotherInstitutionIsListedByOneQuery)
{
    open();
    hands::clickNode(tree(), 1);
    EXPECT_EQ(
        m_desk->conversation().take(),
        query(QStringLiteral(
            " select CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder, "
            "Sex,cast(Age as varchar(100))+AgeUnit as Age,convert(varchar(10),InDate,126) as InDate, "
            "convert(varchar(10),OutDate,126) as OutDate,IllCode,IllName, Str(TotalFee,15,2) as "
            "TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as "
            "FreeFee,DoctorName,InputerCode,InputerName,InterfaceIn, (case when OutDate is null then '1' else '2' end "
            ") "
            "as IfZy, (case InDate when convert(varchar(10),getdate(),126) then '1' else '0' end) as IfInToday, (case "
            "OutDate when convert(varchar(10),getdate(),126) then '1' else '0' end) as IfOutToday, (case ExpenseKind "
            "when '21' then '普通住院' when '22' then '单病种住院'     when '23' then '正常分娩住院' when '29' then "
            "'其他住院' when '90' then '其他' end) as ExpenseName from o_CbZyBxDj  where OrgCode='42990102' and BillNo "
            "is null  order by OutDate desc,InDate desc ")));
    EXPECT_EQ(column("Coop"), QStringList(QStringLiteral("00'7"))) << "its other record stands in a bill";
    EXPECT_EQ(shown("TotalFee"), QStringList(QStringLiteral("1,300.30")));
    EXPECT_EQ(footer(), QStringLiteral("共 1 人次"));
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(UnbilledTest, anEmptyTreeLeavesTheGridEmpty)
{
    open();
    m_desk->sqlite("update o_CbZyBxDj set BillCode=OrgCode,BillNo=1");
    showAgain();
    EXPECT_EQ(m_desk->conversation().take().mid(5, 4),
              QStringList(read("isBillAll")) + query(data::institutionsWithUnbilled()) + QStringList(read("Color-5")))
        << "no list is asked for";
    EXPECT_EQ(tree().count(), 0);
    EXPECT_EQ(grid().count(), 0);
    EXPECT_EQ(footer(), QStringLiteral("共 0 人次"));
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(UnbilledTest, aFailingListKeepsItsRows)
{
    open();
    const QStringList before = column("DiagNo");
    m_desk->engine().failCall(1);
    hands::clickNode(tree(), 1);
    EXPECT_EQ(m_desk->conversation().take(),
              QStringList(openSql(data::unbilledRecords(QStringLiteral("42990102"))) + QStringLiteral(" !故障")));
    EXPECT_EQ(m_desk->errors(), QStringList(failedWhile("载入病人记录")));
    EXPECT_EQ(column("DiagNo"), before);
    EXPECT_EQ(footer(), QStringLiteral("共 4 人次"));
}

TEST_F(UnbilledTest, aFailingTreeKeepsItsNodes)
{
    open();
    const QStringList before = institutions();
    m_desk->engine().failCall(1);
    showAgain();
    EXPECT_EQ(m_desk->errors(), QStringList(failedWhile("载入窗口")));
    EXPECT_EQ(institutions(), before);
    EXPECT_EQ(grid().count(), 4);
}

TEST_F(UnbilledTest, rowsAreColouredByTodaysAdmissionsAndDischarges)
{
    prepare();
    m_desk->sqlite(TodaysRecords);
    m_desk->sqlite(AdmittedToday);
    show();
    ASSERT_EQ(column("Coop").join(u' '), QStringLiteral("0061 0062 0012 0040 0012 0055"));
    const QString green = QStringLiteral("#5ecb4e");
    const QString orange = QStringLiteral("#ff8000");
    const QString even = colour(toolkit::WindowColour);
    const QString odd = colour(OddRow);

    EXPECT_EQ(backgrounds(), QStringList({orange, orange, even, odd, even, green}))
        << "a discharge goes before an admission, and both before the focus, which is on the first row";
    grid().setFocusedNode(grid().node(2));
    EXPECT_EQ(backgrounds(), QStringList({orange, orange, colour(FocusedRow), odd, even, green}));
    grid().setFocusedNode(grid().node(3));
    EXPECT_EQ(backgrounds(), QStringList({orange, orange, even, colour(FocusedRow), even, green}));
    grid().setFocusedNode(grid().node(5));
    EXPECT_EQ(backgrounds(), QStringList({orange, orange, even, odd, even, green}));
}

TEST_F(UnbilledTest, theFocusedRowsTextIsInTheWindowColourOnTodaysColoursToo)
{
    prepare();
    m_desk->sqlite(TodaysRecords);
    show();
    const int background = QColor(0xFF, 0x80, 0x00).lightness();
    EXPECT_GE(darkest(0), background);
    EXPECT_LT(darkest(1), background / 2);
    grid().setFocusedNode(grid().node(1));
    EXPECT_LT(darkest(0), background / 2);
    EXPECT_GE(darkest(1), background);
}

TEST_F(UnbilledTest, yesterdaysRecordsAreNotColoured)
{
    Desk::Options options;
    options.today = QDate(2026, 3, 10);
    prepare(options);
    m_desk->sqlite(TodaysRecords);
    show();
    EXPECT_EQ(column("IfInToday"), QStringList(6, QStringLiteral("0")));
    EXPECT_EQ(column("IfOutToday"), QStringList(6, QStringLiteral("0")));
    EXPECT_EQ(backgrounds().mid(0, 2), QStringList({colour(FocusedRow), colour(OddRow)}));
}

TEST_F(UnbilledTest, rowsAreNumberedAsTheyStand)
{
    open();
    const QStringList numbers = {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4")};
    EXPECT_EQ(shown("ID"), numbers);
    EXPECT_EQ(column("ID"), QStringList(4, QString())) << "drawn, not stored";
    const int amount = grid().columnByName(QStringLiteral("dxTLBxDjDetailTotalFee"))->position();
    grid().header()->setSortIndicator(amount, Qt::DescendingOrder);
    EXPECT_EQ(column("Coop").mid(0, 2), QStringList({QStringLiteral("0040"), QStringLiteral("0012")}));
    EXPECT_EQ(shown("ID"), numbers);
}

TEST_F(UnbilledTest, aDoubleClickOpensTheRecordsFees)
{
    prepare();
    m_desk->sqlite("update o_CbZyBxDj set HospitalCode='42999901'"); // treated elsewhere: no part of the key
    show();
    hands::clickNode(tree(), 1);
    m_desk->conversation().take();
    const ModalVisit visit(QStringLiteral("frmDjDetail"), [](QWidget &) {});
    hands::doubleClickCell(grid(), 0, "dxTLBxDjDetailPatient");
    EXPECT_EQ(
        m_desk->conversation().take(),
        feeDetail({QStringLiteral("42990102"), QStringLiteral("00'7"), QStringLiteral("1"), QStringLiteral("1")}));
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(UnbilledTest, enterOpensTheFocusedRecordsFees)
{
    open();
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_Down);
    const ModalVisit visit(QStringLiteral("frmDjDetail"), [](QWidget &) {});
    QTest::keyClick(&grid(), Qt::Key_Return);
    EXPECT_EQ(
        m_desk->conversation().take(),
        feeDetail({QStringLiteral("42990101"), QStringLiteral("0040"), QStringLiteral("2"), QStringLiteral("1")}));
}

TEST_F(UnbilledTest, withoutAFocusedRowNothingOpens)
{
    open();
    grid().setFocusedNode({});
    grid().setFocus();
    m_desk->conversation().take();
    QTest::keyClick(&grid(), Qt::Key_Return);
    emit grid().dblClick();
    EXPECT_EQ(m_desk->conversation().take(), QStringList());
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(UnbilledTest, whatStandsInABillLeavesTheListAtTheNextReload)
{
    open();
    hands::clickNode(tree(), 1);
    hands::showPage(m_desk->form(), "TabSheet3");
    hands::clickCell(hands::find<TdxTreeList>(m_desk->form(), "dxTLUp"), 2, "dxTLUpCheck");
    hands::click(m_desk->form(), "btnSave");
    EXPECT_EQ(institutions(), QStringList(QStringLiteral("(42990101)甲镇卫生院|42990101")));
    EXPECT_EQ(column("Coop").size(), 4) << "the first institution is listed again";
}
