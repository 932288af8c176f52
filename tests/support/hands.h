// SPDX-License-Identifier: MIT
// What a clerk does with mouse and keyboard, on components found by name.
#pragma once

#include "toolkit/TdxTreeList.h"

#include <QAction>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>
#include <QWidget>

#include <stdexcept>

namespace hands {

/// Throws when the form has no component of that class and name.
template <typename Component> Component &find(const QWidget &form, const char *name)
{
    auto *component = form.findChild<Component *>(QString::fromUtf8(name));
    if (component == nullptr)
        throw std::runtime_error(std::string("no component ") + name);
    return *component;
}

inline void click(const QWidget &form, const char *button)
{
    QTest::mouseClick(&find<QWidget>(form, button), Qt::LeftButton);
}

inline void trigger(const QWidget &form, const char *item)
{
    find<QAction>(form, item).trigger();
}

/// Scrolls to a component where it lies in something that scrolls; whether all of it is then seen on the screen.
inline bool reach(QWidget &component)
{
    for (QWidget *around = component.parentWidget(); around != nullptr; around = around->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(around))
            area->ensureWidgetVisible(&component, 0, 0);
    }
    const QRect onScreen(component.mapToGlobal(QPoint(0, 0)), component.size());
    return component.isVisible() && component.visibleRegion().boundingRect() == component.rect()
        && component.screen()->availableGeometry().contains(onScreen);
}

/// Brings a page of the main form to the front.
inline void showPage(const QWidget &form, const char *page)
{
    find<QTabWidget>(form, "PageControl1").setCurrentWidget(&find<QWidget>(form, page));
}

/// Clicks a top-level node of a tree, or one of its children.
inline void clickNode(TdxTreeList &tree, int top, int child = -1)
{
    QModelIndex index = tree.model()->index(top, 0);
    if (child >= 0)
        index = tree.model()->index(child, 0, index);
    if (!index.isValid())
        throw std::runtime_error("no such node");
    tree.scrollTo(index);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(index).center());
}

/// The cell's rectangle in the grid's viewport, after scrolling it into view.
inline QRect showCell(TdxTreeList &grid, int row, const char *column)
{
    const TdxTreeListColumn *found = grid.columnByName(QString::fromUtf8(column));
    if (found == nullptr)
        throw std::runtime_error(std::string("no column ") + column);
    const QModelIndex index = grid.model()->index(row, found->position());
    grid.scrollTo(index);
    return grid.visualRect(index);
}

inline void clickCell(TdxTreeList &grid, int row, const char *column)
{
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, showCell(grid, row, column).center());
}

/// A click first, as the hand does it: the double-click alone would not move the focus.
inline void doubleClickCell(TdxTreeList &grid, int row, const char *column)
{
    clickCell(grid, row, column);
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, showCell(grid, row, column).center());
}

/// Texts of one column, in the order shown.
inline QStringList columnTexts(const TdxTreeList &grid, const char *column)
{
    const int position = grid.columnByName(QString::fromUtf8(column))->position();
    QStringList texts;
    for (int row = 0; row < grid.count(); ++row)
        texts.append(grid.node(row).text(position));
    return texts;
}

} // namespace hands
