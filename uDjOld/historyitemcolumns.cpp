// SPDX-License-Identifier: MIT
// Columns of the historical detail dialog's items.
#include "uDjOld/columns.h"

using toolkit::ColumnDefinition;
using toolkit::ColumnKind;

const std::vector<ColumnDefinition> &historyItemColumns()
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
        {.name = "dxTLFeeInfoOneFee",
         .caption = "一级剔除金额",
         .field = "OneFee",
         .kind = ColumnKind::Currency,
         .displayFormat = "￥,0.0000;-￥,0.0000"},
        {.name = "dxTLFeeInfoTwoFee",
         .caption = "县市剔除金额",
         .field = "TwoFee",
         .kind = ColumnKind::Currency,
         .displayFormat = "￥,0.0000;-￥,0.0000"},
        {.name = "dxTLFeeInfoYyDate", .caption = "用药时间", .field = "YyDate"},
        {.name = "dxTLFeeInfoInputDate", .caption = "录入时间", .field = "InputDate"},
        {.name = "dxTLFeeInfoIsTp",
         .caption = "是否特批",
         .field = "IsTp",
         .kind = ColumnKind::Check,
         .checked = "True",
         .unchecked = "False"},
    };
    return columns;
}
