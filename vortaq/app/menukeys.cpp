// SPDX-License-Identifier: MIT
// Menus by keyboard.
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
    QCoreApplication::instance()->installEventFilter(this);
}

bool MenuKeys::eventFilter(QObject *watched, QEvent *event)
{
    const auto *window = qobject_cast<const QWidget *>(watched);
    if (event->type() != QEvent::KeyPress || window == nullptr || !window->isWindow())
        return QObject::eventFilter(watched, event);
    const QKeyCombination pressed = static_cast<const QKeyEvent *>(event)->keyCombination();
    if (window == &m_window && pressed == QKeyCombination(Qt::Key_F10)) {
        m_window.menuBar()->setActiveAction(m_window.menuBar()->actions().value(0));
        return true;
    }
    QWidget *focus = window->focusWidget();
    if (pressed != (Qt::SHIFT | Qt::Key_F10) || focus == nullptr)
        return QObject::eventFilter(watched, event);
    const QPoint place = focus->rect().center();
    QContextMenuEvent request(QContextMenuEvent::Keyboard, place, focus->mapToGlobal(place));
    QCoreApplication::sendEvent(focus, &request);
    return true;
}

} // namespace vortaq
