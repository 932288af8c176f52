// SPDX-License-Identifier: MIT
// Columns of the fee detail dialog's grids.
#pragma once

#include "toolkit/columndefinition.h"

#include <vector>

/// Both detail dialogs show the fee types alike. Behind the columns stands the fee type's code, at FeeTypeCodePosition.
[[nodiscard]] const std::vector<toolkit::ColumnDefinition> &feeTypeColumns();
inline constexpr int FeeTypeCodePosition = 2;

/// "是否特批" stays hidden and empty: no row fills it.
[[nodiscard]] const std::vector<toolkit::ColumnDefinition> &feeItemColumns();
