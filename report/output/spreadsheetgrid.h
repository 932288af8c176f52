// SPDX-License-Identifier: MIT
// The rows and columns of a sheet into which the boxes of a page fall.
#pragma once

#include "report/layout/page.h"

#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace report {

/// Cells count from 0; both ends belong to the range.
struct CellRange {
    int firstRow = 0;
    int firstColumn = 0;
    int lastRow = 0;
    int lastColumn = 0;
    friend bool operator==(const CellRange &, const CellRange &) = default;
};

/// Every edge of a box starts a row or a column; edges that nearly meet are one, so that a title printed a hair beside
/// a table does not split its columns.
class SpreadsheetGrid {
public:
    explicit SpreadsheetGrid(const Page &page);

    [[nodiscard]] const std::vector<Unit> &columnEdges() const noexcept { return m_columnEdges; }
    [[nodiscard]] const std::vector<Unit> &rowEdges() const noexcept { return m_rowEdges; }

    /// Cells of the box, which are taken from now on. A box over cells that are taken gets its first one alone, or
    /// nothing when that is taken too: a sheet knows no overlapping cells.
    [[nodiscard]] std::optional<CellRange> take(const TextBox &text);

private:
    std::vector<Unit> m_columnEdges;
    std::vector<Unit> m_rowEdges;
    std::set<std::pair<int, int>> m_taken;
};

/// A display format as spreadsheets write it: ",0.00;-,0.00" becomes "#,##0.00;-#,##0.00".
[[nodiscard]] QString spreadsheetFormat(const QString &displayFormat);

} // namespace report
