// SPDX-License-Identifier: MIT
// Columns of the fee types in both detail dialogs.
#include "uDjDetail/columns.h"

using toolkit::ColumnDefinition;
using toolkit::ColumnKind;

const std::vector<ColumnDefinition> &feeTypeColumns()
{
    static const std::vector<ColumnDefinition> columns = {
        {.name = "dxTLFeeTypeName", .caption = "费用名称"},
        {.name = "dxTLFeeTypeFee", .caption = "金额", .kind = ColumnKind::Currency, .displayFormat = ",0.00;-,0.00"},
    };
    return columns;
}
