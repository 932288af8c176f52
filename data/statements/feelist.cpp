// SPDX-License-Identifier: MIT
// The statements of the printed fee list.
#include "data/statements/feelist.h"

#include "data/quoting.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

QString feeListHeader(const QString &prefix, const RecordKey &key)
{
    return u" select HospitalName,CoopMedCode,PatientName,Sex,cast(Age as varchar(100))+AgeUnit as Age,"
           u" PatientNo,HouseHolder,convert(varchar(10),InDate,126) as InDate,InHosCount,DoctorName,"
           u" (select Address from p_CbNhGrXx"
           u" where "_s + prefix + u"_CbZyBxDj.CoopMedCode=p_CbNhGrXx.CoopMedCode"
           u" and p_CbNhGrXx.isHouseHolder='1') as Address "
           u" from "_s + prefix + u"_CbZyBxDj "
           u" where "_s + recordCondition(key);
}

QString feeListItems(const QString &prefix, const RecordKey &key, const QString &begin, const QString &end)
{
    return u" select a.ItemName,b.Gg,a.Unit,a.Num,a.Price,a.Fee,convert(varchar(10),a.YyDate,126) as YyDate,"
           u" (case a.IfPass when '1' then '是' when '2' then '否' end) as IfPass"
           u"  from "_s + prefix + u"_CbZyBxDjZb a,p_BxXm b "
           u" where a.ItemCode=b.ItemCode "
           u"   and "_s + recordCondition(key)
         + u"   and convert(varchar(10),YyDate,126) between "_s + quotedStr(begin) + u" and "_s + quotedStr(end)
         + u" order by a.YyDate,a.FeeNo "_s;
}

// clang-format on

} // namespace data
