// SPDX-License-Identifier: MIT
// What is painted, where, and how often.
#include "tests/toolkit/treelistfixture.h"

#include <QImage>
#include <QScrollBar>

#include <algorithm>
#include <cstdlib>
#include <set>

namespace {

constexpr toolkit::WindowsColour Odd = windowsColour(0xEA, 0xF3, 0xE4);
constexpr toolkit::WindowsColour Focused = windowsColour(0x31, 0x6A, 0xC5);

class PaintCounter final : public QObject {
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
    int paints = 0;
};

class View : public TreeListTest {
protected:
    View()
    {
        load();
        show();
    }

    [[nodiscard]] QImage picture() { return pictureOf(*list.viewport()); }

    /// Colour of a cell near its left top corner, where no text stands.
    [[nodiscard]] QColor background(int row, int column)
    {
        return picture().pixelColor(list.visualRect(at(row, column)).topLeft() + QPoint(3, 2));
    }

    /// Whether text of that colour stands in the cell; thin strokes are mixed with the background.
    [[nodiscard]] bool hasInk(int row, int column, const QColor &ink)
    {
        const std::set<QRgb> found = colours(row, column);
        return std::any_of(found.begin(), found.end(), [&ink](QRgb colour) {
            return std::abs(qRed(colour) - ink.red()) + std::abs(qGreen(colour) - ink.green())
                + std::abs(qBlue(colour) - ink.blue())
                < 150;
        });
    }

    /// All colours in the cell.
    [[nodiscard]] std::set<QRgb> colours(int row, int column)
    {
        const QImage image = picture();
        const QRect cell = list.visualRect(at(row, column)).adjusted(2, 2, -2, -2);
        std::set<QRgb> found;
        for (int y = cell.top(); y <= cell.bottom(); ++y) {
            for (int x = cell.left(); x <= cell.right(); ++x)
                found.insert(image.pixel(x, y));
        }
        return found;
    }

    [[nodiscard]] QColor palette(QPalette::ColorRole role) const { return list.palette().color(role); }

    void narrowWithBand()
    {
        list.setFixedBand(3);
        list.resize(420, 300);
        QCoreApplication::processEvents();
    }

    static void stripes(const TdxTreeListNode &node, const TdxTreeListColumn &, bool focused, CellStyle &style)
    {
        style.background = node.index() % 2 != 0 ? Odd : toolkit::WindowColour;
        style.font = toolkit::NoColour;
        if (focused) {
            style.background = Focused;
            style.font = toolkit::WindowColour;
        }
    }
};

// ---- colours

TEST_F(View, WithoutADrawingTheFocusedRowIsHighlighted)
{
    EXPECT_EQ(background(0, Name), palette(QPalette::Highlight));
    EXPECT_EQ(background(1, Name), palette(QPalette::Base));
}

TEST_F(View, DrawsTheColoursDecided)
{
    list.setCustomDrawCell(stripes);
    for (const int column : {Check, Name, Fee}) {
        EXPECT_EQ(background(0, column), QColor(0x31, 0x6A, 0xC5));
        EXPECT_EQ(background(1, column), QColor(0xEA, 0xF3, 0xE4));
        EXPECT_EQ(background(2, column), palette(QPalette::Base));
    }
    EXPECT_TRUE(hasInk(1, Name, palette(QPalette::Text)));
    EXPECT_TRUE(hasInk(0, Name, palette(QPalette::Base)));
    EXPECT_FALSE(hasInk(0, Name, palette(QPalette::Text)));
}

TEST_F(View, TheListsColourIsBehindEverything)
{
    list.setColor(windowsColour(10, 200, 30));
    EXPECT_EQ(list.color(), windowsColour(10, 200, 30));
    EXPECT_EQ(background(1, Name), QColor(10, 200, 30));
    EXPECT_EQ(picture().pixelColor(QPoint(5, list.viewport()->height() - 3)), QColor(10, 200, 30));
    list.setCustomDrawCell([](const TdxTreeListNode &, const TdxTreeListColumn &, bool, CellStyle &style) {
        EXPECT_EQ(style.background, windowsColour(10, 200, 30));
        EXPECT_EQ(style.font, toolkit::NoColour);
        style.background = toolkit::NoColour;
    });
    EXPECT_EQ(background(1, Name), QColor(10, 200, 30));
}

TEST_F(View, AColumnsDrawingComesAfterTheLists)
{
    list.setCustomDrawCell(stripes);
    std::string textSeen;
    list.column(Name)->setCustomDrawCell(
        [&](const TdxTreeListNode &node, const TdxTreeListColumn &column, bool, CellStyle &style) {
            if (node.index() == 1) {
                textSeen = style.text.toStdString();
                EXPECT_EQ(column.position(), Name);
                style.background = windowsColour(255, 0, 0);
            }
        });
    EXPECT_EQ(background(1, Name), QColor(255, 0, 0));
    EXPECT_EQ(background(1, Age), QColor(0xEA, 0xF3, 0xE4));
    EXPECT_EQ(textSeen, "张伟");
}

TEST_F(View, AColumnsTextAloneLeavesTheHighlight)
{
    list.column(Number)->setCustomDrawCell([](const TdxTreeListNode &node, const TdxTreeListColumn &, bool,
                                              CellStyle &style) { style.text = QString::number(node.index() + 1); });
    EXPECT_EQ(background(0, Number), palette(QPalette::Highlight));
    EXPECT_EQ(background(1, Number), palette(QPalette::Base));
    EXPECT_GT(colours(1, Number).size(), 1U);
}

TEST_F(View, AThrowingDrawingLeavesDefaultsAndIsDisplayedOnceALoad)
{
    list.setCustomDrawCell([](const TdxTreeListNode &, const TdxTreeListColumn &, bool, CellStyle &style) {
        style.background = windowsColour(255, 0, 0);
        throw std::runtime_error("没有参数 Color-2");
    });
    EXPECT_EQ(background(1, Name), palette(QPalette::Base));
    EXPECT_EQ(background(0, Name), palette(QPalette::Highlight));
    EXPECT_EQ(errors, Texts{}); // no box opens while the list is being painted
    QCoreApplication::processEvents();
    EXPECT_EQ(errors, Texts{"没有参数 Color-2"});
    (void)picture();
    QCoreApplication::processEvents();
    EXPECT_EQ(errors.size(), 1U);
    load();
    (void)picture();
    QCoreApplication::processEvents();
    EXPECT_EQ(errors.size(), 2U);
}

TEST_F(View, AsksForEveryPaintedCellAnew)
{
    std::vector<std::string> asked;
    list.setCustomDrawCell([&](const TdxTreeListNode &node, const TdxTreeListColumn &column, bool, CellStyle &) {
        asked.push_back(node.text(Card).toStdString() + column.objectName().toStdString());
    });
    QCoreApplication::processEvents();
    asked.clear();
    (void)picture();
    EXPECT_EQ(asked.size(), 5U * 8U); // five rows, eight columns in sight
    EXPECT_EQ(std::set<std::string>(asked.begin(), asked.end()).size(), asked.size());
    (void)picture();
    EXPECT_EQ(asked.size(), 2U * 5U * 8U);
}

TEST_F(View, TicksAreDrawn)
{
    const auto unticked = colours(1, Check);
    list.node(1).setValue(Check, QStringLiteral("1"));
    const auto ticked = colours(1, Check);
    EXPECT_NE(ticked, unticked);
    list.node(1).setValue(Check, 2);
    EXPECT_EQ(colours(1, Check), unticked);
}

TEST_F(View, BoxStandsInTheMiddleOfItsCell)
{
    list.header()->resizeSection(Check, 101);
    const QImage image = picture();
    const QRect cell = list.visualRect(at(1, Check));
    int left = cell.right();
    int right = cell.left();
    for (int x = cell.left() + 3; x < cell.right() - 3; ++x) {
        if (image.pixelColor(x, cell.center().y()) != image.pixelColor(cell.topLeft() + QPoint(3, 2))) {
            left = std::min(left, x);
            right = std::max(right, x);
        }
    }
    EXPECT_GT(right - left, 5);
    EXPECT_NEAR((left + right) / 2.0, cell.center().x(), 1);
}

// ---- band

TEST_F(View, TheBandCoversScrolledCells)
{
    narrowWithBand();
    list.setCustomDrawCell([](const TdxTreeListNode &, const TdxTreeListColumn &column, bool, CellStyle &style) {
        style.background = windowsColour(0, 0, static_cast<std::uint8_t>(100 + 10 * column.position()));
        style.text.clear();
    });
    list.horizontalScrollBar()->setValue(list.horizontalScrollBar()->maximum());
    const QImage image = picture();
    const int y = list.visualRect(at(1, Card)).top() + 2;
    int x = 0;
    for (const int column : {Check, Number, Card}) {
        EXPECT_EQ(list.visualRect(at(1, column)).left(), x);
        EXPECT_EQ(image.pixelColor(x + 3, y), QColor(0, 0, 100 + 10 * column));
        x += list.header()->sectionSize(column);
        EXPECT_EQ(image.pixelColor(x - 4, y), QColor(0, 0, 100 + 10 * column));
    }
    EXPECT_EQ(image.pixel(x - 1, y), palette(QPalette::Dark).rgb()); // the line at its edge
    EXPECT_GT(image.pixelColor(x + 3, y).blue(), 100 + 10 * Card);
}

TEST_F(View, ABandThatLeavesNoRoomIsCut)
{
    list.setFixedBand(7);
    list.resize(260, 300);
    QCoreApplication::processEvents();
    list.horizontalScrollBar()->setValue(list.horizontalScrollBar()->maximum());
    const int last = list.visualRect(at(0, Remark)).right();
    EXPECT_LT(last, list.viewport()->width());
    EXPECT_GT(last, list.viewport()->width() / 2);
    EXPECT_EQ(list.visualRect(at(0, Check)).left(), 0);
    EXPECT_LT(list.visualRect(at(0, Imported)).left(), list.viewport()->width());
}

TEST_F(View, HeaderClicksAndDragsHitTheBand)
{
    narrowWithBand();
    list.horizontalScrollBar()->setValue(120);
    QWidget *header = list.header()->viewport();
    const int y = list.header()->height() / 2;
    QTest::mouseClick(header, Qt::LeftButton, {}, QPoint(list.visualRect(at(0, Number)).center().x(), y));
    EXPECT_EQ(list.header()->sortIndicatorSection(), Number);
    const int edge = list.visualRect(at(0, Number)).right();
    const int width = list.header()->sectionSize(Number);
    QTest::mousePress(header, Qt::LeftButton, {}, QPoint(edge, y));
    QMouseEvent move(QEvent::MouseMove, QPointF(edge + 30, y), header->mapToGlobal(QPointF(edge + 30, y)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(header, &move);
    QTest::mouseRelease(header, Qt::LeftButton, {}, QPoint(edge + 30, y));
    EXPECT_EQ(list.header()->sectionSize(Number), width + 30);
    EXPECT_EQ(list.header()->sortIndicatorSection(), Number); // a drag is no click
}

// ---- how often

class Repaints : public View {
protected:
    Repaints()
    {
        load(manyPatients(2000));
        QCoreApplication::processEvents();
        list.viewport()->installEventFilter(&counter);
    }

    int count()
    {
        for (int pass = 0; pass < 3; ++pass) // a layout that was put off comes before its paint
            QCoreApplication::processEvents();
        return std::exchange(counter.paints, 0);
    }

    PaintCounter counter;
};

TEST_F(Repaints, OnceForAllTicks)
{
    list.setValueOfAll(Check, QStringLiteral("1"));
    EXPECT_EQ(count(), 1);
}

TEST_F(Repaints, OnceForABracketOfChanges)
{
    list.beginUpdate();
    for (int row = 0; row < list.count(); ++row)
        list.node(row).setValue(Check, QStringLiteral("1"));
    QCoreApplication::processEvents();
    EXPECT_EQ(counter.paints, 0);
    list.endUpdate();
    EXPECT_EQ(count(), 1);
}

TEST_F(Repaints, OnceForALoad)
{
    load(manyPatients(3000));
    EXPECT_EQ(count(), 1);
}

TEST_F(Repaints, OnceForALoadAboveAFooter)
{
    list.setFooterVisible(true);
    (void)count();
    load(manyPatients(3000));
    EXPECT_EQ(count(), 1);
}

TEST_F(Repaints, OnceForASort)
{
    list.header()->setSortIndicator(Name, Qt::DescendingOrder);
    EXPECT_EQ(count(), 1);
}

TEST_F(Repaints, NoneForNothing)
{
    list.beginUpdate();
    list.endUpdate();
    (void)count();
    list.setFocusedNode(list.focusedNode());
    EXPECT_EQ(count(), 0);
}

} // namespace
