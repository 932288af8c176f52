// SPDX-License-Identifier: MIT
// What a clerk sees of a grid: captions, formatted texts, colours.
#pragma once

#include "tests/support/hands.h"

#include <QColor>
#include <QImage>
#include <QStringList>

#include <algorithm>

namespace grids {

/// One line a column: component name after the grid's own, caption, field, then what is special about it.
inline QStringList columns(const TdxTreeList &grid)
{
    QStringList lines;
    for (int i = 0; i < grid.columnCount(); ++i) {
        const TdxTreeListColumn &column = *grid.column(i);
        QStringList words = {column.objectName().mid(grid.objectName().size()), column.caption(), column.field()};
        if (const auto *currency = qobject_cast<const TdxTreeListCurrencyColumn *>(&column))
            words.append(currency->displayFormat());
        if (qobject_cast<const TdxTreeListCheckColumn *>(&column) != nullptr)
            words.append(QStringLiteral("check"));
        if (column.isEditable())
            words.append(QStringLiteral("editable"));
        if (!column.isVisible())
            words.append(QStringLiteral("hidden"));
        lines.append(words.join(QLatin1Char('|')));
    }
    return lines;
}

/// Texts of one column as they are shown, formats and drawings included; a box reads "已勾选" or "未勾选".
inline QStringList shownTexts(const TdxTreeList &grid, const char *column)
{
    const int position = grid.columnByName(QString::fromUtf8(column))->position();
    QStringList texts;
    for (int row = 0; row < grid.count(); ++row)
        texts.append(grid.model()->index(row, position).data(Qt::AccessibleTextRole).toString());
    return texts;
}

/// A cell as it is painted, without its edges.
inline QImage picture(TdxTreeList &grid, int row, const char *column)
{
    const QRect cell = hands::showCell(grid, row, column);
    return grid.viewport()->grab(cell.adjusted(3, 2, -3, -3)).toImage();
}

/// Backgrounds of all rows as "#rrggbb", seen beside the text of one column.
inline QStringList backgrounds(TdxTreeList &grid, const char *column)
{
    QStringList names;
    for (int row = 0; row < grid.count(); ++row)
        names.append(picture(grid, row, column).pixelColor(0, 0).name());
    return names;
}

/// Lightness (0 to 255) of the darkest spot of a cell: its text, where that is darker than the background.
inline int darkestSpot(TdxTreeList &grid, int row, const char *column)
{
    const QImage image = picture(grid, row, column);
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            darkest = std::min(darkest, image.pixelColor(x, y).lightness());
    }
    return darkest;
}

/// The same of the lightest spot: its text, where that is lighter than the background.
inline int lightestSpot(TdxTreeList &grid, int row, const char *column)
{
    const QImage image = picture(grid, row, column);
    int lightest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            lightest = std::max(lightest, image.pixelColor(x, y).lightness());
    }
    return lightest;
}

} // namespace grids
