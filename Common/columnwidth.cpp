// SPDX-License-Identifier: MIT
// Columns as wide as their texts.
#include "Common/columnwidth.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>

namespace common {

namespace {

int widestText(const QTableWidget &grid, int column)
{
    int widest = 0;
    if (const QTableWidgetItem *caption = grid.horizontalHeaderItem(column))
        widest = QFontMetrics(grid.horizontalHeader()->font()).horizontalAdvance(caption->text());
    for (int row = 0; row < grid.rowCount(); ++row) {
        if (const QTableWidgetItem *cell = grid.item(row, column))
            widest = std::max(widest, QFontMetrics(cell->font().resolve(grid.font())).horizontalAdvance(cell->text()));
    }
    return widest;
}

} // namespace

void fitColumns(QTableWidget &grid)
{
    const int margin = grid.fontMetrics().horizontalAdvance(u'0');
    int total =
        2 * grid.frameWidth() + (grid.verticalHeader()->isHidden() ? 0 : grid.verticalHeader()->sizeHint().width());
    for (int column = 0; column < grid.columnCount(); ++column) {
        if (grid.isColumnHidden(column))
            continue;
        grid.setColumnWidth(column, widestText(grid, column) + 2 * margin);
        total += grid.columnWidth(column);
    }
    grid.resize(total, grid.height());
}

} // namespace common
