// SPDX-License-Identifier: MIT
// Columns of the fee detail dialog's items.
#include "uDjDetail/columns.h"

using toolkit::ColumnDefinition;
using toolkit::ColumnKind;

const std::vector<ColumnDefinition> &feeItemColumns()
{
    static const std::vector<ColumnDefinition> columns = {
        {.name = "dxTLFeeInfoFeeNo",
         .caption = "序号",
         .field = "FeeNo",
         .kind = ColumnKind::Currency,
         .displayFormat = ",0;-,0"},
        {.name = "dxTLFeeInfoItemCode", .caption = "项目编码", .field = "ItemCode"},
        {.name = "dxTLFeeInfoItemName", .caption = "项目名称", .field = "ItemName"},
        {.name = "dxTLFeeInfoIfPass", .caption = "是否补偿", .field = "IfPass", .kind = ColumnKind::Check},
        {.name = "dxTLFeeInfoUnit", .caption = "单位", .field = "Unit"},
        {.name = "dxTLFeeInfoPrice",
         .caption = "单价",
         .field = "Price",
         .kind = ColumnKind::Currency,
         .displayFormat = "￥,0.0000;-￥,0.0000"},
        {.name = "dxTLFeeInfoNum",
         .caption = "数量",
         .field = "Num",
         .kind = ColumnKind::Currency,
         .displayFormat = ",0.00;-,0.00"},
        {.name = "dxTLFeeInfoFee",
         .caption = "金额",
         .field = "Fee",
         .kind = ColumnKind::Currency,
         .displayFormat = "￥,0.0000;-￥,0.0000"},
        {.name = "dxTLFeeInfoCanFee",
         .caption = "可报销金额",
         .field = "CanFreeFee",
         .kind = ColumnKind::Currency,
         .displayFormat = "￥,0.0000;-￥,0.0000"},
        {.name = "dxTLFeeInfoYyDate", .caption = "用药时间", .field = "YyDate"},
        {.name = "dxTLFeeInfoInputDate", .caption = "录入时间", .field = "InputDate"},
        {.name = "dxTLFeeInfoIsTp", .caption = "是否特批", .kind = ColumnKind::Check, .hidden = true},
    };
    return columns;
}
