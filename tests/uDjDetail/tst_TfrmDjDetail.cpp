// SPDX-License-Identifier: MIT
// The dialog "明细信息": a record's fees by type and item, filtered in place.
#include "tests/support/desk.h"
#include "tests/support/dividedroom.h"
#include "tests/support/gridreading.h"
#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"
#include "tests/uMain/expected.h"

#include "toolkit/colours.h"
#include "toolkit/guard.h"
#include "uDjDetail/TfrmDjDetail.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QGroupBox>
#include <QRadioButton>

using namespace expected;

namespace {

// The first candidate has four lines of three fee types, one of them with a quote in its code; the third candidate has
// one line, the second none.
const char *const Fees =
    "insert into o_CbZyBxDjZb(OrgCode,CoopMedCode,IDNo,DiagNo,FeeNo,ItemCode,ItemName,FeeTypeCode,FeeTypeName,IfPass,"
    "Unit,Price,Num,Fee,CanFreeFee,YyDate,InputDate) values "
    "('42990101','0012',1,3,1,'X001','青霉素','01','西药费','1','支',1234.5,2,2469,2000.25,'2026-02-21','2026-02-22'),"
    "('42990101','0012',1,3,2,'C002','床位','02','床位费','2','天',15,9,135,0,'2026-02-21','2026-03-01'),"
    "('42990101','0012',1,3,10,'X003','退药','01','西药费','1','盒',8.25,-1.5,-12.375,-12.375,null,'2026-03-01'),"
    "('42990101','0012',1,3,11,'Q004','其他','9''9','其他费','1',null,1000000,1.005,1005000,1,'2026-03-01',null),"
    "('42990102','00''7',1,1,1,'S005','手术','05','手术费','1','次',1300.3,1,1300.3,1000,'2026-03-03','2026-03-03')";
const char *const Approvals = "insert into o_CbZyBxTpb(OrgCode,CoopMedCode,IDNo,DiagNo,ItemCode,Status) values "
                              "('42990101','0012',1,3,'X001','3'),('42990101','0012',1,3,'C002','1')";

QStringList loading(const char *org, const char *coop, const char *key)
{
    const QString quoted =
        QStringLiteral("OrgCode='%1' and %3CoopMedCode='%2'").arg(QString::fromUtf8(org), QString::fromUtf8(coop));
    const QString numbers = QString::fromUtf8(key); // "IDNo=1 and DiagNo=3", with %1 before each name
    return QStringList({read("Color-5"), read("Color-5")})
        + query(QStringLiteral(" select FeeTypeCode,FeeTypeName,sum(Fee) as Fee  from o_CbZyBxDjZb  where ")
                + quoted.arg(QString()) + QStringLiteral("   and ") + numbers.arg(QString())
                + QStringLiteral(" group by FeeTypeCode,FeeTypeName  order by FeeTypeCode "))
        + query(QStringLiteral(
                    " select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit, Str(a.Price,15,4) as "
                    "Price,Str(a.Num,15,4) as Num, Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as "
                    "CanFreeFee,a.FeeTypeCode, convert(varchar(10),a.YyDate,126) as "
                    "YyDate,convert(varchar(10),a.InputDate,126) as InputDate, (case isnull(c.Status,'') when '' then "
                    "2 else 1 end) as IsTp  from o_CbZyBxDjZb a left join o_CbZyBxTpb c on a.OrgCode=c.OrgCode and "
                    "a.CoopMedCode=c.CoopMedCode                                             and a.IDNo=c.IDNo and "
                    "a.DiagNo=c.DiagNo                                             and a.ItemCode=c.ItemCode and "
                    "c.Status='3'   where a.")
                + quoted.arg(QStringLiteral("a.")) + QStringLiteral("   and ") + numbers.arg(QStringLiteral("a."))
                + QStringLiteral(" order by a.FeeNo "));
}

QStringList firstRecord()
{
    return loading("42990101", "0012", "%1IDNo=1 and %1DiagNo=3");
}

TdxTreeList &types(const QWidget &dialog)
{
    return hands::find<TdxTreeList>(dialog, "dxTLFeeType");
}

TdxTreeList &items(const QWidget &dialog)
{
    return hands::find<TdxTreeList>(dialog, "dxTLFeeInfo");
}

QString itemCodes(const QWidget &dialog)
{
    return hands::columnTexts(items(dialog), "dxTLFeeInfoItemCode").join(QLatin1Char(' '));
}

void choose(const QWidget &dialog, const char *choice)
{
    hands::find<QRadioButton>(dialog, choice).click();
}

int openDialogs()
{
    int count = 0;
    for (const QWidget *window : QApplication::topLevelWidgets())
        count += window->objectName() == QStringLiteral("frmDjDetail") ? 1 : 0;
    return count;
}

const QString AllItems = QStringLiteral("X001 C002 X003 Q004");

class FeeDetailTest : public testing::Test {
protected:
    FeeDetailTest()
    {
        m_desk.sqlite(Fees);
        m_desk.sqlite(Approvals);
        m_desk.open();
        m_desk.conversation().take();
    }

    [[nodiscard]] TdxTreeList &candidateGrid() { return hands::find<TdxTreeList>(m_desk.form(), "dxTLUp"); }

    /// Opens a candidate's fees by a double-click and lets `work` look at them.
    void visit(int candidate, std::function<void(QWidget &)> work)
    {
        const ModalVisit visit(QStringLiteral("frmDjDetail"), std::move(work));
        hands::doubleClickCell(candidateGrid(), candidate, "dxTLUpPatientName");
    }

    Desk m_desk;
};

} // namespace

TEST_F(FeeDetailTest, aDoubleClickOnACandidateAsksForBothListsOfItsRecord)
{
    visit(0, [this](QWidget &dialog) {
        EXPECT_EQ(m_desk.conversation().take(), firstRecord());
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("明细信息"));
        EXPECT_EQ(hands::find<QGroupBox>(dialog, "gbFeeType").title(), QStringLiteral("费用分类信息"));
        EXPECT_EQ(hands::find<QGroupBox>(dialog, "gbFeeInfo").title(), QStringLiteral("费用项目信息"));
        EXPECT_EQ(openDialogs(), 1);
    });
    EXPECT_EQ(m_desk.conversation().take(), QStringList()) << "closing says nothing";
    EXPECT_EQ(openDialogs(), 0);
    EXPECT_TRUE(m_desk.errors().isEmpty());
}

TEST_F(FeeDetailTest, theMenuItemOpensTheFocusedCandidate)
{
    candidateGrid().setFocusedNode(candidateGrid().node(2));
    {
        const ModalVisit visit(QStringLiteral("frmDjDetail"),
                               [](QWidget &dialog) { EXPECT_EQ(itemCodes(dialog), QStringLiteral("S005")); });
        hands::trigger(m_desk.form(), "mFeeInfo");
    }
    EXPECT_EQ(m_desk.conversation().take(), loading("42990102", "00''7", "%1IDNo=1 and %1DiagNo=1"))
        << "a quote in the key is doubled";
}

TEST_F(FeeDetailTest, withoutAFocusedCandidateNothingOpens)
{
    candidateGrid().setFocusedNode({});
    hands::trigger(m_desk.form(), "mFeeInfo");
    EXPECT_EQ(m_desk.conversation().take(), QStringList());
    EXPECT_TRUE(m_desk.errors().isEmpty());
}

TEST_F(FeeDetailTest, gridsHaveTheirColumns)
{
    visit(0, [](QWidget &dialog) {
        EXPECT_EQ(grids::columns(types(dialog)),
                  QStringList({QStringLiteral("Name|费用名称|"), QStringLiteral("Fee|金额||,0.00;-,0.00")}));
        EXPECT_EQ(grids::columns(items(dialog)).join(u'\n').toStdString(),
                  "FeeNo|序号|FeeNo|,0;-,0\nItemCode|项目编码|ItemCode\nItemName|项目名称|ItemName\n"
                  "IfPass|是否补偿|IfPass|check\nUnit|单位|Unit\nPrice|单价|Price|￥,0.0000;-￥,0.0000\n"
                  "Num|数量|Num|,0.00;-,0.00\nFee|金额|Fee|￥,0.0000;-￥,0.0000\n"
                  "CanFee|可报销金额|CanFreeFee|￥,0.0000;-￥,0.0000\nYyDate|用药时间|YyDate\n"
                  "InputDate|录入时间|InputDate\nIsTp|是否特批||check|hidden");
    });
}

TEST_F(FeeDetailTest, feesAreSummedByType)
{
    visit(0, [](QWidget &dialog) {
        EXPECT_EQ(grids::shownTexts(types(dialog), "dxTLFeeTypeName").join(u' '),
                  QStringLiteral("西药费 床位费 其他费"));
        EXPECT_EQ(grids::shownTexts(types(dialog), "dxTLFeeTypeFee").join(u' '),
                  QStringLiteral("2,456.63 135.00 1,005,000.00"));
        const QVariant fee = types(dialog).node(0).value(1);
        EXPECT_EQ(fee.typeId(), QMetaType::Double) << "a number, not the text";
        EXPECT_EQ(fee.toDouble(), 2456.625);
        EXPECT_EQ(types(dialog).node(2).text(2), QStringLiteral("9'9")) << "the code stands behind the columns";
    });
}

TEST_F(FeeDetailTest, itemsAreShownInTheirFormats)
{
    visit(0, [](QWidget &dialog) {
        const auto shown = [&](const char *column) { return grids::shownTexts(items(dialog), column).join(u' '); };
        EXPECT_EQ(shown("dxTLFeeInfoFeeNo"), QStringLiteral("1 2 10 11"));
        EXPECT_EQ(hands::columnTexts(items(dialog), "dxTLFeeInfoFeeNo").last(), QStringLiteral("        11.0000"));
        EXPECT_EQ(itemCodes(dialog), AllItems);
        EXPECT_EQ(shown("dxTLFeeInfoItemName"), QStringLiteral("青霉素 床位 退药 其他"));
        EXPECT_EQ(shown("dxTLFeeInfoIfPass"), QStringLiteral("已勾选 未勾选 已勾选 已勾选"));
        EXPECT_EQ(shown("dxTLFeeInfoUnit"), QStringLiteral("支 天 盒 "));
        EXPECT_EQ(shown("dxTLFeeInfoPrice"), QStringLiteral("￥1,234.5000 ￥15.0000 ￥8.2500 ￥1,000,000.0000"));
        EXPECT_EQ(shown("dxTLFeeInfoNum"), QStringLiteral("2.00 9.00 -1.50 1.01"));
        EXPECT_EQ(shown("dxTLFeeInfoFee"), QStringLiteral("￥2,469.0000 ￥135.0000 -￥12.3750 ￥1,005,000.0000"));
        EXPECT_EQ(shown("dxTLFeeInfoCanFee"), QStringLiteral("￥2,000.2500 ￥0.0000 -￥12.3750 ￥1.0000"));
        EXPECT_EQ(shown("dxTLFeeInfoYyDate"), QStringLiteral("2026-02-21 2026-02-21  2026-03-01"));
        EXPECT_EQ(shown("dxTLFeeInfoInputDate"), QStringLiteral("2026-02-22 2026-03-01 2026-03-01 "));
    });
}

TEST_F(FeeDetailTest, specialApprovalsAreNeitherShownNorColoured)
{
    visit(0, [this](QWidget &dialog) {
        EXPECT_EQ(hands::columnTexts(items(dialog), "dxTLFeeInfoIsTp"), QStringList(4, QString()))
            << "the query has the value, but no row takes it";
        m_desk.conversation().take();
        EXPECT_EQ(grids::backgrounds(items(dialog), "dxTLFeeInfoItemName").at(2), QStringLiteral("#ffffff"));
        EXPECT_EQ(m_desk.conversation().take(), QStringList()) << "their colour is not even asked for";
    });
}

TEST_F(FeeDetailTest, rowsHaveTheColoursOfABillList)
{
    visit(0, [](QWidget &dialog) {
        const auto colour = [&](toolkit::WindowsColour value) {
            return toolkit::toColour(value, dialog.palette()).name();
        };
        const QString even = colour(toolkit::WindowColour);
        const QString odd = colour(16250094);
        const QString focused = colour(10053171);
        EXPECT_EQ(grids::backgrounds(types(dialog), "dxTLFeeTypeName"), QStringList({focused, odd, even}));
        EXPECT_EQ(grids::backgrounds(items(dialog), "dxTLFeeInfoItemName"), QStringList({focused, odd, even, odd}));
        types(dialog).setFocusedNode(types(dialog).node(1));
        items(dialog).setFocusedNode(items(dialog).node(3));
        EXPECT_EQ(grids::backgrounds(types(dialog), "dxTLFeeTypeName"), QStringList({even, focused, even}));
        EXPECT_EQ(grids::backgrounds(items(dialog), "dxTLFeeInfoItemName"), QStringList({even, odd, even, focused}));
    });
}

TEST_F(FeeDetailTest, withAllTypesChosenClickingATypeChangesNothing)
{
    visit(0, [this](QWidget &dialog) {
        m_desk.conversation().take();
        EXPECT_TRUE(hands::find<QRadioButton>(dialog, "rbAll").isChecked());
        hands::clickCell(items(dialog), 2, "dxTLFeeInfoItemName");
        hands::clickCell(types(dialog), 1, "dxTLFeeTypeName");
        EXPECT_EQ(itemCodes(dialog), AllItems);
        EXPECT_EQ(items(dialog).focusedNode(), items(dialog).node(2)) << "the items are not even loaded again";
        EXPECT_EQ(m_desk.conversation().take(), QStringList());
    });
}

TEST_F(FeeDetailTest, withTheCurrentTypeChosenItemsFollowTheType)
{
    visit(0, [this](QWidget &dialog) {
        m_desk.conversation().take();
        choose(dialog, "rbLocal");
        EXPECT_EQ(itemCodes(dialog), QStringLiteral("X001 X003"));
        hands::clickCell(types(dialog), 1, "dxTLFeeTypeName");
        EXPECT_EQ(itemCodes(dialog), QStringLiteral("C002"));
        QTest::keyClick(&types(dialog), Qt::Key_Down);
        EXPECT_EQ(itemCodes(dialog), QStringLiteral("Q004")) << "a quote in the type's code is doubled in the filter";
        choose(dialog, "rbAll");
        EXPECT_EQ(itemCodes(dialog), AllItems);
        choose(dialog, "rbLocal");
        EXPECT_EQ(itemCodes(dialog), QStringLiteral("Q004"));
        EXPECT_EQ(m_desk.conversation().take(), QStringList()) << "filtered in place";
    });
    EXPECT_TRUE(m_desk.errors().isEmpty());
}

TEST_F(FeeDetailTest, withoutAFocusedTypeTheCurrentTypeHasNoItems)
{
    visit(0, [](QWidget &dialog) {
        types(dialog).setFocusedNode({});
        choose(dialog, "rbLocal");
        EXPECT_EQ(itemCodes(dialog), QString());
        types(dialog).setFocusedNode(types(dialog).node(1));
        EXPECT_EQ(itemCodes(dialog), QStringLiteral("C002"));
    });
    EXPECT_TRUE(m_desk.errors().isEmpty());
}

TEST_F(FeeDetailTest, aRecordWithoutItemsShowsTwoEmptyGrids)
{
    visit(1, [](QWidget &dialog) {
        EXPECT_EQ(types(dialog).count(), 0);
        EXPECT_EQ(items(dialog).count(), 0);
        choose(dialog, "rbLocal");
        choose(dialog, "rbAll");
        EXPECT_EQ(items(dialog).count(), 0);
    });
    EXPECT_TRUE(m_desk.errors().isEmpty());
}

TEST_F(FeeDetailTest, everyOpeningBeginsWithAllTypesOfItsOwnRecord)
{
    visit(0, [](QWidget &dialog) { choose(dialog, "rbLocal"); });
    visit(2, [](QWidget &dialog) {
        EXPECT_TRUE(hands::find<QRadioButton>(dialog, "rbAll").isChecked());
        EXPECT_EQ(itemCodes(dialog), QStringLiteral("S005"));
    });
    visit(0, [](QWidget &dialog) { EXPECT_EQ(itemCodes(dialog), AllItems); });
}

TEST_F(FeeDetailTest, itsButtonsHaveTheirCaptions)
{
    visit(0, [](QWidget &dialog) {
        QStringList captions;
        for (const char *name : {"rbAll", "rbLocal", "BtnPrint2", "btnPrint"}) {
            const auto &button = hands::find<QAbstractButton>(dialog, name);
            captions.append(button.text() + (button.isVisible() ? QString() : QStringLiteral(" hidden")));
        }
        EXPECT_EQ(captions.join(u'|'),
                  QStringLiteral("全部费用分类|当前费用分类|打印核减单据 hidden|打印明细单据 hidden"));
    });
}

TEST_F(FeeDetailTest, escapeClosesIt)
{
    visit(0, [](QWidget &dialog) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
}

TEST_F(FeeDetailTest, aFailingQueryReachesTheHostAndTheDialogIsFreed)
{
    for (int call = 1; call <= 2; ++call) {
        m_desk.engine().failCall(call);
        candidateGrid().setFocusedNode(candidateGrid().node(0));
        hands::trigger(m_desk.form(), "mFeeInfo");
        EXPECT_EQ(m_desk.errors(), QStringList(call, failedWhile("查看费用信息")));
        EXPECT_TRUE(m_desk.conversation().take().last().endsWith(QStringLiteral(" !故障"))) << call;
        EXPECT_EQ(openDialogs(), 0) << call;
        visit(2, [](QWidget &dialog) {
            EXPECT_EQ(itemCodes(dialog), QStringLiteral("S005")) << "the next record is not the failed one";
        });
    }
}

TEST_F(FeeDetailTest, aMemberNumberThatIsNoNumberIsTheDatabasesToRefuse)
{
    const data::RecordKey key{QStringLiteral("42990101"), QStringLiteral("0012"), QStringLiteral("x"),
                              QStringLiteral("3")};
    EXPECT_FALSE(toolkit::guarded([&] { showFeeDetail(key, &m_desk.form()); }));
    QStringList wanted = loading("42990101", "0012", "%1IDNo=x and %1DiagNo=3").mid(0, 3);
    const QStringList lines = m_desk.conversation().take();
    ASSERT_EQ(lines.size(), wanted.size()) << "it goes in as it is, and nothing is asked after the refusal";
    EXPECT_EQ(lines.mid(0, 2), wanted.mid(0, 2));
    EXPECT_TRUE(lines.last().startsWith(wanted.last() + QStringLiteral(" !"))) << lines.last().toStdString();
    EXPECT_EQ(m_desk.errors().size(), 1);
    EXPECT_EQ(openDialogs(), 0);
    visit(0, [](QWidget &dialog) { EXPECT_EQ(itemCodes(dialog), AllItems); });
}

TEST_F(FeeDetailTest, theRoomIsDividedByNeed)
{
    visit(0, [](QWidget &dialog) { expectRoomDividedByNeed(types(dialog), items(dialog)); });
}

TEST_F(FeeDetailTest, aLongNameLeavesTheItemsTheirRoom)
{
    m_desk.sqlite(
        "update o_CbZyBxDjZb set FeeTypeName='一个很长很长很长很长很长很长很长很长很长很长很长很长的费用分类'");
    m_desk.form().resize(900, 600);
    visit(0, [](QWidget &dialog) {
        QCoreApplication::processEvents();
        EXPECT_LE(types(dialog).parentWidget()->width(), dialog.width() / 3 + 2);
    });
}
