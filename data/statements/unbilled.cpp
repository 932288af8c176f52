// SPDX-License-Identifier: MIT
// The statement of the page "未制单病人查询"; its tree is filled by data/rightsfilter.h.
#include "data/statements/unbilled.h"

#include "data/quoting.h"
#include "data/statements/recordcolumns.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

QString unbilledRecords(const QString &orgCode)
{
    return u" select CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder, Sex,"
           u"cast(Age as varchar(100))+AgeUnit as Age,convert(varchar(10),InDate,126) as InDate,"
           u" convert(varchar(10),OutDate,126) as OutDate,IllCode,IllName, Str(TotalFee,15,2) as"
           u" TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,DoctorName,"
           u"InputerCode,InputerName,InterfaceIn, (case when OutDate is null then '1' else '2' end )"
           u" as IfZy, (case InDate when convert(varchar(10),getdate(),126) then '1' else '0' end) as"
           u" IfInToday, (case OutDate when convert(varchar(10),getdate(),126) then '1' else '0' end)"
           u" as IfOutToday, "_s
        + expenseNameColumn() + u" from o_CbZyBxDj  where OrgCode="_s + quotedStr(orgCode) + u" and BillNo is null "_s
        + u" order by OutDate desc,InDate desc "_s;
}

} // namespace data
