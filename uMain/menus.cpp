// SPDX-License-Identifier: MIT
#include "uMain/menus.h"

#include <QMenu>

QMenu *createMenu(QWidget *parent, const char *name, const std::vector<MenuItem> &items)
{
    auto *menu = new QMenu(parent);
    menu->setObjectName(QString::fromUtf8(name));
    for (const MenuItem &item : items) {
        QAction *action = menu->addAction(QString::fromUtf8(item.caption));
        action->setObjectName(QString::fromUtf8(item.name));
        action->setProperty("tag", item.tag);
    }
    return menu;
}
