// SPDX-License-Identifier: MIT
#include "uMain/menus.h"

#include "toolkit/TdxTreeList.h"
#include "toolkit/guard.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>

namespace {

class ListMenu : public QMenu {
public:
    ListMenu(TdxTreeList &list, QWidget *parent)
        : QMenu(parent)
        , m_list(list)
    {
        m_list.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        bool isDone = false;
        if (watched == &m_list && event->type() == QEvent::KeyPress)
            toolkit::guarded([&] { isDone = keyPressedInList(static_cast<const QKeyEvent &>(*event)); });
        return isDone || QMenu::eventFilter(watched, event);
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        QAction *item = itemOf(*event);
        if (item == nullptr) {
            QMenu::keyPressEvent(event);
            return;
        }
        hide();
        item->trigger();
    }

private:
    bool keyPressedInList(const QKeyEvent &event)
    {
        if (event.keyCombination() == (Qt::SHIFT | Qt::Key_F10)) {
            const QPoint place = m_list.rect().center();
            QContextMenuEvent request(QContextMenuEvent::Keyboard, place, m_list.mapToGlobal(place));
            QCoreApplication::sendEvent(&m_list, &request);
            return true;
        }
        QAction *item = m_list.popupMenu() == this && isEnabled() ? itemOf(event) : nullptr;
        if (item != nullptr)
            item->trigger();
        return item != nullptr;
    }

    /// Null when there is no such item, or nobody may choose it.
    [[nodiscard]] QAction *itemOf(const QKeyEvent &event) const
    {
        if (event.isAutoRepeat())
            return nullptr;
        const QKeySequence pressed(
            QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(event.key())));
        for (QAction *item : actions()) {
            if (item->isEnabled() && item->shortcut() == pressed)
                return item;
        }
        return nullptr;
    }

    TdxTreeList &m_list;
};

} // namespace

QMenu *createMenu(QWidget *parent, TdxTreeList &list, const char *name, const std::vector<MenuItem> &items)
{
    auto *menu = new ListMenu(list, parent);
    menu->setObjectName(QString::fromUtf8(name));
    int key = Qt::Key_1;
    for (const MenuItem &item : items) {
        QAction *action = menu->addAction(QString::fromUtf8(item.caption));
        action->setObjectName(QString::fromUtf8(item.name));
        action->setProperty("tag", item.tag);
        action->setShortcut(QKeyCombination(Qt::CTRL, Qt::Key(key++)));
        action->setShortcutVisibleInContextMenu(true);
    }
    return menu;
}
