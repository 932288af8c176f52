// SPDX-License-Identifier: MIT
#include "toolkit/CodeSearchEdit.h"

#include "toolkit/virtualkey.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

CodeSearchEdit::CodeSearchEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setAttribute(Qt::WA_InputMethodEnabled, false); // a composed character would end up in the field
    setAcceptDrops(false);
}

void CodeSearchEdit::keyPressEvent(QKeyEvent *event)
{
    const int key = toolkit::virtualKey(*event);
    if (key < 0) {
        event->ignore();
        return;
    }
    event->accept();
    Q_EMIT keyDown(key);
}

void CodeSearchEdit::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept(); // no cut and paste: the code must come from the list
}
