// SPDX-License-Identifier: MIT
// The menus of the main window by keyboard.
#include "vortaq/app/menukeys.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>

namespace vortaq {

MenuKeys::MenuKeys(QMainWindow &window)
    : QObject(&window)
    , m_window(window)
{
    m_window.installEventFilter(this);
}

bool MenuKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const QKeyCombination pressed = static_cast<const QKeyEvent *>(event)->keyCombination();
    if (pressed == QKeyCombination(Qt::Key_F10)) {
        m_window.menuBar()->setActiveAction(m_window.menuBar()->actions().value(0));
        return true;
    }
    QWidget *focus = m_window.focusWidget();
    if (pressed != (Qt::SHIFT | Qt::Key_F10) || focus == nullptr)
        return QObject::eventFilter(watched, event);
    const QPoint place = focus->rect().center();
    QContextMenuEvent request(QContextMenuEvent::Keyboard, place, focus->mapToGlobal(place));
    QCoreApplication::sendEvent(focus, &request);
    return true;
}

} // namespace vortaq
