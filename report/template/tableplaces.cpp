// SPDX-License-Identifier: MIT
#include "report/template/tableplaces.h"

namespace report {

TablePlaces::TablePlaces(Unit left, Unit top, const std::vector<Unit> &widths)
    : m_takenRows(widths.size(), 0)
    , m_top(top)
{
    m_columnStarts.push_back(left);
    for (const Unit width : widths)
        m_columnStarts.push_back(m_columnStarts.back() + width);
}

void TablePlaces::addRow(Unit height)
{
    m_rowEnds.push_back((m_rowEnds.empty() ? m_top : m_rowEnds.back()) + height);
    for (int &rows : m_takenRows) {
        if (rows > 0)
            --rows;
    }
    m_column = 0;
}

Rect TablePlaces::addCell(int columns, int rows)
{
    while (m_column < m_takenRows.size() && m_takenRows[m_column] > 0)
        ++m_column;
    const Unit top = m_rowEnds.size() > 1 ? m_rowEnds[m_rowEnds.size() - 2] : m_top;
    Rect place{m_columnStarts[m_column], top, 0, m_rowEnds.back() - top};
    const std::size_t end = m_column + static_cast<std::size_t>(columns);
    if (end > m_takenRows.size())
        return place;
    for (; m_column < end; ++m_column) {
        if (m_takenRows[m_column] > 0) {
            place.width = 0;
            return place;
        }
        m_takenRows[m_column] = rows;
    }
    place.width = m_columnStarts[end] - place.left;
    return place;
}

Rect TablePlaces::outline() const noexcept
{
    const Unit bottom = m_rowEnds.empty() ? m_top : m_rowEnds.back();
    return {m_columnStarts.front(), m_top, m_columnStarts.back() - m_columnStarts.front(), bottom - m_top};
}

} // namespace report
