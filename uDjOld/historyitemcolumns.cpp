// SPDX-License-Identifier: MIT
// Columns of the historical detail dialog's items.
#include "uDjOld/columns.h"

#include "uDjDetail/columns.h"

using toolkit::ColumnKind;

std::vector<toolkit::ColumnDefinition> historyItemColumns()
{
    return itemColumns({{.name = "dxTLFeeInfoOneFee",
                         .caption = "一级剔除金额",
                         .field = "OneFee",
                         .kind = ColumnKind::Currency,
                         .displayFormat = "￥,0.0000;-￥,0.0000"},
                        {.name = "dxTLFeeInfoTwoFee",
                         .caption = "县市剔除金额",
                         .field = "TwoFee",
                         .kind = ColumnKind::Currency,
                         .displayFormat = "￥,0.0000;-￥,0.0000"}},
                       {.name = "dxTLFeeInfoIsTp",
                        .caption = "是否特批",
                        .field = "IsTp",
                        .kind = ColumnKind::Check,
                        .checked = "True",
                        .unchecked = "False"});
}
