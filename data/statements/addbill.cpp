// SPDX-License-Identifier: MIT
// The statement of the dialog "添加制单" beside candidates.h (its list) and savingbill.h (assignRecords()).
#include "data/statements/addbill.h"

#include "data/quoting.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

QString recomputeAfterAdding(const BillKey &bill)
{
    return u" update o_CbZyZdb set o_CbZyZdb.Fee=a.TotalFee,o_CbZyZdb.CanFreeFee=a.CanFreeFee  from"
           u"      ( select sum(TotalFee) as TotalFee,sum(CanFreeFee) as CanFreeFee        from"
           u" o_CbZyBxDj a        where a.BillCode="_s
        + quotedStr(bill.code) + u" and a.BillNo="_s + bill.number + u") a"_s + u" where o_CbZyZdb.BillCode="_s
        + quotedStr(bill.code) + u" and o_CbZyZdb.BillNo="_s + bill.number;
}

} // namespace data
