// SPDX-License-Identifier: MIT
// Compares windows with their screens.
#include "vortaq/app/windowplace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace vortaq {

namespace {

/// Of the screen's width or height; a window of that size is used like a maximised one, and less handy.
constexpr double NearlyAll = 0.9;
/// What a desktop puts around a window: it is not known before the window is on the screen.
constexpr QSize Frame(16, 40);

} // namespace

void placeOnScreen(QWidget &window, const QSize &wanted)
{
    const QRect room = window.screen()->availableGeometry();
    const QSize framed = wanted + Frame;
    const QSize size = framed.boundedTo(room.size());
    window.resize(size - Frame);
    window.move(room.center() - QRect(QPoint(0, 0), size).center());
    if (framed.width() > NearlyAll * room.width() || framed.height() > NearlyAll * room.height())
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

void restorePlace(QWidget &window, const QByteArray &geometry)
{
    if (!window.restoreGeometry(geometry) || window.isMaximized())
        return;
    const QScreen *screen = QGuiApplication::screenAt(window.geometry().center());
    const QRect room = (screen ? screen : window.screen())->availableGeometry();
    const QSize framed = window.size() + Frame;
    if (framed.boundedTo(room.size()) != framed)
        placeOnScreen(window, window.size());
}

} // namespace vortaq
