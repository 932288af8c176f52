// SPDX-License-Identifier: MIT
// Columns of the candidates that may join a bill.
#pragma once

#include "toolkit/columndefinition.h"

#include <vector>

/// "报销费用" can be edited on purpose: what is typed there only feeds the totals at the next tick and is never saved.
/// "是否接口导入" shows as ticked for "True", which the database never delivers.
[[nodiscard]] const std::vector<toolkit::ColumnDefinition> &addBillColumns();
inline constexpr int AddBillFixedBand = 8;
