// SPDX-License-Identifier: MIT
// Columns of the fee items in both detail dialogs.
#include "uDjDetail/columns.h"

using toolkit::ColumnDefinition;
using toolkit::ColumnKind;

std::vector<ColumnDefinition> itemColumns(std::initializer_list<ColumnDefinition> deductions,
                                          const ColumnDefinition &approved)
{
    std::vector<ColumnDefinition> columns = {
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
    };
    columns.insert(columns.end(), deductions);
    columns.push_back({.name = "dxTLFeeInfoYyDate", .caption = "用药时间", .field = "YyDate"});
    columns.push_back({.name = "dxTLFeeInfoInputDate", .caption = "录入时间", .field = "InputDate"});
    columns.push_back(approved);
    return columns;
}
