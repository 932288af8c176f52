// SPDX-License-Identifier: MIT
// What a clerk does with mouse and keyboard, on components found by name.
#pragma once

#include "toolkit/TdxTreeList.h"

#include <QAction>
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
