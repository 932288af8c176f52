// SPDX-License-Identifier: MIT
// The statement of the page "未制单病人查询"; its tree is filled by data/rightsfilter.h.
#include "data/statements/unbilled.h"

#include "data/quoting.h"
#include "data/statements/recordcolumns.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

QString unbilledRecords(const QString &orgCode)
{
    return u" select CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,"
           u" Sex,cast(Age as varchar(100))+AgeUnit as Age,convert(varchar(10),InDate,126) as InDate,"
           u" convert(varchar(10),OutDate,126) as OutDate,IllCode,IllName,"
           u" Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee,"
           u" Str(FreeFee,15,2) as FreeFee,DoctorName,InputerCode,InputerName,InterfaceIn,"
           u" (case when OutDate is null then '1' else '2' end ) as IfZy,"
           u" (case InDate when convert(varchar(10),getdate(),126) then '1' else '0' end) as IfInToday,"
           u" (case OutDate when convert(varchar(10),getdate(),126) then '1' else '0' end) as IfOutToday, "_s
         + expenseNameColumn()
         + u" from o_CbZyBxDj"
           u"  where OrgCode="_s + quotedStr(orgCode) + u" and BillNo is null "
           u" order by OutDate desc,InDate desc "_s;
}

// clang-format on

} // namespace data
