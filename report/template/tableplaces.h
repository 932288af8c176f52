// SPDX-License-Identifier: MIT
// Lays the cells of a template's table into their places.
#pragma once

#include "report/geometry.h"

#include <vector>

namespace report {

/// Rows are added from top to bottom, cells from left to right; a cell over several rows keeps its columns taken below.
class TablePlaces {
public:
    TablePlaces(Unit left, Unit top, const std::vector<Unit> &widths);

    void addRow(Unit height);
    /// Place of the next cell of the row, as far as it is known: of a cell over several rows the height is that of the
    /// first. A width of 0 means that the row has no room for the cell.
    [[nodiscard]] Rect addCell(int columns, int rows);
    /// Lower edges of the rows so far, the last one included.
    [[nodiscard]] const std::vector<Unit> &rowEnds() const noexcept { return m_rowEnds; }
    [[nodiscard]] int rowCount() const noexcept { return static_cast<int>(m_rowEnds.size()); }
    [[nodiscard]] int columnCount() const noexcept { return static_cast<int>(m_takenRows.size()); }
    [[nodiscard]] Rect outline() const noexcept;

private:
    std::vector<Unit> m_columnStarts; // and the right end of the last
    std::vector<int> m_takenRows; // a column: rows from the current one on that a cell above has taken
    std::vector<Unit> m_rowEnds;
    Unit m_top;
    std::size_t m_column = 0;
};

} // namespace report
