// SPDX-License-Identifier: MIT
// The column tables of the main form's grids, in the order shown. "序" columns hold no value: their text is drawn.
#pragma once

#include "toolkit/columndefinition.h"

#include <vector>

[[nodiscard]] const std::vector<toolkit::ColumnDefinition> &unbilledColumns();
[[nodiscard]] const std::vector<toolkit::ColumnDefinition> &candidateColumns();
/// Component names without the grid's own name before them: two grids have these columns.
[[nodiscard]] const std::vector<toolkit::ColumnDefinition> &billColumns();
[[nodiscard]] const std::vector<toolkit::ColumnDefinition> &historyColumns();

/// Columns that stay in place when a grid scrolls sideways: everything up to the patient's age or expense kind.
inline constexpr int CandidateFixedBand = 8;
inline constexpr int BillFixedBand = 7;
