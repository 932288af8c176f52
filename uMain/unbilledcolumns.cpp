// SPDX-License-Identifier: MIT
// Columns of the unbilled patients' grid.
#include "uMain/columns.h"

using toolkit::ColumnDefinition;
using toolkit::ColumnKind;

const std::vector<ColumnDefinition> &unbilledColumns()
{
    static const std::vector<ColumnDefinition> columns = {
        {.name = "dxTLBxDjDetailID", .caption = "序", .alignment = Qt::AlignHCenter, .sortedAtFirst = true},
        {.name = "dxTLBxDjDetailCoop", .caption = "合作医疗证号", .field = "CoopMedCode"},
        {.name = "dxTLBxDjDetailIDNo", .caption = "序号", .field = "IDNo"},
        {.name = "dxTLBxDjDetailPatient", .caption = "患者姓名", .field = "PatientName"},
        {.name = "dxTLBxDjDetailHouse", .caption = "户主姓名", .field = "HouseHolder"},
        {.name = "dxTLBxDjDetailSex", .caption = "性别", .field = "Sex"},
        {.name = "dxTLBxDjDetailAge", .caption = "年龄", .field = "Age"},
        {.name = "dxTLBxDjDetailExpKind", .caption = "补偿类别", .field = "ExpenseName"},
        {.name = "dxTLBxDjDetailInDate", .caption = "入院日期", .field = "InDate"},
        {.name = "dxTLBxDjDetailOutDate", .caption = "出院日期", .field = "OutDate"},
        {.name = "dxTLBxDjDetailIsZy", .caption = "是否在院", .field = "IfZy", .kind = ColumnKind::Check},
        {.name = "dxTLBxDjDetailIllCode", .caption = "疾病编码", .field = "IllCode"},
        {.name = "dxTLBxDjDetailIllName", .caption = "疾病名称", .field = "IllName"},
        {.name = "dxTLBxDjDetailTotalFee", .caption = "总费用", .field = "TotalFee", .kind = ColumnKind::Currency},
        {.name = "dxTLBxDjDetailCanFree", .caption = "可报销费用", .field = "CanFreeFee", .kind = ColumnKind::Currency},
        {.name = "dxTLBxDjDetailFreeFee", .caption = "核销费用", .field = "FreeFee", .kind = ColumnKind::Currency},
        {.name = "dxTLBxDjDetailDocName", .caption = "医生姓名", .field = "DoctorName"},
        {.name = "dxTLBxDjDetailOrgCode", .caption = "医疗服务单位代码", .field = "HospitalCode"},
        {.name = "dxTLBxDjDetailOrgName", .caption = "医疗服务单位名称", .field = "HospitalName"},
        {.name = "dxTLBxDjDetailIsInterface",
         .caption = "是否接口导入",
         .field = "InterfaceIn",
         .kind = ColumnKind::Check},
        {.name = "dxTLBxDjDetailInputCode", .caption = "录入人员代码", .field = "InputerCode"},
        {.name = "dxTLBxDjDetailInputName", .caption = "录入人员姓名", .field = "InputerName"},
        {.name = "dxTLBxDjDetailIfInToday", .field = "IfInToday", .hidden = true},
        {.name = "dxTLBxDjDetailIfOutToday", .field = "IfOutToday", .hidden = true},
        {.name = "dxTLBxDjDetailDiagNo", .field = "DiagNo", .hidden = true},
    };
    return columns;
}
