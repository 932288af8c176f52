// SPDX-License-Identifier: MIT
// First widths of columns.
#include "toolkit/treelist/columnfit.h"

#include "toolkit/TdxTreeListColumn.h"
#include "toolkit/treelist/amountwidth.h"
#include "toolkit/treelist/celllayout.h"
#include "toolkit/treelist/header.h"
#include "toolkit/treelist/model.h"

#include <QStyle>
#include <QTreeView>

#include <algorithm>

namespace toolkit::treelist {

ColumnFit::ColumnFit(QTreeView &view, Header &header, const Model &model, const NodeStore &store)
    : m_view(view)
    , m_header(header)
    , m_model(model)
    , m_store(store)
{
}

void ColumnFit::columnsReplaced(std::vector<TdxTreeListColumn *> columns)
{
    m_columns = std::move(columns);
    m_kept.assign(m_columns.size(), false);
    m_fitted = false;
    m_treeWidth = 0;
    for (std::size_t column = 0; column < m_columns.size(); ++column)
        refit(static_cast<int>(column));
}

void ColumnFit::loaded()
{
    if (m_header.isPlain()) {
        m_treeWidth = treeWidth(m_header.shownColumnBeside(m_header.count(), -1));
        fillWidth();
        return;
    }
    if (m_store.nodeCount() == 0)
        return;
    const std::vector<int> widths = amountsWidths(0, static_cast<int>(m_columns.size()) - 1);
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const auto column = static_cast<int>(i);
        if (!m_fitted)
            fit(column, widths[i]);
        else
            widen(column, numbersRows(column) ? rowsWidth(column) : widths[i]);
    }
    m_fitted = true;
}

bool ColumnFit::numbersRows(int column) const
{
    const TdxTreeListColumn &about = *m_columns[static_cast<std::size_t>(column)];
    return about.field().isEmpty() && about.customDrawCell() && about.isVisible();
}

void ColumnFit::refit(int column)
{
    if (m_header.isPlain())
        fillWidth();
    else
        fit(column, amountsWidths(column, column).front());
}

void ColumnFit::fit(int column, int amountsWidth)
{
    const auto at = static_cast<std::size_t>(column);
    if (m_kept[at] || m_header.isSectionHidden(column))
        return;
    const int wide = m_view.fontMetrics().horizontalAdvance(QStringLiteral("国")) * 20;
    const char *widest = m_columns[at]->definition().widest;
    const int sample = widest == nullptr ? rowsWidth(column) : textWidth(QString::fromUtf8(widest));
    const int texts = std::max(m_header.sectionSizeHint(column), std::min(sample, wide));
    setWidth(column, std::max(texts, amountsWidth));
}

const TdxTreeListCurrencyColumn *ColumnFit::amounts(int column) const
{
    const auto at = static_cast<std::size_t>(column);
    return at < m_columns.size() ? qobject_cast<const TdxTreeListCurrencyColumn *>(m_columns[at]) : nullptr;
}

void ColumnFit::makeRoomFor(int node, int column)
{
    if (const TdxTreeListCurrencyColumn *about = amounts(column))
        makeRoomFor(m_model.shownText(node, *about), column);
}

void ColumnFit::makeRoomFor(const QString &sum, int column)
{
    if (!m_header.isPlain() && amounts(column) != nullptr)
        widen(column, textWidth(sum));
}

void ColumnFit::widen(int column, int width)
{
    if (!m_kept[static_cast<std::size_t>(column)] && width > m_header.sectionSize(column))
        setWidth(column, width);
}

void ColumnFit::keep(int column)
{
    m_kept[static_cast<std::size_t>(column)] = true;
}

void ColumnFit::setWidth(int column, int width)
{
    if (!m_header.isSectionHidden(column))
        m_header.resizeSection(column, width);
}

void ColumnFit::fillWidth()
{
    const int last = m_header.shownColumnBeside(m_header.count(), -1);
    if (!m_header.isPlain() || last < 0)
        return;
    m_header.setStretchLastSection(false); // it would cut long texts instead of letting them scroll
    const int left = m_view.viewport()->width() - (m_header.length() - m_header.sectionSize(last));
    setWidth(last, std::max(left, m_treeWidth));
}

int ColumnFit::treeWidth(int column) const
{
    if (column < 0)
        return 0;
    constexpr std::size_t mostMeasured = 500; // on each level
    const int image = m_view.style()->pixelMetric(QStyle::PM_SmallIconSize) + textMargin(m_view);
    int width = 0;
    int depth = 1;
    for (int parent = NodeStore::None;; ++depth) {
        const std::vector<int> &nodes = m_store.children(parent);
        if (nodes.empty())
            return width;
        for (std::size_t i = 0; i < std::min(nodes.size(), mostMeasured); ++i) {
            const int indented = m_store.hasLevels() ? depth * m_view.indentation() : 0;
            const int beside = m_model.image(nodes[i], false).isNull() ? 0 : image;
            width = std::max(width, indented + beside + cellWidth(nodes[i], column));
        }
        parent = nodes.front();
    }
}

int ColumnFit::textWidth(const QString &text) const
{
    return withMargins(m_view.fontMetrics().horizontalAdvance(text));
}

int ColumnFit::withMargins(int width) const
{
    // Rounded up and a line's width more: a text a fraction of a pixel too wide is cut like any other.
    return width + 2 * textMargin(m_view) + 2;
}

std::vector<int> ColumnFit::amountsWidths(int first, int last) const
{
    std::vector<int> widths(static_cast<std::size_t>(last - first + 1), 0);
    const std::vector<int> &nodes = m_store.children(NodeStore::None);
    if (nodes.empty())
        return widths;
    std::vector<const TdxTreeListCurrencyColumn *> shown;
    for (int column = first; column <= last; ++column) {
        if (amounts(column) != nullptr && !m_header.isSectionHidden(column))
            shown.push_back(amounts(column));
    }
    const std::vector<int> found = amountWidths(m_store, nodes, shown, m_view.fontMetrics());
    for (std::size_t i = 0; i < shown.size(); ++i)
        widths[static_cast<std::size_t>(shown[i]->position() - first)] = withMargins(found[i]);
    return widths;
}

int ColumnFit::cellWidth(int node, int column) const
{
    if (m_columns[static_cast<std::size_t>(column)]->definition().kind == ColumnKind::Check)
        return checkBoxSize(m_view).width() + 2 * textMargin(m_view) + 1;
    const QString text = m_model.data(m_model.indexOf(node, column), Qt::AccessibleTextRole).toString();
    return textWidth(text);
}

int ColumnFit::rowsWidth(int column) const
{
    const std::vector<int> &nodes = m_store.children(NodeStore::None);
    if (nodes.empty())
        return 0;
    constexpr int leastRows = 30;
    const int shown = std::max(leastRows, m_view.viewport()->height() / rowHeight(m_view));
    const std::size_t rows = std::min(nodes.size(), static_cast<std::size_t>(shown));
    int width = cellWidth(nodes.back(), column); // row numbers are widest at the end
    for (std::size_t row = 0; row < rows; ++row)
        width = std::max(width, cellWidth(nodes[row], column));
    return width;
}

} // namespace toolkit::treelist
