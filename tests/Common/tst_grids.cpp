// SPDX-License-Identifier: MIT
// Surfaces over controls, and columns as wide as their texts.
#include "Common/TCtrlFunc.h"
#include "Common/drawingsurface.h"

#include <QHeaderView>
#include <QPainter>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

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
    const QImage shown = control.grab().toImage();
    EXPECT_EQ(shown.pixelColor(10, 10), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(20, 20), QColor(Qt::white));
    surface->clear();
    EXPECT_EQ(control.grab().toImage().pixelColor(10, 10), QColor(Qt::white));
}

TEST(DrawNoCanvas, keepsTheDrawingWhenTheControlGrows)
{
    QWidget control;
    control.setPalette(QPalette(Qt::white));
    control.resize(20, 20);
    common::DrawingSurface *surface = TCtrlFunc().DrawNoCanvas(control);
    QPainter(&surface->image()).fillRect(5, 5, 10, 10, Qt::red);
    control.resize(60, 50);
    const QImage shown = control.grab().toImage();
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
    EXPECT_EQ(surface->image().width(), 10);
    EXPECT_EQ(surface->image().height(), 10);
}

class ColumnWidth : public testing::Test {
protected:
    ColumnWidth()
        : m_grid(2, 3)
    {
        m_grid.verticalHeader()->hide();
        m_grid.setHorizontalHeaderLabels({u"患者姓名"_s, u"序"_s, u"疾病名称"_s});
        m_grid.setItem(0, 0, new QTableWidgetItem(u"李四"_s));
        m_grid.setItem(1, 1, new QTableWidgetItem(u"420106001200 420106001200"_s));
        m_grid.setItem(0, 2, new QTableWidgetItem(u"肺炎"_s));
    }

    [[nodiscard]] int widthOf(const QString &text) const { return m_grid.fontMetrics().horizontalAdvance(text); }

    QTableWidget m_grid;
};

TEST_F(ColumnWidth, isThatOfTheWidestTextAndAMargin)
{
    TCtrlFunc().AutoColumnWidth(m_grid);
    const int margin = 2 * widthOf(u"0"_s);
    EXPECT_EQ(m_grid.columnWidth(0), widthOf(u"患者姓名"_s) + margin);
    EXPECT_EQ(m_grid.columnWidth(1), widthOf(u"420106001200 420106001200"_s) + margin);
    EXPECT_EQ(m_grid.columnWidth(2), widthOf(u"疾病名称"_s) + margin);
}

TEST_F(ColumnWidth, makesTheGridAsWideAsItsColumns)
{
    TCtrlFunc().AutoColumnWidth(m_grid);
    EXPECT_EQ(m_grid.width(),
              m_grid.columnWidth(0) + m_grid.columnWidth(1) + m_grid.columnWidth(2) + 2 * m_grid.frameWidth());
}

TEST_F(ColumnWidth, leavesHiddenColumnsOut)
{
    m_grid.setColumnHidden(1, true);
    TCtrlFunc().AutoColumnWidth(m_grid);
    EXPECT_EQ(m_grid.width(), m_grid.columnWidth(0) + m_grid.columnWidth(2) + 2 * m_grid.frameWidth());
}

TEST(ColumnWidthOf, anEmptyGridIsItsFrame)
{
    QTableWidget grid;
    grid.verticalHeader()->hide();
    TCtrlFunc().AutoColumnWidth(grid);
    EXPECT_EQ(grid.width(), 2 * grid.frameWidth());
}

} // namespace
