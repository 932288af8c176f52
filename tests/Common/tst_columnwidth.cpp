// SPDX-License-Identifier: MIT
// Columns of tables, trees and lists as wide as their texts.
#include "Common/TCtrlFunc.h"
#include "tests/toolkit/treelistfixture.h"

#include <QHeaderView>
#include <QListWidget>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// ---- widths of a table

class ColumnWidth : public testing::Test {
protected:
    ColumnWidth()
        : m_grid(2, 3)
    {
        m_grid.verticalHeader()->hide();
        m_grid.setHorizontalHeaderLabels({u"患者姓名（住院登记时）"_s, u"序"_s, u"疾病"_s});
        m_grid.setItem(0, 0, new QTableWidgetItem(u"李四"_s));
        m_grid.setItem(0, 1, new QTableWidgetItem(u"1"_s));
        m_grid.setItem(1, 1, new QTableWidgetItem(u"420106001200 420106001200"_s));
        m_grid.setItem(0, 2, new QTableWidgetItem(u"急性上呼吸道感染"_s));
        m_grid.setItem(1, 2, new QTableWidgetItem(u"肺炎"_s));
    }

    /// With the margin.
    [[nodiscard]] int widthOf(const QString &text) const { return widthOf(text, m_grid.font()); }
    [[nodiscard]] int widthOf(const QString &text, const QFont &font) const
    {
        const int margin = m_grid.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &m_grid)
            + m_grid.fontMetrics().horizontalAdvance(u'0');
        return QFontMetrics(font).horizontalAdvance(text) + 2 * margin;
    }

    QTableWidget m_grid;
};

TEST_F(ColumnWidth, isThatOfTheWidestTextAndAMargin)
{
    TCtrlFunc().AutoColumnWidth(m_grid);
    EXPECT_EQ(m_grid.columnWidth(0), m_grid.horizontalHeader()->sectionSizeHint(0)); // the caption is the widest
    EXPECT_EQ(m_grid.columnWidth(1), widthOf(u"420106001200 420106001200"_s));
    EXPECT_EQ(m_grid.columnWidth(2), widthOf(u"急性上呼吸道感染"_s));
}

TEST_F(ColumnWidth, countsNoHiddenCaptions)
{
    m_grid.horizontalHeader()->hide();
    TCtrlFunc().AutoColumnWidth(m_grid);
    EXPECT_EQ(m_grid.columnWidth(0), widthOf(u"李四"_s));
}

TEST_F(ColumnWidth, isMeasuredInTheCellsOwnFont)
{
    QFont large;
    large.setPointSize(40);
    m_grid.item(1, 2)->setFont(large);
    TCtrlFunc().AutoColumnWidth(m_grid);
    EXPECT_EQ(m_grid.columnWidth(2), widthOf(u"肺炎"_s, large));
}

TEST_F(ColumnWidth, hasRoomForAPictureAndATick)
{
    TCtrlFunc().AutoColumnWidth(m_grid);
    const int plain = m_grid.columnWidth(2);
    m_grid.item(0, 2)->setCheckState(Qt::Checked);
    TCtrlFunc().AutoColumnWidth(m_grid);
    const int ticked = m_grid.columnWidth(2);
    EXPECT_GE(ticked, plain + m_grid.style()->pixelMetric(QStyle::PM_IndicatorWidth));
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    m_grid.item(0, 2)->setIcon(picture);
    TCtrlFunc().AutoColumnWidth(m_grid);
    EXPECT_GE(m_grid.columnWidth(2), ticked + 16);
}

TEST_F(ColumnWidth, makesTheGridAsWideAsItsColumns)
{
    TCtrlFunc().AutoColumnWidth(m_grid);
    EXPECT_EQ(m_grid.width(),
              m_grid.columnWidth(0) + m_grid.columnWidth(1) + m_grid.columnWidth(2) + 2 * m_grid.frameWidth());
    EXPECT_EQ(m_grid.height(), 480); // stays
}

TEST_F(ColumnWidth, leavesHiddenColumnsAlone)
{
    m_grid.setColumnHidden(1, true);
    TCtrlFunc().AutoColumnWidth(m_grid);
    EXPECT_TRUE(m_grid.isColumnHidden(1));
    EXPECT_EQ(m_grid.width(), m_grid.columnWidth(0) + m_grid.columnWidth(2) + 2 * m_grid.frameWidth());
}

class ScrolledColumnWidth : public ColumnWidth, public testing::WithParamInterface<bool> { };

TEST_P(ScrolledColumnWidth, leavesNothingToScrollSideways)
{
    m_grid.verticalHeader()->show();
    m_grid.setRowCount(500);
    m_grid.resize(200, 200);
    if (GetParam())
        m_grid.show();
    TCtrlFunc().AutoColumnWidth(m_grid);
    m_grid.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(m_grid.verticalScrollBar()->isVisible());
    EXPECT_FALSE(m_grid.horizontalScrollBar()->isVisible());
    EXPECT_EQ(m_grid.viewport()->width(), m_grid.horizontalHeader()->length());
}

INSTANTIATE_TEST_SUITE_P(BeforeAndAfterShowing, ScrolledColumnWidth, testing::Bool(),
                         [](const testing::TestParamInfo<bool> &row) { return row.param ? "Shown" : "NotYetShown"; });

TEST(ColumnWidthOf, anEmptyGridIsItsFrame)
{
    QTableWidget grid;
    grid.verticalHeader()->hide();
    TCtrlFunc().AutoColumnWidth(grid);
    EXPECT_EQ(grid.width(), 2 * grid.frameWidth());
}

TEST(ColumnWidthOf, aViewWithoutColumnsOrModelIsLeftAlone)
{
    QListWidget names;
    names.addItem(u"李四"_s);
    QTreeView withoutModel;
    for (QAbstractItemView *view :
         {static_cast<QAbstractItemView *>(&names), static_cast<QAbstractItemView *>(&withoutModel)}) {
        view->resize(123, 45);
        TCtrlFunc().AutoColumnWidth(*view);
        EXPECT_EQ(view->size(), QSize(123, 45));
    }
}

TEST(ColumnWidthOf, aTreeCountsEveryLevelAndItsIndentation)
{
    QTreeWidget tree;
    tree.setHeaderLabels({u"名称"_s, u"额"_s});
    auto *top = new QTreeWidgetItem(&tree, {u"县医院"_s, u"1"_s});
    auto *below = new QTreeWidgetItem(top, {u"一个长得多的名字在这里"_s, u"100000000000"_s});
    new QTreeWidgetItem(below, {u"一个长得多的名字在这里"_s, u"1"_s});
    tree.setColumnWidth(0, 30);
    TCtrlFunc().AutoColumnWidth(tree);
    const auto width = [&tree](const QString &text) {
        return tree.fontMetrics().horizontalAdvance(text)
            + 2
            * (tree.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &tree)
               + tree.fontMetrics().horizontalAdvance(u'0'));
    };
    const int first = width(u"一个长得多的名字在这里"_s) + 3 * tree.indentation();
    EXPECT_EQ(tree.columnWidth(0), first);
    EXPECT_EQ(tree.width(), first + width(u"100000000000"_s) + 2 * tree.frameWidth());
    EXPECT_FALSE(tree.isExpanded(tree.model()->index(0, 0)));
    tree.show();
    tree.expandAll();
    QCoreApplication::processEvents();
    EXPECT_EQ(tree.columnWidth(0), first);
    EXPECT_EQ(tree.header()->length(), tree.viewport()->width());
}

// ---- widths of a list

class ListWidth : public TreeListTest {
protected:
    ListWidth()
    {
        list.column(Number)->setCustomDrawCell(
            [](const TdxTreeListNode &node, const TdxTreeListColumn &, bool, CellStyle &style) {
                style.text = u"第 %1 行，共 5 行"_s.arg(node.index() + 1);
            });
        load();
        list.node(3).setValue(Remark, QString(60, u'国')); // wider than a list's own fit allows
    }

    [[nodiscard]] std::vector<int> widths() const
    {
        std::vector<int> all;
        all.reserve(static_cast<std::size_t>(list.columnCount()));
        for (int column = 0; column < list.columnCount(); ++column)
            all.push_back(list.header()->sectionSize(column));
        return all;
    }

    /// The columns that cut a text short, by the delegate's own measure.
    [[nodiscard]] std::string cut() const
    {
        std::string names;
        for (int column = 0; column < list.columnCount(); ++column) {
            for (int row = 0; row < list.count() && !list.isColumnHidden(column); ++row) {
                if (list.sizeHintForIndex(at(row, column)).width() > list.header()->sectionSize(column))
                    names += list.column(column)->objectName().toStdString() + " ";
            }
        }
        return names;
    }
};

TEST_F(ListWidth, holdsEveryCell)
{
    ASSERT_NE(cut(), "");
    TCtrlFunc().AutoColumnWidth(list);
    EXPECT_EQ(cut(), "");
    EXPECT_GT(list.header()->sectionSize(Number), list.fontMetrics().horizontalAdvance(u"第 5 行，共 5 行"_s));
    EXPECT_GT(list.header()->sectionSize(Fee), list.fontMetrics().horizontalAdvance(u"总费用"_s));
}

TEST_F(ListWidth, isNotWiderThanItsTexts)
{
    for (int column = 0; column < list.columnCount(); ++column) {
        if (!list.isColumnHidden(column))
            list.header()->resizeSection(column, 500);
    }
    TCtrlFunc().AutoColumnWidth(list);
    EXPECT_LT(list.header()->sectionSize(Check), 100);
    EXPECT_LT(list.header()->sectionSize(Imported), 150); // a tick and no "False"
    EXPECT_EQ(list.header()->sectionSize(Age),
              std::max(list.header()->sectionSizeHint(Age),
                       list.fontMetrics().horizontalAdvance(u"45岁"_s)
                           + 2
                               * (list.fontMetrics().horizontalAdvance(u'0')
                                  + list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list))));
}

TEST_F(ListWidth, leavesHiddenColumnsAlone)
{
    TCtrlFunc().AutoColumnWidth(list);
    EXPECT_TRUE(list.isColumnHidden(Key));
    EXPECT_EQ(list.header()->sectionSize(Key), 0);
    list.setColumnHidden(Key, false);
    EXPECT_LT(list.header()->sectionSize(Key), 200);
}

TEST_F(ListWidth, isThatOfTheColumns)
{
    TCtrlFunc().AutoColumnWidth(list);
    show();
    EXPECT_EQ(list.viewport()->width(), list.header()->length());
    EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(list.height(), 300);
}

TEST_F(ListWidth, staysWhateverTheListDoesNext)
{
    TCtrlFunc().AutoColumnWidth(list);
    const std::vector<int> chosen = widths();
    show();
    EXPECT_EQ(widths(), chosen);
    load();
    EXPECT_EQ(widths(), chosen);
    list.beginUpdate();
    list.clearNodes();
    list.endUpdate();
    load(packetOf({{"001", "一个长得多的名字在这里", "1岁", "1", "True", "1"}}));
    list.setFooterVisible(true);
    list.header()->setSortIndicator(Name, Qt::AscendingOrder);
    list.resize(300, 200);
    QCoreApplication::processEvents();
    EXPECT_EQ(widths(), chosen);
}

TEST_F(ListWidth, worksOnAListThatIsShownAndScrolled)
{
    load(manyPatients(400));
    list.resize(200, 200);
    list.setFixedBand(2);
    show();
    list.horizontalScrollBar()->setValue(50);
    TCtrlFunc().AutoColumnWidth(list);
    QCoreApplication::processEvents();
    EXPECT_EQ(cut(), "");
    EXPECT_EQ(list.viewport()->width(), list.header()->length());
    EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
}

class PlainTreeWidth : public testing::TestWithParam<bool> { };

TEST_P(PlainTreeWidth, isThatOfTheDeepestText)
{
    TdxTreeList tree;
    tree.setColumns({{.name = "tree", .caption = "医疗服务单位"}});
    tree.setHeaderHidden(true);
    if (GetParam()) {
        QPixmap image(16, 16);
        image.fill(Qt::red);
        tree.setImages({QIcon(image)});
    }
    tree.beginUpdate();
    const TdxTreeListNode group = tree.addNode();
    const TdxTreeListNode bill = tree.addNode(group);
    const TdxTreeListNode person = tree.addNode(bill);
    group.setValue(0, u"县人民医院"_s);
    bill.setValue(0, u"2024-05-10【制单】"_s);
    person.setValue(0, u"阿依古丽·买买提（城关镇卫生院）"_s);
    for (const TdxTreeListNode &node : {group, bill, person})
        node.setImages(0, 0);
    tree.endUpdate();
    tree.resize(600, 200);
    TCtrlFunc().AutoColumnWidth(tree);
    const int needed = tree.fontMetrics().horizontalAdvance(person.text(0)) + 3 * tree.indentation()
        + (GetParam() ? tree.style()->pixelMetric(QStyle::PM_SmallIconSize) : 0);
    EXPECT_GT(tree.header()->sectionSize(0), needed);
    EXPECT_LT(tree.header()->sectionSize(0), needed + 50);
    tree.show();
    tree.expandAll();
    QCoreApplication::processEvents();
    EXPECT_EQ(tree.header()->sectionSize(0), tree.viewport()->width());
    EXPECT_EQ(tree.horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(tree.visualRect(tree.model()->index(0, 0, tree.model()->index(0, 0, tree.model()->index(0, 0)))).width(),
              tree.fontMetrics().horizontalAdvance(person.text(0)));
}

INSTANTIATE_TEST_SUITE_P(Images, PlainTreeWidth, testing::Bool(),
                         [](const testing::TestParamInfo<bool> &row) { return row.param ? "With" : "Without"; });

} // namespace
