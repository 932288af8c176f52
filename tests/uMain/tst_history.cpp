// SPDX-License-Identifier: MIT
// The page "历史制单查询".
#include "tests/support/desk.h"
#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"
#include "tests/uMain/expected.h"

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>

using namespace expected;

namespace {

// Beside the archived bill 7 of the small hospital: a current bill 7, and bills in every status and one beyond.
const char *const Bills = R"(
insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,CheckFee,CheckStatus) values
 ('42990101',7,'甲镇卫生院','2026-03-01',1.10,2.20,3.30,4.40,'1'),
 ('42990101',11,'甲镇卫生院','2026-03-02',null,null,null,null,'2'),
 ('42990101',12,'甲镇卫生院','2026-03-03',500,400,350,300,'3'),
 ('42990101',13,'甲镇卫生院','2026-03-04',1,1,1,1,'4'),
 ('42990101',14,'甲镇卫生院','2026-03-05',1,1,1,1,'9'),
 ('42990101',15,'甲镇卫生院','2026-03-06',1,1,1,1,'5'),
 ('42990101',16,'甲镇卫生院','2026-03-07',1,1,1,1,null),
 ('42990101',17,'甲镇卫生院','2026-03-08',1,1,1,1,'1'))"; // 17 has no records

const char *const Records = R"(
insert into o_CbZyBxDj(OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,Age,AgeUnit,
  InDate,OutDate,DayCount,PatientNo,IllCode,IllName,ExpenseKind,TotalFee,CanFreeFee,FreeFee,DoctorName,InputerCode,
  InputerName,InterfaceIn,AreaCode,ExpressionsID,LimitDef,BillCode,BillNo) values
 ('42990101','0201',2,3,'42990101','甲镇卫生院','钱二','钱家','女',40,'岁','2026-02-03','2026-02-09',6,'Z42','K35','阑尾炎',
  '23',200.20,150.10,99,'陈医生','01','管理员','2','429901','G2','1',42990101,7),
 ('42990101','0202',1,1,'42990101','甲镇卫生院','孙一','孙家','男',33,'岁','2026-02-01','2026-02-07',6,'Z41','J18','肺炎',
  '21',100.10,80.05,50,'陈医生','01','管理员','1','429901','G1','0',42990101,7),
 ('42990101','0203',1,1,null,null,null,null,null,null,null,null,'2026-02-07',null,null,null,null,null,null,null,null,null,
  null,null,null,null,null,null,42990101,11),
 ('42990101','0204',1,1,null,null,null,null,null,null,null,null,'2026-02-07',null,null,null,null,null,null,null,null,null,
  null,null,null,null,null,null,42990101,12),
 ('42990101','0205',1,1,null,null,null,null,null,null,null,null,'2026-02-07',null,null,null,null,null,null,null,null,null,
  null,null,null,null,null,null,42990101,13),
 ('42990101','0206',1,1,null,null,null,null,null,null,null,null,'2026-02-07',null,null,null,null,null,null,null,null,null,
  null,null,null,null,null,null,42990101,14),
 ('42990101','0207',1,1,null,null,null,null,null,null,null,null,'2026-02-07',null,null,null,null,null,null,null,null,null,
  null,null,null,null,null,null,42990101,15),
 ('42990101','0208',1,1,null,null,null,null,null,null,null,null,'2026-02-07',null,null,null,null,null,null,null,null,null,
  null,null,null,null,null,null,42990101,16))";

// Places of the bills in the tree: newest number first; of one number, the current bill stands before the archived.
enum Place { Nameless, Unknown, Back, Twice, Once, Sent, Made, Archived };

const char *const Columns[][2] = {
    {"ID", "序"},
    {"CoopMedCode", "合作医疗证号"},
    {"IDNo", "序号"},
    {"PatientName", "患者姓名"},
    {"HouseHolder", "户主姓名"},
    {"Sex", "性别"},
    {"Age", "年龄"},
    {"ExpKind", "补偿类别"},
    {"InDate", "就诊时间"},
    {"IllCode", "疾病代码"},
    {"IllName", "疾病名称"},
    {"TotalFee", "总费用"},
    {"CanFreeFee", "可报销费用"},
    {"FreeFee", "报销费用"},
    {"DoctName", "医生姓名"},
    {"InputerCode", "录入人代码"},
    {"InputerName", "录入人姓名"},
    {"HospitalCode", "医疗服务单位代码"},
    {"HospitalName", "医疗服务单位名称"},
    {"InterferIn", "是否接口导入"},
    {"AreaCode", "行政区划"},
    {"OutDate", "出院时间"},
    {"DayCount", "住院天数"},
    {"PatientNo", "住院号"},
    {"DiagNo", "就医次序"},
    {"OrgCode", "当前医疗机构"},
    {"ExpressionsID", "公式ID"},
    {"LimitDef", "限额定义"},
};

QStringList recordsFrom(const char *table, const char *number)
{
    return query(
        QStringLiteral(" select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex, "
                       "cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName, "
                       "Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as "
                       "FreeFee,DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null "
                       "then '2' else '1' end) as isCheck,InputerCode,InputerName,  (case ExpenseKind when '21' then "
                       "'普通住院' when '22' then '单病种住院'     when '23' then '正常分娩住院' when '29' then "
                       "'其他住院' when '90' then '其他' end) as ExpenseName,ExpressionsID,LimitDef from %1 where "
                       "BillCode='42990101' and BillNo=%2 order by OutDate ")
            .arg(QString::fromUtf8(table), QString::fromUtf8(number)));
}

class HistoryTest : public testing::Test {
protected:
    void open(bool withBills = true)
    {
        m_desk.emplace();
        if (withBills) {
            m_desk->sqlite(Bills);
            m_desk->sqlite(Records);
        } else {
            m_desk->sqlite("delete from s_CbZyZdb");
        }
        m_desk->open();
        hands::showPage(form(), "TabSheet2");
        (void)said();
    }

    [[nodiscard]] QWidget &form() const { return m_desk->form(); }
    [[nodiscard]] TdxTreeList &tree() const { return hands::find<TdxTreeList>(form(), "dxTLOldOrg"); }
    [[nodiscard]] TdxTreeList &grid() const { return hands::find<TdxTreeList>(form(), "dxTLOldBill"); }
    [[nodiscard]] QStringList said() { return m_desk->conversation().take(); }
    [[nodiscard]] TdxTreeListNode bill(Place place) const { return tree().topNode().child(place); }
    QStringList choose(Place place)
    {
        hands::clickNode(tree(), 0, place);
        return said();
    }
    [[nodiscard]] QString totals() const
    {
        QStringList texts;
        for (const char *name : {"edtOldNum", "dxCEOldTotal", "dxCEOldCan", "dxCEOldOne", "dxCEOldTwo"})
            texts.append(hands::find<QLineEdit>(form(), name).text());
        return texts.join(QLatin1Char('|'));
    }
    [[nodiscard]] static QStringList texts(const TdxTreeListNode &node, int positions)
    {
        QStringList all;
        for (int i = 0; i < positions; ++i)
            all.append(node.text(i));
        return all;
    }

    std::optional<Desk> m_desk;
};

} // namespace

TEST_F(HistoryTest, currentAndArchivedBillsStandInOneTree)
{
    open();
    EXPECT_TRUE(tree().isHeaderHidden());
    ASSERT_EQ(tree().count(), 1);
    EXPECT_EQ(texts(tree().topNode(), 10),
              QStringList({QStringLiteral("(42990101)甲镇卫生院"), QStringLiteral("1"), QStringLiteral("42990101"),
                           QString(), QString(), QString(), QString(), QString(), QString(), QString()}));
    QStringList shown;
    for (int i = 0; i < tree().topNode().childCount(); ++i)
        shown.append(tree().topNode().child(i).text(3) + QLatin1Char(' ') + tree().topNode().child(i).text(0));
    EXPECT_EQ(shown,
              QStringList({QStringLiteral("16 2026-03-07【】"), QStringLiteral("15 2026-03-06【】"),
                           QStringLiteral("14 2026-03-05【退单】"), QStringLiteral("13 2026-03-04【二审】"),
                           QStringLiteral("12 2026-03-03【一审】"), QStringLiteral("11 2026-03-02【上报】"),
                           QStringLiteral("7 2026-03-01【制单】"), QStringLiteral("7 2025-12-01【二审】")}))
        << "a bill without records is not listed";
}

TEST_F(HistoryTest, billNodesHoldTenValues)
{
    open();
    EXPECT_EQ(texts(bill(Made), 11),
              QStringList({QStringLiteral("2026-03-01【制单】"), QStringLiteral("2"), QStringLiteral("42990101"),
                           QStringLiteral("7"), QStringLiteral("1.10"), QStringLiteral("2.20"), QStringLiteral("3.30"),
                           QStringLiteral("4.40"), QStringLiteral("1"), QStringLiteral("1"), QString()}));
    EXPECT_EQ(bill(Archived).text(8), QStringLiteral("2"));
    EXPECT_EQ(bill(Archived).text(9), QStringLiteral("4"));
    EXPECT_EQ(bill(Sent).text(4), QString()) << "no amount stored";
}

TEST_F(HistoryTest, theInstitutionIsAskedTwiceForOneStatement)
{
    open();
    form().hide();
    form().show();
    const QStringList lines = said();
    const qsizetype at = lines.indexOf(openSql(QStringLiteral(
        " select * from (  select a.BillCode,a.BillName,a.BillNo,convert(varchar(10),WriteDate,126) as WriteDate,"
        "CheckStatus,1 as Type,  a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee  from o_CbZyZdb a,o_CbZyBxDj b  where "
        "a.BillCode=b.BillCode and a.BillNo=b.BillNo    and a.BillCode='42990101' group by a.BillCode,a.BillName,"
        "a.BillNo,a.WriteDate,CheckStatus,a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee  union all  select a.BillCode,"
        "a.BillName,a.BillNo,convert(varchar(10),WriteDate,126) as WriteDate,CheckStatus,2 as Type,  a.Fee,"
        "a.CanFreeFee,a.CheckFee1,a.CheckFee  from s_CbZyZdb a,s_CbZyBxDj b  where a.BillCode=b.BillCode and "
        "a.BillNo=b.BillNo    and a.BillCode='42990101' group by a.BillCode,a.BillName,a.BillNo,a.WriteDate,"
        "CheckStatus,a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee ) a order by a.BillCode,a.BillNo desc ")));
    ASSERT_GE(at, 2);
    EXPECT_EQ(lines.mid(at - 2, 2), QStringList({read("OrgCode"), read("OrgCode")}));
    EXPECT_EQ(lines[at + 1], QStringLiteral("DataCtl.CloseSql()"));
}

TEST_F(HistoryTest, startsOnTheGroupWithNothingListed)
{
    open();
    EXPECT_EQ(tree().focusedNode(), tree().topNode());
    EXPECT_EQ(grid().count(), 0);
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00|0.00|0.00"));
}

TEST_F(HistoryTest, aBillOfEachKindReadsItsOwnTable)
{
    open();
    EXPECT_EQ(choose(Made), recordsFrom("o_CbZyBxDj", "7"));
    EXPECT_EQ(hands::columnTexts(grid(), "dxTLOldBillPatientName"),
              QStringList({QStringLiteral("孙一"), QStringLiteral("钱二")}));
    EXPECT_EQ(choose(Archived), recordsFrom("s_CbZyBxDj", "7"));
    EXPECT_EQ(hands::columnTexts(grid(), "dxTLOldBillPatientName"), QStringList({QStringLiteral("吴刚")}));
    EXPECT_EQ(totals(), QStringLiteral("1|90.00|60.00|60.00|60.00"));
}

TEST_F(HistoryTest, rowsHoldEveryColumnAsText)
{
    open();
    choose(Made);
    EXPECT_EQ(texts(grid().node(1), 28).join(u'|'),
              QStringLiteral("|0201|2|钱二|钱家|女|40岁|正常分娩住院|2026-02-03|K35|阑尾炎|         200.20|"
                             "         150.10|          99.00|陈医生|01|管理员|42990101|甲镇卫生院|2|429901|2026-02-09|"
                             "6|Z42|3|42990101|G2|1"));
}

TEST_F(HistoryTest, totalsAreTheBillsOwn)
{
    open();
    choose(Made);
    EXPECT_EQ(totals(), QStringLiteral("2|1.10|2.20|3.30|4.40")) << "the records would sum to 300.30 and 230.15";
    choose(Once);
    EXPECT_EQ(totals(), QStringLiteral("1|500.00|400.00|350.00|300.00"));
}

TEST_F(HistoryTest, amountsThatAreNullLeaveTheirBoxesEmpty)
{
    open();
    choose(Sent);
    EXPECT_EQ(totals(), QStringLiteral("1||||"));
    EXPECT_TRUE(m_desk->errors().isEmpty());
    choose(Made);
    EXPECT_EQ(totals(), QStringLiteral("2|1.10|2.20|3.30|4.40"));
}

TEST_F(HistoryTest, theGroupEmptiesTheGrid)
{
    open();
    choose(Made);
    hands::clickNode(tree(), 0);
    EXPECT_TRUE(said().isEmpty());
    EXPECT_EQ(grid().count(), 0);
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00|0.00|0.00"));
    EXPECT_NE(grid().popupMenu(), nullptr);
}

TEST_F(HistoryTest, aBillThatLostItsRecordsMeanwhileCountsNone)
{
    open();
    m_desk->sqlite("update o_CbZyBxDj set BillCode=null,BillNo=null where BillNo=12");
    choose(Once);
    EXPECT_EQ(totals(), QStringLiteral("0|500.00|400.00|350.00|300.00"));
}

TEST_F(HistoryTest, aListThatFailsReachesTheHost)
{
    open();
    choose(Made);
    m_desk->engine().failCall(1);
    choose(Archived);
    EXPECT_EQ(m_desk->errors(), QStringList(failedWhile("载入制单记录")));
    EXPECT_EQ(grid().count(), 0);
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00|0.00|0.00"));
}

TEST_F(HistoryTest, gridHasItsColumnsInOrder)
{
    open();
    ASSERT_EQ(grid().columnCount(), 28);
    EXPECT_EQ(grid().header()->sortIndicatorSection(), 0) << "as loaded: it holds no value";
    EXPECT_EQ(grid().header()->sortIndicatorOrder(), Qt::AscendingOrder);
    for (int i = 0; i < 28; ++i) {
        const TdxTreeListColumn &column = *grid().column(i);
        EXPECT_EQ(column.objectName(), QStringLiteral("dxTLOldBill") + QString::fromUtf8(Columns[i][0]));
        EXPECT_EQ(column.caption(), QString::fromUtf8(Columns[i][1])) << i;
        EXPECT_EQ(column.isVisible(), i < 24) << i;
        EXPECT_FALSE(column.isEditable()) << i;
        EXPECT_EQ(qobject_cast<const TdxTreeListCurrencyColumn *>(&column) != nullptr, i >= 11 && i <= 13) << i;
    }
    const auto *check = qobject_cast<const TdxTreeListCheckColumn *>(grid().column(19));
    ASSERT_NE(check, nullptr);
    EXPECT_EQ(check->valueChecked() + check->valueUnchecked(), QStringLiteral("12"));
}

TEST_F(HistoryTest, printMenuHasItsItems)
{
    open();
    ASSERT_NE(grid().popupMenu(), nullptr);
    QStringList items(grid().popupMenu()->objectName());
    for (const QAction *item : grid().popupMenu()->actions())
        items.append(item->objectName() + QLatin1Char(' ') + item->text());
    EXPECT_EQ(items,
              QStringList({QStringLiteral("pMPrint"), QStringLiteral("mJxP 补打出院结算表"),
                           QStringLiteral("mCheckP 补打审批表"), QStringLiteral("mFeeDetail 补打费用清单")}));
}

TEST_F(HistoryTest, onceWithoutAnyBillThePrintMenuIsGoneForGood)
{
    open(false);
    EXPECT_EQ(tree().count(), 0);
    EXPECT_EQ(grid().popupMenu(), nullptr);
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00|0.00|0.00"));
    m_desk->sqlite(Bills);
    m_desk->sqlite(Records);
    form().hide();
    form().show();
    choose(Made);
    EXPECT_EQ(grid().count(), 2);
    EXPECT_EQ(grid().popupMenu(), nullptr);
    QContextMenuEvent request(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&grid(), &request);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(HistoryTest, aRightClickOffersThePrintMenu)
{
    open();
    choose(Made);
    QContextMenuEvent request(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&grid(), &request);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), QStringLiteral("pMPrint"));
    QApplication::activePopupWidget()->close();
}

TEST_F(HistoryTest, aDoubleClickOpensTheRecordsHistory)
{
    struct Row {
        Place place;
        const char *from;
        const char *condition;
        bool firstReviewShown;
    };
    open();
    for (const Row &row : {Row{Made, " from  o_CbZyBxDjZb", "'0202'   and IDNo=1 and DiagNo=1", false},
                           Row{Archived, " from  s_CbZyBxDjZb", "'0090'   and IDNo=1 and DiagNo=1", true}}) {
        choose(row.place);
        const ModalVisit visit(QStringLiteral("frmDjOld"), [&](QWidget &dialog) {
            const QStringList lines = said().filter(QStringLiteral("OpenSql"));
            ASSERT_EQ(lines.size(), 2);
            EXPECT_TRUE(lines[0].contains(QString::fromUtf8(row.from))) << lines[0].toStdString();
            EXPECT_TRUE(lines[0].contains(QString::fromUtf8(row.condition))) << lines[0].toStdString();
            const auto &items = hands::find<TdxTreeList>(dialog, "dxTLFeeInfo");
            EXPECT_EQ(items.columnByName(QStringLiteral("dxTLFeeInfoOneFee"))->isVisible(), row.firstReviewShown);
        });
        hands::clickCell(grid(), 0, "dxTLOldBillPatientName");
        QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {},
                           hands::showCell(grid(), 0, "dxTLOldBillPatientName").center());
    }
}

TEST_F(HistoryTest, withoutARecordEnterOpensNothing)
{
    open();
    hands::clickNode(tree(), 0);
    QTest::keyClick(&grid(), Qt::Key_Return);
    EXPECT_TRUE(said().isEmpty());
    EXPECT_TRUE(m_desk->errors().isEmpty());
}
