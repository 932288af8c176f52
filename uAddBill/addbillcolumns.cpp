// SPDX-License-Identifier: MIT
// Columns of the candidates that may join a bill.
#include "uAddBill/columns.h"

using toolkit::ColumnDefinition;
using toolkit::ColumnKind;

const std::vector<ColumnDefinition> &addBillColumns()
{
    static const std::vector<ColumnDefinition> columns = {
        {.name = "dxTLUpCheck", .caption = "选择", .kind = ColumnKind::Check, .editable = true},
        {.name = "dxTLUpID", .caption = "序"},
        {.name = "dxTLUpCoopMedCode", .caption = "合作医疗证号", .field = "CoopMedCode"},
        {.name = "dxTLUpIDNo", .caption = "序号", .field = "IDNo"},
        {.name = "dxTLUpPatientName", .caption = "患者姓名", .field = "PatientName"},
        {.name = "dxTLUpHouseHolder", .caption = "户主姓名", .field = "HouseHolder"},
        {.name = "dxTLUpSex", .caption = "性别", .field = "Sex"},
        {.name = "dxTLUpAge", .caption = "年龄", .field = "Age"},
        {.name = "dxTLUpInDate", .caption = "就诊时间", .field = "InDate"},
        {.name = "dxTLUpIllCode", .caption = "疾病代码", .field = "IllCode"},
        {.name = "dxTLUpIllName", .caption = "疾病名称", .field = "IllName"},
        {.name = "dxTLUpTotalFee", .caption = "总费用", .field = "TotalFee", .kind = ColumnKind::Currency},
        {.name = "dxTLUpCanFee", .caption = "可报销费用", .field = "CanFreeFee", .kind = ColumnKind::Currency},
        {.name = "dxTLUpFreeFee",
         .caption = "报销费用",
         .field = "FreeFee",
         .kind = ColumnKind::Currency,
         .editable = true},
        {.name = "dxTLUpDoctName", .caption = "医生姓名", .field = "DoctorName"},
        {.name = "dxTLUpInputerCode", .caption = "录入人代码", .field = "InputerCode"},
        {.name = "dxTLUpInputerName", .caption = "录入人姓名", .field = "InputerName"},
        {.name = "dxTLUpHospCode", .caption = "医疗服务单位代码", .field = "HospitalCode"},
        {.name = "dxTLUpHospName", .caption = "医疗服务单位名称", .field = "HospitalName"},
        {.name = "dxTLUpInterface",
         .caption = "是否接口导入",
         .field = "InterfaceIn",
         .kind = ColumnKind::Check,
         .checked = "True",
         .unchecked = "False"},
        {.name = "dxTLUpAreaCode", .caption = "行政区划", .field = "AreaCode"},
        {.name = "dxTLUpOutDate", .caption = "出院时间", .field = "OutDate"},
        {.name = "dxTLUpDayCount", .caption = "住院天数", .field = "DayCount"},
        {.name = "dxTLUpPatientNo", .caption = "住院号", .field = "PatientNo"},
        {.name = "dxTLUpDiagNo", .field = "DiagNo", .hidden = true},
        {.name = "dxTLUpOrgCode", .caption = "当前医疗机构", .field = "OrgCode", .hidden = true, .editable = true},
    };
    return columns;
}
