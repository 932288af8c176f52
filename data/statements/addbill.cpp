// SPDX-License-Identifier: MIT
// The statement of the dialog "添加制单" beside candidates.h (its list) and savingbill.h (assignRecords()).
#include "data/statements/addbill.h"

#include "data/quoting.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

QString recomputeAfterAdding(const BillKey &bill)
{
    return u" update o_CbZyZdb set o_CbZyZdb.Fee=a.TotalFee,o_CbZyZdb.CanFreeFee=a.CanFreeFee"
           u"  from "
           u"     ( select sum(TotalFee) as TotalFee,sum(CanFreeFee) as CanFreeFee"
           u"        from o_CbZyBxDj a"
           u"        where a.BillCode="_s + quotedStr(bill.code) + u" and a.BillNo="_s + bill.number + u") a"
           u" where o_CbZyZdb.BillCode="_s + quotedStr(bill.code) + u" and o_CbZyZdb.BillNo="_s + bill.number;
}

// clang-format on

} // namespace data
