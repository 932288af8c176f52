// SPDX-License-Identifier: MIT
// The list of candidates as SQLite itself would be asked for it.
#pragma once

namespace bench {

/// The same 30 columns and rows as the bill-making page's statement.
inline constexpr const char *BareCandidates =
    "select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,Age||AgeUnit,InDate,"
    "DayCount,OutDate,PatientNo,IllCode,IllName,printf('%15.2f',TotalFee),printf('%15.2f',CanFreeFee),"
    "printf('%15.2f',FreeFee),DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode,"
    "case when CheckerCode1 is null then '2' else '1' end,ExpressionsID,LimitDef,Ke,"
    "case ExpenseKind when '21' then '普通住院' when '22' then '单病种住院' when '23' then '正常分娩住院' "
    "when '29' then '其他住院' when '90' then '其他' end from o_CbZyBxDj where BillNo is null and OutDate is not null "
    "order by JsDate";
inline constexpr int CandidateColumns = 30;

} // namespace bench
