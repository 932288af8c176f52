// SPDX-License-Identifier: MIT
// Runs of columns that the lists of records have in common.
#include "data/statements/recordcolumns.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

QString selectRecordColumns()
{
    return u" select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,"
           u"HouseHolder,Sex, cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,"
           u"PatientNo,IllCode,IllName,"_s;
}

QString amountTextColumns()
{
    return u" Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as"
           u" FreeFee,DoctorName,CheckOneFee,"_s;
}

QString isCheckColumn()
{
    return u"(case when CheckerCode1 is null then '2' else '1' end) as isCheck"_s;
}

QString expenseNameColumn()
{
    return u"(case ExpenseKind when '21' then '普通住院' when '22' then '单病种住院'     when '23'"
           u" then '正常分娩住院' when '29' then '其他住院' when '90' then '其他' end) as ExpenseName"_s;
}

} // namespace data
