// SPDX-License-Identifier: MIT
// Columns of the fee detail dialog's items.
#include "uDjDetail/columns.h"

using toolkit::ColumnKind;

std::vector<toolkit::ColumnDefinition> feeItemColumns()
{
    return itemColumns({},
                       {.name = "dxTLFeeInfoIsTp", .caption = "是否特批", .kind = ColumnKind::Check, .hidden = true});
}
