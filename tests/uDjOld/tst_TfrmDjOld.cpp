// SPDX-License-Identifier: MIT
// The dialog "历史明细".
#include "uDjOld/TfrmDjOld.h"

#include "tests/support/desk.h"
#include "tests/support/dividedroom.h"
#include "tests/support/gridreading.h"
#include "tests/support/hands.h"
#include "tests/support/hostcolours.h"
#include "tests/support/modalvisit.h"
#include "tests/uMain/expected.h"

#include <gtest/gtest.h>

#include <QAbstractButton>

#include <functional>
#include <optional>

using namespace expected;

namespace {

// The same stay in both sets of tables, with other items in the archive.
const char *const Items = R"(
insert into o_CbZyBxDjZb(OrgCode,CoopMedCode,IDNo,DiagNo,FeeNo,ItemCode,ItemName,FeeTypeCode,FeeTypeName,IfPass,Unit,Price,
  Num,Fee,CanFreeFee,KnockOffFee1,KnockOffFee,YyDate,InputDate) values
 ('42990101','03''1',1,2,1,'A1','青霉素','01','西药费','1','支',1234.5,2,2469,2400.25,10,0,'2026-02-01','2026-02-02'),
 ('42990101','03''1',1,2,2,'A2','化验','03','化验费','1','次',30,1,30,20,5,7.5,'2026-02-01','2026-02-02'),
 ('42990101','03''1',1,2,3,'A3','床位','05','床位费','2','天',20,3,60,0,0,9,'2026-02-01','2026-02-02'),
 ('42990101','03''1',1,2,4,'A4','补液','01','西药费','1','瓶',5,1,5,5,null,null,null,null),
 ('42990101','03''1',1,2,5,'A5','护理','05','床位费','2','天',1,1,1,0,0,0,'2026-02-03','2026-02-03'))";
const char *const Approvals = R"(
insert into o_CbZyBxTpb(OrgCode,CoopMedCode,IDNo,DiagNo,ItemCode,Status) values
 ('42990101','03''1',1,2,'A3','3'),('42990101','03''1',1,2,'A4','3'),('42990101','03''1',1,2,'A1','1'))";
const char *const ArchivedItems = R"(
insert into s_CbZyBxDjZb(OrgCode,CoopMedCode,IDNo,DiagNo,FeeNo,ItemCode,ItemName,FeeTypeCode,FeeTypeName,IfPass,Fee) values
 ('42990101','03''1',1,2,1,'B1','旧项目','01','西药费','1',8))";
const char *const ArchivedApprovals = R"(
insert into s_CbZyBxTpb(OrgCode,CoopMedCode,IDNo,DiagNo,ItemCode,Status) values ('42990101','03''1',1,2,'B1','3'))";

QStringList statements(const char *prefix)
{
    const QString types = QStringLiteral(" select FeeTypeCode,FeeTypeName,sum(Fee) as Fee  from %1_CbZyBxDjZb where "
                                         "OrgCode='42990101' and CoopMedCode='03''1'   and IDNo=1 and DiagNo=2 group "
                                         "by FeeTypeCode,FeeTypeName  order by FeeTypeCode ");
    const QString items = QStringLiteral(
        " select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit, Str(a.Price,15,4) as Price,"
        "Str(a.Num,15,4) as Num, Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as CanFreeFee, Str(a.KnockOffFee1,15,4) "
        "as OneFee,Str(a.KnockOffFee,15,4) as TwoFee,a.FeeTypeCode, convert(varchar(10),a.YyDate,126) as YyDate,"
        "convert(varchar(10),a.InputDate,126) as InputDate, (case isnull(c.Status,'') when '' then 2 else 1 end) as "
        "IsTp  from %1_CbZyBxDjZb a left join %1_CbZyBxTpb c on a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode "
        "                                            and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo "
        "                                            and a.ItemCode=c.ItemCode and c.Status='3'   where "
        "a.OrgCode='42990101' and a.CoopMedCode='03''1'   and a.IDNo=1 and a.DiagNo=2 order by a.FeeNo ");
    const QString table = QString::fromUtf8(prefix);
    return query(types.arg(table)) + query(items.arg(table));
}

HistoryRecord recordOf(const char *type, const char *status)
{
    return {{QStringLiteral("42990101"), QStringLiteral("03'1"), QStringLiteral("1"), QStringLiteral("2")},
            QString::fromUtf8(type),
            QString::fromUtf8(status)};
}

class DjOldTest : public testing::Test {
protected:
    using Work = std::function<void(QWidget &dialog)>;

    void open()
    {
        m_desk.emplace();
        for (const char *rows : {Items, Approvals, ArchivedItems, ArchivedApprovals})
            m_desk->sqlite(rows);
        m_desk->open();
        (void)said();
    }
    void inDialog(const char *type, const char *status, const Work &work)
    {
        open();
        const ModalVisit visit(QStringLiteral("frmDjOld"), work);
        showHistoryDetail(recordOf(type, status), &m_desk->form());
    }
    [[nodiscard]] QStringList said() { return m_desk->conversation().take(); }
    [[nodiscard]] static TdxTreeList &items(QWidget &dialog) { return hands::find<TdxTreeList>(dialog, "dxTLFeeInfo"); }
    [[nodiscard]] static TdxTreeList &types(QWidget &dialog) { return hands::find<TdxTreeList>(dialog, "dxTLFeeType"); }
    [[nodiscard]] static QString codes(QWidget &dialog)
    {
        return hands::columnTexts(items(dialog), "dxTLFeeInfoItemCode").join(u' ');
    }

    std::optional<Desk> m_desk;
};

} // namespace

TEST_F(DjOldTest, aCurrentBillReadsTheTablesInUse)
{
    inDialog("1", "4", [this](QWidget &dialog) {
        EXPECT_EQ(said(), QStringList({read("Color-5"), read("Color-5")}) + statements(" o"));
        EXPECT_EQ(codes(dialog), QStringLiteral("A1 A2 A3 A4 A5"));
        EXPECT_EQ(hands::columnTexts(types(dialog), "dxTLFeeTypeName"),
                  QStringList({QStringLiteral("西药费"), QStringLiteral("化验费"), QStringLiteral("床位费")}));
        EXPECT_EQ(grids::shownTexts(types(dialog), "dxTLFeeTypeFee"),
                  QStringList({QStringLiteral("2,474.00"), QStringLiteral("30.00"), QStringLiteral("61.00")}));
    });
}

TEST_F(DjOldTest, anArchivedBillReadsTheArchive)
{
    inDialog("2", "4", [this](QWidget &dialog) {
        EXPECT_EQ(said(), QStringList({read("Color-5"), read("Color-5")}) + statements(" s"));
        EXPECT_EQ(codes(dialog), QStringLiteral("B1"));
        EXPECT_EQ(items(dialog).node(0).text(13), QStringLiteral("1"));
    });
}

TEST_F(DjOldTest, anUnknownTypeNamesNoTableAndFailsToTheCaller)
{
    open();
    EXPECT_THROW(showHistoryDetail(recordOf("3", "4"), &m_desk->form()), std::exception);
    const QStringList lines = said();
    EXPECT_TRUE(lines.last().startsWith(statements("").first().chopped(1))) << lines.last().toStdString();
    EXPECT_TRUE(lines.last().contains(QStringLiteral(" from _CbZyBxDjZb where")));
    EXPECT_EQ(m_desk->form().findChild<TfrmDjOld *>(), nullptr) << "the dialog is freed";
    const ModalVisit visit(QStringLiteral("frmDjOld"), [](QWidget &dialog) { EXPECT_EQ(codes(dialog).size(), 14); });
    showHistoryDetail(recordOf("1", "4"), &m_desk->form());
}

TEST_F(DjOldTest, isFreedWhenItCloses)
{
    inDialog("1", "4", [this](QWidget &) { EXPECT_NE(m_desk->form().findChild<TfrmDjOld *>(), nullptr); });
    EXPECT_EQ(m_desk->form().findChild<TfrmDjOld *>(), nullptr);
}

TEST_F(DjOldTest, rowsHoldAllFourteenColumns)
{
    inDialog("1", "4", [](QWidget &dialog) {
        EXPECT_EQ(grids::columns(items(dialog)),
                  QStringList(
                      {QStringLiteral("FeeNo|序号|FeeNo|,0;-,0"), QStringLiteral("ItemCode|项目编码|ItemCode"),
                       QStringLiteral("ItemName|项目名称|ItemName"), QStringLiteral("IfPass|是否补偿|IfPass|check"),
                       QStringLiteral("Unit|单位|Unit"), QStringLiteral("Price|单价|Price|￥,0.0000;-￥,0.0000"),
                       QStringLiteral("Num|数量|Num|,0.00;-,0.00"), QStringLiteral("Fee|金额|Fee|￥,0.0000;-￥,0.0000"),
                       QStringLiteral("CanFee|可报销金额|CanFreeFee|￥,0.0000;-￥,0.0000"),
                       QStringLiteral("OneFee|一级剔除金额|OneFee|￥,0.0000;-￥,0.0000"),
                       QStringLiteral("TwoFee|县市剔除金额|TwoFee|￥,0.0000;-￥,0.0000"),
                       QStringLiteral("YyDate|用药时间|YyDate"), QStringLiteral("InputDate|录入时间|InputDate"),
                       QStringLiteral("IsTp|是否特批|IsTp|check")}));
        const TdxTreeListNode row = items(dialog).node(1);
        QStringList texts;
        for (int i = 0; i < 14; ++i)
            texts.append(row.text(i).trimmed());
        EXPECT_EQ(texts.join(u'|'),
                  QStringLiteral("2.0000|A2|化验|1|次|30.0000|1.0000|30.0000|20.0000|5.0000|7.5000|2026-02-01|"
                                 "2026-02-02|2"));
        EXPECT_EQ(grids::shownTexts(items(dialog), "dxTLFeeInfoPrice").first(), QStringLiteral("￥1,234.5000"));
        EXPECT_EQ(grids::shownTexts(items(dialog), "dxTLFeeInfoFeeNo").first(), QStringLiteral("1"));
        EXPECT_EQ(grids::shownTexts(items(dialog), "dxTLFeeInfoNum").first(), QStringLiteral("2.00"));
        EXPECT_EQ(grids::shownTexts(items(dialog), "dxTLFeeInfoOneFee")[3], QString()) << "no deduction stored";
    });
}

TEST_F(DjOldTest, approvalIsStoredAsOneAndTwoUnderAnEmptyBox)
{
    inDialog("1", "4", [](QWidget &dialog) {
        EXPECT_EQ(hands::columnTexts(items(dialog), "dxTLFeeInfoIsTp").join(u' '), QStringLiteral("2 2 1 1 2"))
            << "an approval with another status does not count";
        EXPECT_EQ(grids::shownTexts(items(dialog), "dxTLFeeInfoIsTp"), QStringList(5, QStringLiteral("未勾选")));
        const auto *column = qobject_cast<const TdxTreeListCheckColumn *>(items(dialog).column(13));
        ASSERT_NE(column, nullptr);
        EXPECT_EQ(column->valueChecked(), QStringLiteral("True"));
        EXPECT_EQ(column->valueUnchecked(), QStringLiteral("False"));
        EXPECT_EQ(grids::shownTexts(items(dialog), "dxTLFeeInfoIfPass").join(u' '),
                  QStringLiteral("已勾选 已勾选 未勾选 已勾选 未勾选"));
    });
}

TEST_F(DjOldTest, aDeductionShowsOnceItsReviewHasTakenPlace)
{
    struct Row {
        const char *status;
        bool first;
        bool second;
    };
    for (const Row &row : {Row{"1", false, false}, Row{"2", false, false}, Row{"9", false, false},
                           Row{"3", true, false}, Row{"4", true, true}, Row{"7", true, true}, Row{"", true, true}}) {
        inDialog("1", row.status, [&row](QWidget &dialog) {
            EXPECT_EQ(items(dialog).column(9)->isVisible(), row.first) << row.status;
            EXPECT_EQ(items(dialog).column(10)->isVisible(), row.second) << row.status;
            EXPECT_TRUE(items(dialog).column(13)->isVisible()) << row.status;
        });
    }
}

TEST_F(DjOldTest, fourChoicesFilterWithoutAskingTheDatabase)
{
    inDialog("1", "4", [this](QWidget &dialog) {
        (void)said();
        EXPECT_TRUE(hands::find<QAbstractButton>(dialog, "rbAll").isChecked());
        hands::click(dialog, "rbLocal");
        EXPECT_EQ(codes(dialog), QStringLiteral("A1 A4")) << "the first fee type is focused";
        hands::clickNode(types(dialog), 2);
        EXPECT_EQ(codes(dialog), QStringLiteral("A3 A5"));
        hands::click(dialog, "rbPass");
        EXPECT_EQ(codes(dialog), QStringLiteral("A1 A2 A4"));
        hands::clickNode(types(dialog), 1);
        EXPECT_EQ(codes(dialog), QStringLiteral("A1 A2 A4")) << "the fee type counts for rbLocal only";
        hands::click(dialog, "rbUPass");
        EXPECT_EQ(codes(dialog), QStringLiteral("A3 A5"));
        hands::click(dialog, "rbAll");
        EXPECT_EQ(codes(dialog), QStringLiteral("A1 A2 A3 A4 A5"));
        EXPECT_TRUE(said().isEmpty());
        EXPECT_TRUE(m_desk->errors().isEmpty());
    });
}

TEST_F(DjOldTest, rowColoursFollowEachOther)
{
    inDialog("1", "4", [](QWidget &dialog) {
        const QString window = dialog.palette().color(QPalette::Base).name();
        EXPECT_EQ(grids::backgrounds(items(dialog), "dxTLFeeInfoItemCode"),
                  QStringList({QStringLiteral("#336699"), // focused
                               QStringLiteral("#ffc8c8"), // deducted at the second review
                               QStringLiteral("#ffe3bb"), // deducted and approved: approval wins
                               QStringLiteral("#ffe3bb"), // approved
                               window}));
        hands::clickCell(items(dialog), 2, "dxTLFeeInfoItemName");
        EXPECT_EQ(grids::backgrounds(items(dialog), "dxTLFeeInfoItemCode"),
                  QStringList({window, QStringLiteral("#ffc8c8"), QStringLiteral("#336699"), QStringLiteral("#ffe3bb"),
                               window}))
            << "the focus outdoes every colour; a deduction of the first review only has none";
    });
}

TEST_F(DjOldTest, textIsLightInTheFocusedRowOnly)
{
    inDialog("1", "4", [](QWidget &dialog) {
        const auto expectLight = [&dialog](int focused) {
            for (int row = 0; row < 5; ++row) {
                EXPECT_EQ(grids::darkestSpot(items(dialog), row, "dxTLFeeInfoItemName") >= 60, row == focused) << row;
                EXPECT_TRUE(row != focused || grids::lightestSpot(items(dialog), row, "dxTLFeeInfoItemName") > 220);
            }
        };
        expectLight(0);
        hands::clickCell(items(dialog), 2, "dxTLFeeInfoItemCode");
        expectLight(2); // whatever colour the row would have
        hands::clickCell(types(dialog), 1, "dxTLFeeTypeFee");
        EXPECT_GT(grids::lightestSpot(types(dialog), 1, "dxTLFeeTypeName"), 220);
        EXPECT_LT(grids::darkestSpot(types(dialog), 0, "dxTLFeeTypeName"), 60);
    });
}

TEST_F(DjOldTest, coloursAreAskedAnewForEachPainting)
{
    inDialog("1", "4", [](QWidget &dialog) {
        const QString window = dialog.palette().color(QPalette::Base).name();
        EXPECT_EQ(grids::backgrounds(items(dialog), "dxTLFeeInfoItemCode").join(u' '),
                  QStringLiteral("#336699 #ffc8c8 #ffe3bb #ffe3bb ") + window);
        QHash<QString, QString> colours = {{QStringLiteral("Color-1"), QStringLiteral("255")},
                                           {QStringLiteral("Color-2"), QStringLiteral("16250094")},
                                           {QStringLiteral("Color-6"), QStringLiteral("65280")},
                                           {QStringLiteral("Color-7"), QStringLiteral("16711680")}};
        changeColours(colours);
        EXPECT_EQ(grids::backgrounds(items(dialog), "dxTLFeeInfoItemCode").join(u' '),
                  QStringLiteral("#ff0000 #0000ff #00ff00 #00ff00 ") + window);
        colours[QStringLiteral("Color-7")] = QStringLiteral("13158655");
        changeColours(colours);
        EXPECT_EQ(grids::backgrounds(items(dialog), "dxTLFeeInfoItemCode").value(1), QStringLiteral("#ffc8c8"));
    });
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(DjOldTest, hiddenDeductionsColourTheirRowsAllTheSame)
{
    inDialog("1", "2", [](QWidget &dialog) {
        EXPECT_EQ(grids::backgrounds(items(dialog), "dxTLFeeInfoItemCode")[1], QStringLiteral("#ffc8c8"));
    });
}

TEST_F(DjOldTest, hasItsTextsAndExits)
{
    inDialog("1", "4", [](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("历史明细"));
        QStringList captions;
        for (const char *name : {"rbAll", "rbLocal", "rbPass", "rbUPass", "btnExit"})
            captions.append(hands::find<QAbstractButton>(dialog, name).text());
        EXPECT_EQ(captions.join(u'|'), QStringLiteral("全部费用分类|当前费用分类|纳入补偿|未纳入补偿|退出(&E)"));
        hands::click(dialog, "btnExit");
        EXPECT_FALSE(dialog.isVisible());
    });
}

TEST_F(DjOldTest, aRecordWithoutItemsIsEmpty)
{
    open();
    HistoryRecord record = recordOf("1", "4");
    record.key.coopMedCode = QStringLiteral("none");
    const ModalVisit visit(QStringLiteral("frmDjOld"), [this](QWidget &dialog) {
        EXPECT_EQ(items(dialog).count(), 0);
        hands::click(dialog, "rbLocal");
        EXPECT_EQ(items(dialog).count(), 0);
        EXPECT_TRUE(m_desk->errors().isEmpty());
    });
    showHistoryDetail(record, &m_desk->form());
}

TEST_F(DjOldTest, theRoomIsDividedByNeed)
{
    inDialog("1", "4", [](QWidget &dialog) { expectRoomDividedByNeed(types(dialog), items(dialog)); });
}
