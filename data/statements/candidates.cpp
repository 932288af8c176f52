// SPDX-License-Identifier: MIT
// The statements that list records which may join a bill.
#include "data/statements/candidates.h"

#include "data/statements/recordcolumns.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

namespace {

constexpr RecordFilterIndent PageIndent{.tables = 17, .conditions = 20};
constexpr RecordFilterIndent DialogIndent{.tables = 22, .conditions = 24};

QString filterOf(const std::optional<Grant> &grant, const RecordFilterIndent &indent)
{
    return grant ? recordFilter(*grant, indent) : QString();
}

} // namespace

QString billCandidates(const std::optional<Grant> &grant)
{
    return selectRecordColumns() + amountTextColumns()
         + u"InputerCode,InputerName,InterfaceIn,AreaCode, "_s + isCheckColumn()
         + u",ExpressionsID,LimitDef,Ke, "_s + expenseNameColumn()
         + u" from o_CbZyBxDj"
           u"  where BillNo is null and OutDate is not null "_s + filterOf(grant, PageIndent)
         + u" order by JsDate "_s;
}

QString addBillCandidates(const std::optional<Grant> &grant)
{
    return selectRecordColumns()
         + u" TotalFee,CanFreeFee,FreeFee,DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode, "_s
         + isCheckColumn()
         + u"  from o_cbzybxdj"
           u"  where BillNo is null and OutDate is not null "_s + filterOf(grant, DialogIndent)
         + u" order by OutDate "_s;
}

// clang-format on

} // namespace data
