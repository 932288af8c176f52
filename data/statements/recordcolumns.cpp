// SPDX-License-Identifier: MIT
// Runs of columns that the lists of records have in common.
#include "data/statements/recordcolumns.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

QString selectRecordColumns()
{
    return u" select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
           u" cast(Age as varchar(100))+AgeUnit as Age,"
           u"InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"_s;
}

QString amountTextColumns()
{
    return u" Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee,"
           u" Str(FreeFee,15,2) as FreeFee,"
           u"DoctorName,CheckOneFee,"_s;
}

QString isCheckColumn()
{
    return u"(case when CheckerCode1 is null then '2' else '1' end) as isCheck"_s;
}

QString expenseNameColumn()
{
    return u"(case ExpenseKind"
           u" when '21' then '普通住院' when '22' then '单病种住院'"
           u"     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
           u" end) as ExpenseName"_s;
}

// clang-format on

} // namespace data
