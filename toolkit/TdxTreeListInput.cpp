// SPDX-License-Identifier: MIT
// Keyboard and mouse of a tree list.
#include "toolkit/TdxTreeList.h"

#include "toolkit/guard.h"
#include "toolkit/treelist/listprivate.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>

void TdxTreeList::keyPressEvent(QKeyEvent *event)
{
    if (state() == EditingState && !hasFocus()) {
        QTreeView::keyPressEvent(event); // what an editor left over is no command
        return;
    }
    if (event == QKeySequence::Copy) {
        d->copyCurrentText();
        event->accept();
        return;
    }
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (plain && currentIndex().isValid()) {
        if (enter) {
            event->accept(); // a dialog's default button must not be pressed by it
            if (!event->isAutoRepeat())
                toolkit::guarded([this] { emit dblClick(); });
            return;
        }
        const QModelIndex check = event->key() == Qt::Key_Space ? d->checkForSpace() : QModelIndex();
        if (check.isValid()) {
            event->accept();
            if (!event->isAutoRepeat())
                d->toggle(check);
            return;
        }
    }
    QTreeView::keyPressEvent(event);
}

void TdxTreeList::inputMethodEvent(QInputMethodEvent *event)
{
    if (currentIndex().flags().testFlag(Qt::ItemIsEditable)) {
        QTreeView::inputMethodEvent(event);
        return;
    }
    if (!event->commitString().isEmpty())
        keyboardSearch(event->commitString());
    event->accept();
}

void TdxTreeList::mousePressEvent(QMouseEvent *event)
{
    const QPersistentModelIndex pressed = indexAt(event->position().toPoint());
    d->pressedCheck = QPersistentModelIndex();
    // First the focus moves to the row, with all that its handler does; the list may be another one afterwards.
    QTreeView::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && d->isEditableCheck(pressed))
        d->pressedCheck = pressed;
}

void TdxTreeList::mouseMoveEvent(QMouseEvent *event)
{
    // A slip of the hand with the button held must not wander over rows, each of which would load its records.
    if (event->buttons() == Qt::NoButton)
        QTreeView::mouseMoveEvent(event);
}

void TdxTreeList::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
    const QModelIndex released = indexAt(event->position().toPoint());
    const QModelIndex pressed = std::exchange(d->pressedCheck, QPersistentModelIndex());
    if (event->button() == Qt::LeftButton && pressed.isValid() && pressed == released)
        d->toggle(pressed);
}

void TdxTreeList::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPersistentModelIndex index = indexAt(event->position().toPoint());
    if (d->isEditableCheck(index)) {
        mousePressEvent(event); // two quick clicks are two toggles
        return;
    }
    const bool opensEditor = index.flags().testFlag(Qt::ItemIsEditable);
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && index.isValid() && !opensEditor)
        toolkit::guarded([this] { emit dblClick(); });
}

void TdxTreeList::contextMenuEvent(QContextMenuEvent *event)
{
    QPoint place = event->pos();
    if (event->reason() == QContextMenuEvent::Mouse) {
        const QModelIndex index = indexAt(place);
        if (index.isValid())
            setCurrentIndex(index);
    } else if (currentIndex().isValid()) {
        scrollTo(currentIndex());
        place = visualRect(currentIndex()).bottomLeft();
    }
    if (d->menu.isNull() || !d->menu->isEnabled()) {
        event->ignore();
        return;
    }
    event->accept();
    d->menu->popup(viewport()->mapToGlobal(place));
}
