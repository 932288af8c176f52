// SPDX-License-Identifier: MIT
#include "Common/columnwidth.h"

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QHeaderView>
#include <QIcon>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSet>
#include <QStyle>
#include <QTableView>
#include <QTreeView>

#include <algorithm>

namespace common {

namespace {

QHeaderView *headerOf(const QAbstractItemView &grid)
{
    if (const auto *table = qobject_cast<const QTableView *>(&grid))
        return table->horizontalHeader();
    if (const auto *tree = qobject_cast<const QTreeView *>(&grid))
        return tree->header();
    return nullptr;
}

/// What a delegate leaves beside its text, and a digit more.
int margin(const QAbstractItemView &grid)
{
    return grid.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &grid)
        + grid.fontMetrics().horizontalAdvance(u'0');
}

/// Measures the cells of one column.
class Measure {
public:
    Measure(const QAbstractItemView &grid, int column)
        : m_grid(grid)
        , m_model(*grid.model())
        , m_column(column)
        , m_margins(2 * margin(grid))
    {
        const auto *tree = qobject_cast<const QTreeView *>(&grid);
        if (tree == nullptr)
            return;
        const int position = tree->treePosition();
        if (column == (position < 0 ? tree->header()->logicalIndex(0) : position)) {
            m_step = tree->indentation();
            m_indentation = tree->rootIsDecorated() ? m_step : 0;
        }
    }

    [[nodiscard]] int widest() { return widestBelow(m_grid.rootIndex(), m_indentation); }

private:
    int widestBelow(const QModelIndex &parent, int indentation)
    {
        const bool isTree = qobject_cast<const QTreeView *>(&m_grid) != nullptr;
        int width = 0;
        m_measured.clear(); // another level is indented otherwise
        const int rows = m_model.rowCount(parent);
        for (int row = 0; row < rows; ++row)
            width = std::max(width, indentation + cellWidth(m_model.index(row, m_column, parent)));
        for (int row = 0; isTree && row < rows; ++row) {
            const QModelIndex branch = m_model.index(row, 0, parent);
            if (m_model.hasChildren(branch))
                width = std::max(width, widestBelow(branch, indentation + m_step));
        }
        return width;
    }

    int cellWidth(const QModelIndex &cell)
    {
        const QVariant picture = cell.data(Qt::DecorationRole);
        const bool hasPicture = picture.isValid() && !(picture.canConvert<QIcon>() && picture.value<QIcon>().isNull());
        if (hasPicture || cell.data(Qt::CheckStateRole).isValid())
            return m_grid.sizeHintForIndex(cell).width() + m_margins;
        QString text = cell.data(Qt::AccessibleTextRole).toString();
        if (text.isEmpty())
            text = cell.data(Qt::DisplayRole).toString();
        const QVariant font = cell.data(Qt::FontRole);
        if (font.isValid())
            return QFontMetrics(font.value<QFont>().resolve(m_grid.font())).horizontalAdvance(text) + m_margins;
        // Most columns of a long list hold few different texts, and looking one up is much cheaper than measuring it.
        const qsizetype before = m_measured.size();
        m_measured.insert(text);
        return m_measured.size() == before ? 0 : m_grid.fontMetrics().horizontalAdvance(text) + m_margins;
    }

    const QAbstractItemView &m_grid;
    const QAbstractItemModel &m_model;
    int m_column;
    int m_margins;
    int m_step = 0; // indentation of a level more
    int m_indentation = 0; // of the first level
    QSet<QString> m_measured;
};

/// What stands beside the columns: the frame, a table's row captions, the scroll bar.
int widthBeside(const QAbstractItemView &grid)
{
    int width = 2 * grid.frameWidth();
    const auto *table = qobject_cast<const QTableView *>(&grid);
    if (table != nullptr && !table->verticalHeader()->isHidden())
        width += table->verticalHeader()->sizeHint().width();
    const QScrollBar &bar = *grid.verticalScrollBar(); // it shows itself later than it knows that it is needed
    const bool isNeeded = bar.minimum() < bar.maximum() && grid.verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
    if (isNeeded || grid.verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOn)
        width += bar.sizeHint().width();
    return width;
}

/// A grid that was never shown has not reckoned what it has to scroll.
void layOut(QAbstractItemView &grid)
{
    if (grid.testAttribute(Qt::WA_PendingResizeEvent)) {
        QResizeEvent resized(grid.size(), {});
        QCoreApplication::sendEvent(&grid, &resized);
    }
    grid.doItemsLayout();
}

} // namespace

void fitColumns(QAbstractItemView &grid)
{
    QHeaderView *header = headerOf(grid);
    if (header == nullptr || grid.model() == nullptr)
        return;
    int total = 0;
    for (int column = 0; column < header->count(); ++column) {
        if (header->isSectionHidden(column))
            continue;
        const int caption = header->isHidden() ? 0 : header->sectionSizeHint(column);
        const int width = std::clamp(std::max(caption, Measure(grid, column).widest()), header->minimumSectionSize(),
                                     header->maximumSectionSize());
        header->resizeSection(column, width);
        total += width; // the header's length is another one while it stretches a column
    }
    grid.resize(total + widthBeside(grid), grid.height());
    layOut(grid);
    grid.resize(total + widthBeside(grid), grid.height());
}

} // namespace common
