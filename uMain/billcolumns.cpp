// SPDX-License-Identifier: MIT
// Columns of the record grids on the two bill pages.
#include "uMain/columns.h"

using toolkit::ColumnDefinition;
using toolkit::ColumnKind;

const std::vector<ColumnDefinition> &billColumns()
{
    static const std::vector<ColumnDefinition> columns = {
        {.name = "ID", .caption = "序"},
        {.name = "CoopMedCode", .caption = "合作医疗证号", .field = "CoopMedCode"},
        {.name = "IDNo", .caption = "序号", .field = "IDNo"},
        {.name = "PatientName", .caption = "患者姓名", .field = "PatientName"},
        {.name = "HouseHolder", .caption = "户主姓名", .field = "HouseHolder"},
        {.name = "Sex", .caption = "性别", .field = "Sex"},
        {.name = "Age", .caption = "年龄", .field = "Age"},
        {.name = "ExpKind", .caption = "补偿类别", .field = "ExpenseName"},
        {.name = "InDate", .caption = "就诊时间", .field = "InDate"},
        {.name = "IllCode", .caption = "疾病代码", .field = "IllCode"},
        {.name = "IllName", .caption = "疾病名称", .field = "IllName"},
        {.name = "TotalFee", .caption = "总费用", .field = "TotalFee", .kind = ColumnKind::Currency},
        {.name = "CanFreeFee", .caption = "可报销费用", .field = "CanFreeFee", .kind = ColumnKind::Currency},
        {.name = "FreeFee", .caption = "报销费用", .field = "FreeFee", .kind = ColumnKind::Currency},
        {.name = "DoctName", .caption = "医生姓名", .field = "DoctorName"},
        {.name = "InputerCode", .caption = "录入人代码", .field = "InputerCode"},
        {.name = "InputerName", .caption = "录入人姓名", .field = "InputerName"},
        {.name = "HospitalCode", .caption = "医疗服务单位代码", .field = "HospitalCode"},
        {.name = "HospitalName", .caption = "医疗服务单位名称", .field = "HospitalName"},
        {.name = "InterfaceIn", .caption = "是否接口导入", .field = "InterfaceIn", .kind = ColumnKind::Check},
        {.name = "AreaCode", .caption = "行政区划", .field = "AreaCode"},
        {.name = "OutDate", .caption = "出院时间", .field = "OutDate"},
        {.name = "DayCount", .caption = "住院天数", .field = "DayCount", .alignment = Qt::AlignRight},
        {.name = "PatientNo", .caption = "住院号", .field = "PatientNo"},
        {.name = "DiagNo", .caption = "就医次序", .field = "DiagNo", .hidden = true},
        {.name = "OrgCode", .caption = "当前医疗机构", .field = "OrgCode", .hidden = true},
    };
    return columns;
}
