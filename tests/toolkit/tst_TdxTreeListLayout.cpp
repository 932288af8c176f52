// SPDX-License-Identifier: MIT
// Widths, footer, hints, and the looks of a tree.
#include "tests/toolkit/treelistfixture.h"

#include <QHelpEvent>
#include <QToolTip>

namespace {

class Layout : public TreeListTest {
protected:
    Layout()
    {
        load();
        show();
    }
};

// ---- widths

TEST_F(Layout, FitsTheFirstLoad)
{
    EXPECT_GE(list.header()->sectionSize(Name), list.fontMetrics().horizontalAdvance(QStringLiteral("阿依古丽")));
    EXPECT_GE(list.header()->sectionSize(Card), list.fontMetrics().horizontalAdvance(QStringLiteral("合作医疗证号")));
    EXPECT_EQ(list.header()->sectionSize(Key), 0);
}

TEST_F(Layout, LongTextsAreCapped)
{
    list.setColumns(patientColumns());
    const std::string endless(3000, 'x');
    load(packetOf({{"001", endless.c_str(), "1岁", "1", "True", "1"}}));
    EXPECT_LE(list.header()->sectionSize(Name), list.fontMetrics().horizontalAdvance(QStringLiteral("国")) * 20);
}

TEST_F(Layout, LaterLoadsLeaveWidthsAlone)
{
    const int fitted = list.header()->sectionSize(Name);
    load(packetOf({{"001", "一个长得多的名字在这里", "1岁", "1", "True", "1"}}));
    EXPECT_EQ(list.header()->sectionSize(Name), fitted);
}

TEST_F(Layout, UsersWidthsStay)
{
    QWidget *header = list.header()->viewport();
    const QRect cell = list.visualRect(at(0, Fee));
    QTest::mousePress(header, Qt::LeftButton, {}, QPoint(cell.right(), 5));
    QMouseEvent move(QEvent::MouseMove, QPointF(cell.right() + 40, 5),
                     header->mapToGlobal(QPointF(cell.right() + 40, 5)), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(header, &move);
    QTest::mouseRelease(header, Qt::LeftButton, {}, QPoint(cell.right() + 40, 5));
    const int chosen = list.header()->sectionSize(Fee);
    EXPECT_EQ(chosen, cell.width() + 40);
    load();
    static_cast<TdxTreeListCurrencyColumn *>(list.column(Fee))->setDisplayFormat(QStringLiteral("￥,0.0000"));
    EXPECT_EQ(list.header()->sectionSize(Fee), chosen);
}

TEST_F(Layout, AFormatSetLaterStillFits)
{
    static_cast<TdxTreeListCurrencyColumn *>(list.column(Fee))->setDisplayFormat(QStringLiteral("￥,0.00000000"));
    EXPECT_GT(list.header()->sectionSize(Fee),
              list.fontMetrics().horizontalAdvance(at(2, Fee).data(Qt::DisplayRole).toString()));
}

TEST_F(Layout, RowNumbersFitWhateverTheNumberOfRows)
{
    list.column(Number)->setCustomDrawCell(
        [](const TdxTreeListNode &node, const TdxTreeListColumn &, bool, CellStyle &style) {
            style.text = QString::number((node.index() + 1) * 1000000);
        });
    load(manyPatients(900));
    EXPECT_GT(list.header()->sectionSize(Number), list.fontMetrics().horizontalAdvance(QStringLiteral("900000000")));
}

// ---- footer

TEST_F(Layout, TheFooterStandsBelowTheRows)
{
    const int without = list.viewport()->height();
    list.setFooterVisible(true);
    list.setFooterText(Fee, QStringLiteral("合计"));
    QCoreApplication::processEvents();
    EXPECT_EQ(list.footerText(Fee), QStringLiteral("合计"));
    EXPECT_EQ(list.footerText(Name), QString());
    EXPECT_LT(list.viewport()->height(), without);
    const QImage image = pictureOf(list);
    const int y = list.viewport()->geometry().bottom() + 4;
    EXPECT_EQ(image.pixel(list.viewport()->x() + 4, y), list.palette().color(QPalette::Button).rgb());
    list.setFooterVisible(false);
    QCoreApplication::processEvents();
    EXPECT_EQ(list.viewport()->height(), without);
}

TEST_F(Layout, TheFooterAlignsAsItsColumn)
{
    list.setFooterVisible(true);
    list.header()->resizeSection(Fee, 200);
    list.header()->resizeSection(Name, 200);
    list.setFooterText(Fee, QStringLiteral("8.8"));
    list.setFooterText(Name, QStringLiteral("8.8"));
    QCoreApplication::processEvents();
    const QImage image = pictureOf(list);
    const auto inkBetween = [&](int left, int right) {
        const QRgb button = list.palette().color(QPalette::Button).rgb();
        const int top = list.viewport()->geometry().bottom() + 3;
        for (int x = left; x < right; ++x) {
            for (int y = top; y < top + 14; ++y) {
                if (image.pixel(list.viewport()->x() + x, y) != button)
                    return true;
            }
        }
        return false;
    };
    const int fee = list.visualRect(at(0, Fee)).left();
    const int name = list.visualRect(at(0, Name)).left();
    EXPECT_FALSE(inkBetween(fee + 2, fee + 100));
    EXPECT_TRUE(inkBetween(fee + 100, fee + 196));
    EXPECT_TRUE(inkBetween(name + 2, name + 100));
    EXPECT_FALSE(inkBetween(name + 100, name + 196));
}

TEST_F(Layout, TheLastRowStandsClearOfTheFooter)
{
    list.setFooterVisible(true);
    load(manyPatients(500));
    key(Qt::Key_End);
    QCoreApplication::processEvents();
    EXPECT_LE(list.visualRect(at(499, Card)).bottom(), list.viewport()->height());
    EXPECT_EQ(list.indexAt(QPoint(5, list.visualRect(at(499, Card)).center().y())).row(), 499);
}

// ---- hints

class Hints : public Layout {
protected:
    Hints() { list.setToolTip(QStringLiteral("绿色表示当天入院记录")); }

    std::string hintOver(int row, int column)
    {
        const QPoint place = middleOf(row, column);
        QHelpEvent event(QEvent::ToolTip, place, list.viewport()->mapToGlobal(place));
        QApplication::sendEvent(list.viewport(), &event);
        return QToolTip::text().toStdString();
    }
};

TEST_F(Hints, ShowTheWholeTextOfACellThatCutsItShort)
{
    list.header()->resizeSection(Name, 20);
    EXPECT_EQ(hintOver(2, Name), "阿依古丽");
}

TEST_F(Hints, AreTheListsOtherwise)
{
    EXPECT_EQ(hintOver(2, Name), "绿色表示当天入院记录");
    EXPECT_EQ(hintOver(2, Check), "绿色表示当天入院记录");
}

// ---- trees

class Tree : public testing::Test {
protected:
    Tree()
    {
        tree.setColumns({{.name = "tree", .caption = "医疗服务单位"}});
        tree.setHeaderHidden(true);
        QList<QIcon> images;
        for (const QColor &colour : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue)}) {
            QPixmap image(64, 64);
            image.fill(colour);
            images.append(QIcon(image));
        }
        tree.setImages(images);
        tree.beginUpdate();
        group = tree.addNode();
        group.setValue(0, QStringLiteral("(371402)某某县人民医院"));
        group.setImages(0, 0);
        for (const char *bill : {"2024-05-10【制单】", "2024-05-09【上报】"}) {
            const TdxTreeListNode node = tree.addNode(group);
            node.setValue(0, QString::fromUtf8(bill));
            node.setImages(1, 2);
        }
        tree.endUpdate();
        QObject::connect(&tree, &TdxTreeList::changeNode, &tree,
                         [this](const TdxTreeListNode &node) { told.push_back(node.text(0).toStdString()); });
        tree.resize(400, 200);
        tree.show();
        tree.setFocus();
        QCoreApplication::processEvents();
    }

    /// The image's colour before the text of a node.
    [[nodiscard]] QColor imageOf(int bill)
    {
        const QModelIndex top = tree.model()->index(0, 0);
        const QRect cell = tree.visualRect(bill < 0 ? top : tree.model()->index(bill, 0, top));
        return pictureOf(*tree.viewport()).pixelColor(cell.left() + 12, cell.center().y());
    }

    TdxTreeList tree;
    TdxTreeListNode group;
    Texts told;
};

TEST_F(Tree, ShowsTheSelectedImageOfTheFocusedNode)
{
    EXPECT_EQ(imageOf(-1), QColor(Qt::red));
    EXPECT_EQ(imageOf(0), QColor(Qt::green));
    tree.setFocusedNode(group.child(0));
    EXPECT_EQ(imageOf(0), QColor(Qt::blue));
    EXPECT_EQ(imageOf(1), QColor(Qt::green));
}

TEST_F(Tree, GoesIntoBranchesAndBackByKeyboard)
{
    QTest::keyClick(&tree, Qt::Key_Down);
    QTest::keyClick(&tree, Qt::Key_Down);
    QTest::keyClick(&tree, Qt::Key_Left); // to the group
    QTest::keyClick(&tree, Qt::Key_Left); // closes it
    EXPECT_FALSE(tree.isExpanded(tree.model()->index(0, 0)));
    QTest::keyClick(&tree, Qt::Key_Right);
    EXPECT_TRUE(tree.isExpanded(tree.model()->index(0, 0)));
    EXPECT_EQ(told, (Texts{"2024-05-10【制单】", "2024-05-09【上报】", "(371402)某某县人民医院"}));
}

TEST_F(Tree, ClosingABranchOverTheFocusMovesItToTheGroup)
{
    tree.setFocusedNode(group.child(1));
    tree.collapse(tree.model()->index(0, 0));
    EXPECT_EQ(tree.focusedNode(), group);
    EXPECT_EQ(told, (Texts{"2024-05-09【上报】", "(371402)某某县人民医院"}));
}

TEST_F(Tree, TakesTheWidthThereIs)
{
    tree.header()->setStretchLastSection(true); // changes nothing
    EXPECT_EQ(tree.header()->sectionSize(0), tree.viewport()->width());
    tree.resize(80, 200);
    QCoreApplication::processEvents();
    EXPECT_GT(tree.header()->sectionSize(0), tree.fontMetrics().horizontalAdvance(group.text(0)));
    tree.setHeaderHidden(false); // one column under a caption is a tree as well
    tree.resize(500, 200);
    QCoreApplication::processEvents();
    EXPECT_EQ(tree.header()->sectionSize(0), tree.viewport()->width());
}

} // namespace
