// SPDX-License-Identifier: MIT
// What the pages "上报制单" and "退单制单" show.
#include "data/statements/feedetail.h"
#include "tests/support/modalvisit.h"
#include "tests/uMain/billpages.h"

#include <QAbstractButton>

using namespace expected;

INSTANTIATE_TEST_SUITE_P(Pages, BillPageTest, testing::Values(&Reported, &Returned), pageName);

namespace {

struct Column {
    const char *suffix;
    const char *caption;
};

const Column Columns[] = {
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
    {nullptr, "是否接口导入"}, // each page has its own name for it
    {"AreaCode", "行政区划"},
    {"OutDate", "出院时间"},
    {"DayCount", "住院天数"},
    {"PatientNo", "住院号"},
    {"DiagNo", "就医次序"},
    {"OrgCode", "当前医疗机构"},
};

QStringList texts(const TdxTreeListNode &node, int positions)
{
    QStringList all;
    for (int i = 0; i < positions; ++i)
        all.append(node.text(i));
    return all;
}

QPixmap filled(Qt::GlobalColor colour)
{
    QPixmap picture(16, 16);
    picture.fill(colour);
    return picture;
}

/// Whether the picture of a node's row shows the colour.
bool shows(TdxTreeList &tree, const QModelIndex &index, Qt::GlobalColor colour)
{
    const QImage row = tree.viewport()->grab(tree.visualRect(index)).toImage();
    for (int y = 0; y < row.height(); ++y) {
        for (int x = 0; x < row.width(); ++x) {
            if (row.pixelColor(x, y) == QColor(colour))
                return true;
        }
    }
    return false;
}

} // namespace

TEST_P(BillPageTest, treeHoldsTheInstitutionsBillsNewestFirst)
{
    open();
    EXPECT_TRUE(tree().isHeaderHidden());
    ASSERT_EQ(tree().columnCount(), 1);
    EXPECT_EQ(tree().column(0)->objectName(), QString::fromUtf8(m_page->treeColumn));
    ASSERT_EQ(tree().count(), 1);
    const TdxTreeListNode group = tree().topNode();
    EXPECT_EQ(texts(group, 6),
              QStringList({QStringLiteral("(42990101)甲镇卫生院"), QStringLiteral("1"), QStringLiteral("42990101"),
                           QString(), QString(), QString()}));
    ASSERT_EQ(group.childCount(), 3);
    EXPECT_EQ(texts(group.child(Two), 4),
              QStringList({QStringLiteral("2026-03-02"), QStringLiteral("2"), QStringLiteral("42990101"),
                           QStringLiteral("21")}));
    EXPECT_EQ(group.child(Single).text(3), QStringLiteral("20"));
    EXPECT_EQ(group.child(Empty).text(3), QStringLiteral("19"));
}

TEST_P(BillPageTest, onlyReturnedBillsCarryTheirAmounts)
{
    open();
    const TdxTreeListNode bill = tree().topNode().child(Two);
    if (m_page->billsCarryFees) {
        EXPECT_EQ(bill.value(4), QVariant(1200.30));
        EXPECT_EQ(bill.value(5), QVariant(950.15));
        EXPECT_EQ(tree().topNode().child(Single).value(5), QVariant(0.0)) << "no amount";
    } else {
        EXPECT_FALSE(bill.value(4).isValid());
        EXPECT_FALSE(bill.value(5).isValid());
    }
}

TEST_P(BillPageTest, treeIsAskedForInOneQuery)
{
    open();
    form().hide();
    form().show();
    const QStringList lines = said();
    EXPECT_TRUE(lines.contains(openSql(QString::fromUtf8(m_page->bills))));
    EXPECT_FALSE(lines.join(u'\n').contains(QStringLiteral("BillNo=21"))) << "no bill's records are loaded unasked";
}

TEST_P(BillPageTest, nodesShowTheirImages)
{
    open();
    tree().setImages({filled(Qt::red), filled(Qt::green), filled(Qt::blue)});
    const QModelIndex group = tree().model()->index(0, 0);
    const QModelIndex bill = tree().model()->index(Two, 0, group);
    EXPECT_TRUE(shows(tree(), group, Qt::red)) << "focused";
    EXPECT_TRUE(shows(tree(), bill, Qt::green));
    choose(Two);
    EXPECT_TRUE(shows(tree(), group, Qt::red));
    EXPECT_TRUE(shows(tree(), bill, Qt::blue));
    EXPECT_TRUE(shows(tree(), tree().model()->index(Single, 0, group), Qt::green));
}

TEST_P(BillPageTest, startsOnTheGroupWithNothingListed)
{
    open();
    EXPECT_EQ(tree().focusedNode(), tree().topNode());
    EXPECT_EQ(grid().count(), 0);
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00"));
    EXPECT_EQ(tree().popupMenu(), nullptr);
}

TEST_P(BillPageTest, choosingABillListsItsRecords)
{
    open();
    hands::clickNode(tree(), 0, Two);
    EXPECT_EQ(said(), records("21"));
    ASSERT_EQ(grid().count(), 2) << "in the order of discharge";
    EXPECT_EQ(texts(grid().node(0), 26),
              QStringList({QString(),
                           QStringLiteral("01'1"),
                           QStringLiteral("3"),
                           QStringLiteral("周强"),
                           QStringLiteral("周家"),
                           QStringLiteral("男"),
                           QStringLiteral("33岁"),
                           QStringLiteral("普通住院"),
                           QStringLiteral("2026-02-01"),
                           QStringLiteral("J18"),
                           QStringLiteral("肺炎"),
                           QStringLiteral("        1000.10"),
                           QStringLiteral("         800.05"),
                           QStringLiteral("         500.00"),
                           QStringLiteral("陈医生"),
                           QStringLiteral("01"),
                           QStringLiteral("管理员"),
                           QStringLiteral("42990101"),
                           QStringLiteral("甲镇卫生院"),
                           QStringLiteral("1"),
                           QStringLiteral("429901"),
                           QStringLiteral("2026-02-07"),
                           QStringLiteral("6"),
                           QStringLiteral("Z31"),
                           QStringLiteral("2"),
                           QStringLiteral("42990101")}));
    EXPECT_EQ(totals(), QStringLiteral("2|1,200.30|950.15"));
    ASSERT_NE(tree().popupMenu(), nullptr);
    EXPECT_EQ(tree().popupMenu()->objectName(), QString::fromUtf8(m_page->menu));
}

TEST_P(BillPageTest, totalsAreTheSumsOfTheRows)
{
    open();
    m_desk->sqlite("update o_CbZyZdb set Fee=1,CanFreeFee=2 where BillCode='42990101'");
    choose(Two);
    EXPECT_EQ(totals(), QStringLiteral("2|1,200.30|950.15")) << "not what the bill stores";
    choose(Single);
    EXPECT_EQ(totals(), QStringLiteral("1|5.50|0.00")) << "an amount that is null counts nothing";
}

TEST_P(BillPageTest, aBillWithoutRecordsCountsNone)
{
    open();
    choose(Empty);
    EXPECT_EQ(totals(), QStringLiteral("0|0.00|0.00"));
    EXPECT_EQ(grid().count(), 0);
    EXPECT_NE(tree().popupMenu(), nullptr) << "it can be cancelled whole";
}

TEST_P(BillPageTest, backOnTheGroupNothingIsListedAndNoMenuOffered)
{
    open();
    choose(Two);
    hands::clickNode(tree(), 0);
    EXPECT_TRUE(said().isEmpty());
    EXPECT_EQ(grid().count(), 0);
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00"));
    EXPECT_EQ(tree().popupMenu(), nullptr);
}

TEST_P(BillPageTest, aListThatFailsLeavesTheGridEmpty)
{
    open();
    choose(Two);
    m_desk->engine().failCall(1);
    hands::clickNode(tree(), 0, Single);
    EXPECT_EQ(m_desk->errors(), QStringList(failedWhile("载入制单记录"))) << "the host shows it";
    EXPECT_EQ(grid().count(), 0);
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00"));
}

TEST_P(BillPageTest, gridHasItsColumnsInOrder)
{
    open();
    ASSERT_EQ(grid().columnCount(), 26);
    for (int i = 0; i < 26; ++i) {
        const TdxTreeListColumn &column = *grid().column(i);
        const QString name = Columns[i].suffix == nullptr
            ? QString::fromUtf8(m_page->interfaceColumn)
            : QString::fromUtf8(m_page->grid) + QString::fromUtf8(Columns[i].suffix);
        EXPECT_EQ(column.objectName(), name);
        EXPECT_EQ(column.caption(), QString::fromUtf8(Columns[i].caption)) << i;
        EXPECT_EQ(column.isVisible(), i < 24) << i;
        EXPECT_FALSE(column.isEditable()) << i;
        EXPECT_EQ(qobject_cast<const TdxTreeListCurrencyColumn *>(&column) != nullptr, i >= 11 && i <= 13) << i;
    }
    EXPECT_TRUE(grid().column(22)->alignment().testFlag(Qt::AlignRight)) << "days";
    const auto *check = qobject_cast<const TdxTreeListCheckColumn *>(grid().column(19));
    ASSERT_NE(check, nullptr);
    EXPECT_EQ(check->valueChecked() + check->valueUnchecked(), QStringLiteral("12"));
}

TEST_P(BillPageTest, rowsAreNumberedWhereTheyStand)
{
    open();
    choose(Two);
    for (int row = 0; row < 2; ++row) {
        EXPECT_EQ(grid().model()->index(row, 0).data(Qt::AccessibleTextRole).toString(), QString::number(row + 1));
        EXPECT_TRUE(grid().node(row).text(0).isEmpty()) << "drawn, not stored";
    }
}

TEST_P(BillPageTest, menuAndButtonsHaveTheirCaptions)
{
    open();
    choose(Two);
    QStringList items;
    for (const QAction *item : tree().popupMenu()->actions())
        items.append(item->objectName() + QLatin1Char(' ') + item->text());
    EXPECT_EQ(items,
              QStringList({QString::fromUtf8(m_page->report) + QStringLiteral(" 整批上报制单"),
                           QString::fromUtf8(m_page->cancel) + QStringLiteral(" 整批取消制单"),
                           QString::fromUtf8(m_page->upload) + QStringLiteral(" 整批数据上传")}));
    QStringList captions;
    for (const char *name : {m_page->cancelOne, m_page->uploadOne, m_page->add, m_page->exit})
        captions.append(hands::find<QAbstractButton>(form(), name).text());
    EXPECT_EQ(captions.join(u'|'), QStringLiteral("单笔取消制单(&C)|单笔数据上传(&U)|添加单据(&A)|退出(&E)"));
}

TEST_P(BillPageTest, uploadingDoesNothing)
{
    open();
    choose(Two);
    hands::trigger(form(), m_page->upload);
    hands::click(form(), m_page->uploadOne);
    EXPECT_TRUE(said().isEmpty());
    EXPECT_EQ(totals(), QStringLiteral("2|1,200.30|950.15"));
}

TEST_P(BillPageTest, withoutBillsTheTreeIsEmpty)
{
    open();
    m_desk->sqlite("delete from o_CbZyZdb");
    form().hide();
    form().show();
    EXPECT_EQ(tree().count(), 0);
    EXPECT_TRUE(tree().focusedNode().isNull());
    EXPECT_EQ(grid().count(), 0);
    EXPECT_EQ(totals(), QStringLiteral("|0.00|0.00"));
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_P(BillPageTest, doubleClickOpensTheRecordsFees)
{
    open();
    choose(Two);
    const QByteArray patient = QByteArray(m_page->grid) + "PatientName";
    bool seen = false;
    {
        const ModalVisit visit(QStringLiteral("frmDjDetail"), [&seen](QWidget &) { seen = true; });
        hands::clickCell(grid(), 1, patient.constData());
        QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {},
                           hands::showCell(grid(), 1, patient.constData()).center());
    }
    EXPECT_TRUE(seen);
    const data::RecordKey key{QStringLiteral("42990101"), QStringLiteral("0102"), QStringLiteral("2"),
                              QStringLiteral("1")};
    EXPECT_TRUE(said().contains(openSql(data::feeTypes(key))));
}

TEST_P(BillPageTest, exitClosesTheForm)
{
    open();
    hands::click(form(), m_page->exit);
    EXPECT_FALSE(form().isVisible());
    EXPECT_TRUE(said().isEmpty());
}
