// SPDX-License-Identifier: MIT
// Lays the pictures of the open windows over each other. Without a display no window manager does it.
#include "vortaq/app/tour/picture.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace vortaq {

namespace {

int depth(const QWidget &widget)
{
    int levels = 0;
    for (const QWidget *parent = widget.parentWidget(); parent; parent = parent->window()->parentWidget())
        ++levels;
    return levels;
}

/// Dialogs before the dialogs and menus that belong to them.
std::vector<QWidget *> openWindows(const QWidget &mainWindow)
{
    std::vector<QWidget *> windows;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget != &mainWindow && widget->isVisible())
            windows.push_back(widget);
    }
    std::stable_sort(windows.begin(), windows.end(),
                     [](const QWidget *left, const QWidget *right) { return depth(*left) < depth(*right); });
    return windows;
}

bool hasTitleBar(const QWidget &window)
{
    return window.windowType() == Qt::Dialog && !window.windowFlags().testFlag(Qt::FramelessWindowHint);
}

QRect titleBar(const QRect &contents, const QWidget &window)
{
    const int height = window.fontMetrics().height() * 3 / 2;
    return {contents.left(), contents.top() - height, contents.width(), height};
}

QRect withTitle(const QWidget &window)
{
    const QRect contents(window.pos(), window.size());
    return hasTitleBar(window) ? contents.united(titleBar(contents, window)) : contents;
}

void draw(QPainter &painter, QWidget &window)
{
    const QRect contents(window.pos(), window.size());
    painter.drawPixmap(contents.topLeft(), window.grab());
    const QRect frame = withTitle(window);
    if (hasTitleBar(window)) {
        const QRect bar = titleBar(contents, window);
        painter.fillRect(bar, window.palette().color(QPalette::Highlight));
        painter.setPen(window.palette().color(QPalette::HighlightedText));
        painter.setFont(window.font());
        painter.drawText(bar.adjusted(8, 0, -8, 0), Qt::AlignVCenter | Qt::AlignLeft, window.windowTitle());
    }
    painter.setPen(window.palette().color(QPalette::Shadow));
    painter.drawRect(frame.adjusted(0, 0, -1, -1));
}

} // namespace

QPixmap pictureOf(QWidget &mainWindow)
{
    const std::vector<QWidget *> windows = openWindows(mainWindow);
    QRect area(mainWindow.pos(), mainWindow.size());
    for (const QWidget *window : windows)
        area = area.united(withTitle(*window));
    QPixmap picture(area.size());
    picture.fill(mainWindow.palette().color(QPalette::Dark));
    QPainter painter(&picture);
    painter.translate(-area.topLeft());
    painter.drawPixmap(mainWindow.pos(), mainWindow.grab());
    for (QWidget *window : windows)
        draw(painter, *window);
    return picture;
}

} // namespace vortaq
