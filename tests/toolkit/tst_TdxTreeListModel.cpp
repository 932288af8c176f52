// SPDX-License-Identifier: MIT
// What views, editors and assistive software are told.
#include "tests/toolkit/treelistfixture.h"

#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

class ListModel : public TreeListTest {
protected:
    [[nodiscard]] QAbstractItemModel &model() const { return *list.model(); }
    [[nodiscard]] std::string text(int row, int column, int role = Qt::DisplayRole) const
    {
        return at(row, column).data(role).toString().toStdString();
    }

    QAbstractItemModelTester tester{list.model(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(ListModel, ShowsTextsAsTheyCame)
{
    load();
    EXPECT_EQ(model().rowCount(), 5);
    EXPECT_EQ(model().columnCount(), 9);
    EXPECT_EQ(text(2, Name), "阿依古丽");
    EXPECT_EQ(text(0, Number), "");
    EXPECT_EQ(model().headerData(Card, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("合作医疗证号"));
}

TEST_F(ListModel, TrimsAmountsWithoutAFormat)
{
    load();
    EXPECT_EQ(text(0, Fee), "1234.50");
    EXPECT_EQ(list.node(0).text(Fee).toStdString(), "         1234.50");
}

TEST_F(ListModel, ShowsAmountsThroughTheFormat)
{
    load();
    static_cast<TdxTreeListCurrencyColumn *>(list.column(Fee))->setDisplayFormat(QStringLiteral("￥,0.00;-￥,0.00"));
    EXPECT_EQ(text(0, Fee), "￥1,234.50");
    EXPECT_EQ(text(4, Fee), "-￥0.50");
    EXPECT_EQ(text(3, Fee), ""); // null
    list.node(1).setValue(Fee, QStringLiteral(" 未结 "));
    EXPECT_EQ(text(1, Fee), "未结");
    list.node(1).setValue(Fee, 3.5);
    EXPECT_EQ(text(1, Fee), "￥3.50");
}

TEST_F(ListModel, KeepsItsShapeWhateverHappens)
{
    load();
    list.setFocusedNode(list.node(3));
    list.header()->setSortIndicator(Name, Qt::DescendingOrder);
    list.addNode().setValue(Name, QStringLiteral("后来"));
    list.beginUpdate();
    list.addNode();
    list.setValueOfAll(Check, QStringLiteral("1"));
    list.node(0).setValue(Remark, QStringLiteral("x"));
    list.endUpdate();
    load();
    list.clearNodes();
    list.clearNodes();
    const TdxTreeListNode group = list.addNode();
    list.addNode(list.addNode(group));
    list.header()->setSortIndicator(Card, Qt::AscendingOrder);
    EXPECT_EQ(model().rowCount(), 1);
    EXPECT_EQ(model().rowCount(model().index(0, 0)), 1);
    EXPECT_EQ(model().rowCount(model().index(0, 1)), 0); // only the first column has children
}

TEST_F(ListModel, TellsOneChangeForAValue)
{
    load();
    QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
    list.node(1).setValue(Check, QStringLiteral("1"));
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex(), at(1, Check));
    EXPECT_EQ(changed[0][1].toModelIndex(), at(1, Check));
}

TEST_F(ListModel, TellsOneChangeForAll)
{
    load();
    QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
    list.setValueOfAll(Check, QStringLiteral("1"));
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex(), at(0, Check));
    EXPECT_EQ(changed[0][1].toModelIndex(), at(4, Check));
}

TEST_F(ListModel, TellsOneChangeForABracket)
{
    load();
    QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
    list.beginUpdate();
    list.node(1).setValue(Fee, 1);
    list.node(3).setValue(Check, QStringLiteral("1"));
    list.setValueOfAll(Name, QStringLiteral("x"));
    EXPECT_EQ(changed.size(), 0);
    list.endUpdate();
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex(), at(0, Check));
    EXPECT_EQ(changed[0][1].toModelIndex(), at(4, Fee));
}

TEST_F(ListModel, ResetsOnceForALoad)
{
    QSignalSpy resets(&model(), &QAbstractItemModel::modelReset);
    QSignalSpy inserted(&model(), &QAbstractItemModel::rowsInserted);
    load();
    EXPECT_EQ(resets.size(), 1);
    EXPECT_EQ(inserted.size(), 0);
}

TEST_F(ListModel, TicksOnlyTheCheckedText)
{
    load();
    const auto ticked = [this](int row, int column) { return at(row, column).data(Qt::CheckStateRole).toInt(); };
    EXPECT_EQ(ticked(0, Check), Qt::Unchecked);
    list.node(0).setValue(Check, QStringLiteral("1"));
    EXPECT_EQ(ticked(0, Check), Qt::Checked);
    list.node(0).setValue(Check, 2);
    EXPECT_EQ(ticked(0, Check), Qt::Unchecked);
    EXPECT_EQ(ticked(0, Imported), Qt::Checked); // "True"
    EXPECT_EQ(ticked(2, Imported), Qt::Unchecked); // "2" is neither of the column's texts
    EXPECT_FALSE(at(0, Name).data(Qt::CheckStateRole).isValid());
}

TEST_F(ListModel, AllowsEditingWhereTheColumnDoes)
{
    load();
    EXPECT_TRUE(at(0, Check).flags().testFlag(Qt::ItemIsUserCheckable));
    EXPECT_FALSE(at(0, Check).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_FALSE(at(0, Imported).flags().testFlag(Qt::ItemIsUserCheckable));
    EXPECT_TRUE(at(0, Remark).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_FALSE(model().setData(at(0, Name), QStringLiteral("x"), Qt::EditRole));
    EXPECT_TRUE(model().setData(at(0, Remark), QStringLiteral("x"), Qt::EditRole));
    EXPECT_EQ(list.node(0).value(Remark), QVariant(QStringLiteral("x")));
}

class ListAccessibility : public ListModel {
protected:
    ListAccessibility()
    {
        load();
        show();
        table = QAccessible::queryAccessibleInterface(&list)->tableInterface();
    }

    [[nodiscard]] std::string name(int row, int column) const
    {
        return table->cellAt(row, column)->text(QAccessible::Name).toStdString();
    }

    QAccessibleTableInterface *table = nullptr;
};

TEST_F(ListAccessibility, ReadsOutRowsCellsAndCaptions)
{
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rowCount(), 5);
    EXPECT_EQ(name(2, Name), "阿依古丽");
    EXPECT_EQ(table->columnDescription(Fee), QStringLiteral("总费用"));
}

TEST_F(ListAccessibility, ReadsOutWhatIsDrawn)
{
    list.column(Number)->setCustomDrawCell([](const TdxTreeListNode &node, const TdxTreeListColumn &, bool,
                                              CellStyle &style) { style.text = QString::number(node.index() + 1); });
    static_cast<TdxTreeListCurrencyColumn *>(list.column(Fee))->setDisplayFormat(QStringLiteral(",0.00"));
    EXPECT_EQ(name(3, Number), "4");
    EXPECT_EQ(name(0, Fee), "1,234.50");
}

TEST_F(ListAccessibility, ReadsOutTicks)
{
    EXPECT_EQ(name(0, Check), "未勾选");
    list.node(0).setValue(Check, QStringLiteral("1"));
    EXPECT_EQ(name(0, Check), "已勾选");
    EXPECT_TRUE(table->cellAt(0, Check)->state().checked);
}

TEST_F(ListAccessibility, PlacesBandCellsWhereTheyAreSeen)
{
    list.setFixedBand(3);
    list.resize(400, 300);
    QCoreApplication::processEvents();
    list.horizontalScrollBar()->setValue(100);
    const QRect cell = table->cellAt(0, Check)->rect();
    EXPECT_EQ(cell.left(), list.viewport()->mapToGlobal(QPoint(0, 0)).x());
}

} // namespace
