// SPDX-License-Identifier: MIT
// Columns of the history's record grid.
#include "uMain/columns.h"

using toolkit::ColumnDefinition;
using toolkit::ColumnKind;

const std::vector<ColumnDefinition> &historyColumns()
{
    static const std::vector<ColumnDefinition> columns = {
        {.name = "dxTLOldBillID", .caption = "序", .sortedAtFirst = true},
        {.name = "dxTLOldBillCoopMedCode", .caption = "合作医疗证号", .field = "CoopMedCode"},
        {.name = "dxTLOldBillIDNo", .caption = "序号", .field = "IDNo"},
        {.name = "dxTLOldBillPatientName", .caption = "患者姓名", .field = "PatientName"},
        {.name = "dxTLOldBillHouseHolder", .caption = "户主姓名", .field = "HouseHolder"},
        {.name = "dxTLOldBillSex", .caption = "性别", .field = "Sex"},
        {.name = "dxTLOldBillAge", .caption = "年龄", .field = "Age"},
        {.name = "dxTLOldBillExpKind", .caption = "补偿类别", .field = "ExpenseName"},
        {.name = "dxTLOldBillInDate", .caption = "就诊时间", .field = "InDate"},
        {.name = "dxTLOldBillIllCode", .caption = "疾病代码", .field = "IllCode"},
        {.name = "dxTLOldBillIllName", .caption = "疾病名称", .field = "IllName"},
        {.name = "dxTLOldBillTotalFee", .caption = "总费用", .field = "TotalFee", .kind = ColumnKind::Currency},
        {.name = "dxTLOldBillCanFreeFee", .caption = "可报销费用", .field = "CanFreeFee", .kind = ColumnKind::Currency},
        {.name = "dxTLOldBillFreeFee", .caption = "报销费用", .field = "FreeFee", .kind = ColumnKind::Currency},
        {.name = "dxTLOldBillDoctName", .caption = "医生姓名", .field = "DoctorName"},
        {.name = "dxTLOldBillInputerCode", .caption = "录入人代码", .field = "InputerCode"},
        {.name = "dxTLOldBillInputerName", .caption = "录入人姓名", .field = "InputerName"},
        {.name = "dxTLOldBillHospitalCode", .caption = "医疗服务单位代码", .field = "HospitalCode"},
        {.name = "dxTLOldBillHospitalName", .caption = "医疗服务单位名称", .field = "HospitalName"},
        {.name = "dxTLOldBillInterferIn", .caption = "是否接口导入", .field = "InterfaceIn", .kind = ColumnKind::Check},
        {.name = "dxTLOldBillAreaCode", .caption = "行政区划", .field = "AreaCode"},
        {.name = "dxTLOldBillOutDate", .caption = "出院时间", .field = "OutDate"},
        {.name = "dxTLOldBillDayCount", .caption = "住院天数", .field = "DayCount"},
        {.name = "dxTLOldBillPatientNo", .caption = "住院号", .field = "PatientNo"},
        {.name = "dxTLOldBillDiagNo", .caption = "就医次序", .field = "DiagNo", .hidden = true},
        {.name = "dxTLOldBillOrgCode", .caption = "当前医疗机构", .field = "OrgCode", .hidden = true},
        {.name = "dxTLOldBillExpressionsID", .caption = "公式ID", .field = "ExpressionsID", .hidden = true},
        {.name = "dxTLOldBillLimitDef", .caption = "限额定义", .field = "LimitDef", .hidden = true},
    };
    return columns;
}
