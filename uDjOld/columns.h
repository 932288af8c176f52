// SPDX-License-Identifier: MIT
// Columns of the historical detail dialog's items.
#pragma once

#include "toolkit/columndefinition.h"

#include <vector>

/// "是否特批" shows as ticked for "True", while the database delivers 1 and 2: the box stays empty, and the row's
/// colour tells.
[[nodiscard]] std::vector<toolkit::ColumnDefinition> historyItemColumns();
