// SPDX-License-Identifier: MIT
// Columns of the fee detail dialog's grids.
#pragma once

#include "toolkit/columndefinition.h"

#include <initializer_list>
#include <vector>

/// Both detail dialogs show the fee types alike. Behind the columns stands the fee type's code, at FeeTypeCodePosition.
[[nodiscard]] const std::vector<toolkit::ColumnDefinition> &feeTypeColumns();
inline constexpr int FeeTypeCodePosition = 2;

/// The items of both dialogs: the columns they share, with the deductions before the dates and the approval at the end.
[[nodiscard]] std::vector<toolkit::ColumnDefinition>
itemColumns(std::initializer_list<toolkit::ColumnDefinition> deductions, const toolkit::ColumnDefinition &approved);

/// "是否特批" stays hidden and empty: no row fills it.
[[nodiscard]] std::vector<toolkit::ColumnDefinition> feeItemColumns();
