// SPDX-License-Identifier: MIT
// Surfaces over controls and over lists.
#include "Common/TCtrlFunc.h"
#include "Common/drawingsurface.h"
#include "tests/toolkit/treelistfixture.h"

#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(DrawNoCanvas, showsWhatIsDrawnOverTheControl)
{
    QWidget control;
    control.setPalette(QPalette(Qt::white));
    control.resize(40, 30);
    common::DrawingSurface *surface = TCtrlFunc().DrawNoCanvas(control);
    EXPECT_EQ(surface->parent(), &control);
    EXPECT_EQ(surface->size(), control.size());
    QPainter(&surface->image()).fillRect(5, 5, 10, 10, Qt::red);
    surface->update();
    const QImage shown = pictureOf(control);
    EXPECT_EQ(shown.pixelColor(10, 10), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(20, 20), QColor(Qt::white));
    surface->clear();
    EXPECT_EQ(pictureOf(control).pixelColor(10, 10), QColor(Qt::white));
}

TEST(DrawNoCanvas, keepsTheDrawingWhenTheControlGrows)
{
    QWidget control;
    control.setPalette(QPalette(Qt::white));
    control.resize(20, 20);
    common::DrawingSurface *surface = TCtrlFunc().DrawNoCanvas(control);
    QPainter(&surface->image()).fillRect(5, 5, 10, 10, Qt::red);
    control.resize(60, 50);
    const QImage shown = pictureOf(control);
    EXPECT_EQ(surface->size(), QSize(60, 50));
    EXPECT_EQ(shown.pixelColor(10, 10), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(40, 40), QColor(Qt::white));
}

TEST(DrawNoCanvas, leavesTheMouseToTheControl)
{
    QPushButton control(u"保存"_s);
    control.resize(80, 30);
    int clicks = 0;
    QObject::connect(&control, &QPushButton::clicked, [&clicks] { ++clicks; });
    (void)TCtrlFunc().DrawNoCanvas(control);
    EXPECT_EQ(control.childAt(10, 10), nullptr);
    QTest::mouseClick(&control, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST(DrawNoCanvas, takesAControlWithoutASize)
{
    QWidget control;
    control.resize(0, 0);
    common::DrawingSurface *surface = TCtrlFunc().DrawNoCanvas(control);
    surface->clear();
    control.resize(10, 10);
    (void)control.grab();
    EXPECT_EQ(surface->image().deviceIndependentSize(), QSizeF(10, 10));
}

// ---- over a list

class DrawNoCanvasOnAList : public TreeListTest {
protected:
    DrawNoCanvasOnAList()
    {
        load(manyPatients(200));
        show();
        surface = TCtrlFunc().DrawNoCanvas(list);
    }

    /// A red bar across the header and the first rows.
    void drawBar() const
    {
        QPainter(&surface->image()).fillRect(Bar, Qt::red);
        surface->update();
    }

    [[nodiscard]] bool isBarShown() { return pictureOf(list).pixelColor(Bar.center()) == QColor(Qt::red); }

    /// By way of the window, which looks for the widget below the mouse.
    void clickInWindow(int row, int column)
    {
        QTest::mouseClick(list.windowHandle(), Qt::LeftButton, {},
                          list.viewport()->mapTo(list.window(), middleOf(row, column)));
    }

    static constexpr QRect Bar{60, 0, 300, 120};
    common::DrawingSurface *surface = nullptr;
};

TEST_F(DrawNoCanvasOnAList, isSeenOverHeaderAndRows)
{
    const QImage bare = pictureOf(list);
    drawBar();
    const QImage shown = pictureOf(list);
    for (const QPoint &place : {Bar.topLeft(), Bar.center(), Bar.bottomRight()})
        EXPECT_EQ(shown.pixelColor(place), QColor(Qt::red)) << place.x() << ", " << place.y();
    EXPECT_EQ(shown.copy(0, Bar.bottom() + 1, list.width(), 100), bare.copy(0, Bar.bottom() + 1, list.width(), 100));
    surface->clear();
    EXPECT_EQ(pictureOf(list), bare);
}

TEST_F(DrawNoCanvasOnAList, followsTheSize)
{
    drawBar();
    list.resize(700, 420);
    EXPECT_EQ(surface->geometry(), list.rect());
    EXPECT_TRUE(isBarShown());
    QPainter(&surface->image()).fillRect(600, 380, 20, 20, Qt::blue);
    surface->update();
    EXPECT_EQ(pictureOf(list).pixelColor(610, 390), QColor(Qt::blue));
    list.resize(400, 200);
    EXPECT_EQ(surface->geometry(), list.rect());
    EXPECT_TRUE(isBarShown());
}

TEST_F(DrawNoCanvasOnAList, staysWhenRowsScrollOrAreLoadedAnew)
{
    drawBar();
    list.verticalScrollBar()->setValue(50);
    QCoreApplication::processEvents();
    EXPECT_EQ(surface->geometry(), list.rect());
    EXPECT_TRUE(isBarShown());
    load();
    QCoreApplication::processEvents();
    EXPECT_TRUE(isBarShown());
}

TEST_F(DrawNoCanvasOnAList, leavesKeysAndClicksToTheList)
{
    drawBar();
    EXPECT_TRUE(list.hasFocus());
    clickInWindow(2, Card); // below the bar
    EXPECT_EQ(focus(), "P2");
    clickInWindow(1, Check);
    EXPECT_EQ(toggles, Texts{"listCheck=1"});
    QTest::keyClick(list.windowHandle(), Qt::Key_Down);
    EXPECT_EQ(focus(), "P2");
    EXPECT_TRUE(list.hasFocus());
    EXPECT_TRUE(errors.empty());
}

TEST_F(DrawNoCanvasOnAList, goesWithoutHarm)
{
    drawBar();
    surface->deleteLater();
    QCoreApplication::sendPostedEvents(surface, QEvent::DeferredDelete);
    EXPECT_FALSE(isBarShown());
    list.resize(500, 300);
    EXPECT_EQ(list.findChild<common::DrawingSurface *>(), nullptr);
}

} // namespace
