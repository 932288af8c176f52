// SPDX-License-Identifier: MIT
// The statements of the page "历史制单查询".
#include "data/statements/history.h"

#include "data/quoting.h"
#include "data/statements/billrecords.h"
#include "data/tables.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

QString historyBills(const QString &orgCodeInUse, const QString &orgCodeArchived)
{
    const QString grouping = u" group by a.BillCode,a.BillName,a.BillNo,a.WriteDate,CheckStatus,a.Fee,a.CanFreeFee,"
                             u"a.CheckFee1,a.CheckFee "_s;
    return u" select * from (  select a.BillCode,a.BillName,a.BillNo,convert(varchar(10),WriteDate,"
           u"126) as WriteDate,CheckStatus,1 as Type,  a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee"
           u"  from o_CbZyZdb a,o_CbZyBxDj b  where a.BillCode=b.BillCode and a.BillNo=b.BillNo"
           u"    and a.BillCode="_s
        + quotedStr(orgCodeInUse) + grouping + u" union all "_s
        + u" select a.BillCode,a.BillName,a.BillNo,convert(varchar(10),WriteDate,126) as WriteDate,"
          u"CheckStatus,2 as Type, "_s
        + u" a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee "_s + u" from s_CbZyZdb a,s_CbZyBxDj b "_s
        + u" where a.BillCode=b.BillCode and a.BillNo=b.BillNo "_s + u"   and a.BillCode="_s
        + quotedStr(orgCodeArchived) + grouping + u") a"_s + u" order by a.BillCode,a.BillNo desc "_s;
}

QString historyRecords(const QString &billType, const BillKey &bill)
{
    return billRecordColumns(u"  ") + u",ExpressionsID,LimitDef from "_s + historyRecordTable(billType) + u" where "_s
        + billCondition(bill) + u" order by OutDate "_s;
}

} // namespace data
