// SPDX-License-Identifier: MIT
// Where a grid of records keeps the record key and the amounts.
#pragma once

#include "data/recordkey.h"

#include <vector>

class TdxTreeList;
class TdxTreeListNode;

namespace forms {

/// Positions of the key's columns, found by component name: the grid's own name followed by "OrgCode", "CoopMedCode",
/// "IDNo" and "DiagNo".
class RecordColumns {
public:
    /// Throws std::logic_error when the grid lacks one of them.
    explicit RecordColumns(const TdxTreeList &grid);

    [[nodiscard]] data::RecordKey key(const TdxTreeListNode &row) const;
    /// Whether a statement with that key can find the row; see data::comesBackUnchanged().
    [[nodiscard]] bool keyFindsRow(const TdxTreeListNode &row) const;

private:
    int m_orgCode;
    int m_coopMedCode;
    int m_idNo;
    int m_diagNo;
};

/// Position of the column named after the grid and `suffix`. Throws std::logic_error when there is none.
[[nodiscard]] int columnPosition(const TdxTreeList &grid, const char *suffix);

/// Whether the row's check cell holds "1"; anything else counts as unticked.
[[nodiscard]] bool isTicked(const TdxTreeListNode &row, int checkColumn);

/// Keys of the ticked rows in the order shown.
[[nodiscard]] std::vector<data::RecordKey> tickedRecords(const TdxTreeList &grid, int checkColumn);

struct TickedTotals {
    int count = 0;
    long double totalFee = 0;
    long double canFreeFee = 0;
    long double freeFee = 0;
};

/// Sums the columns "TotalFee", "CanFee" and "FreeFee" (after the grid's name) over the ticked rows. Throws
/// std::invalid_argument when an amount is no number, an empty one included.
[[nodiscard]] TickedTotals sumTicked(const TdxTreeList &grid, int checkColumn);

} // namespace forms
