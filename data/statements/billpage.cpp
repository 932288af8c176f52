// SPDX-License-Identifier: MIT
// The statements of the pages "上报制单" and "退单制单": the same work, spelt differently on each.
#include "data/statements/billpage.h"

#include "data/codes.h"
#include "data/quoting.h"
#include "data/statements/billrecords.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

const BillPageSpelling ReportedPage{
    .listTable = u"o_CbZyZdb",
    .listStatus = StatusMade,
    .recordTable = u"o_CbZyBxDj",
    .beforeExpense = u" ",
    .cancelRecordTable = u"o_cbzybxdj",
    .cancelBillTable = u"o_cbzyzdb",
    .releaseRecord = u"o_CbZyBxDj  set BillCode = null,BillNo = null,",
    .record = {u"OrgCode=", u"   and CoopMedCode=", u"   and IDNO=", u" and DiagNo ="},
    .andLastBillNo = WideAndBillNo,
    .lastBillNoQuoted = true,
};

const BillPageSpelling ReturnedPage{
    .listTable = u"o_cbzyzdb",
    .listStatus = StatusReturned,
    .recordTable = u"o_cbzybxdj",
    .beforeExpense = u"  ",
    .cancelRecordTable = u"o_CbZyBxDj",
    .cancelBillTable = u"o_CbZyZdb",
    .releaseRecord = u"o_CbZyBxDj set BillCode=null,BillNo=null,",
    .record = {u"OrgCode=", u"   and CoopMedCode=", u"   and IDNo=", u" and DiagNo="},
    .andLastBillNo = AndBillNo,
    .lastBillNoQuoted = false,
};

QString billsOfPage(const BillPageSpelling &page, const QString &orgCode)
{
    return u" select BillCode,BillName,BillNo,"
           u" convert(varchar(10),WriteDate,126) as WriteDate,"
           u" Fee,CanFreeFee"
           u"  from "_s + page.listTable.toString()
         + u"  where CheckStatus='"_s + page.listStatus.toString() + u"'"
           u"    and BillCode="_s + quotedStr(orgCode)
         + u" order by BillCode,BillNo desc "_s;
}

QString recordsOfBill(const BillPageSpelling &page, const BillKey &bill)
{
    // Two blanks before "where" here, one in the history.
    return billRecordColumns(page.beforeExpense)
         + u" from "_s + page.recordTable.toString()
         + u"  where "_s + billCondition(bill)
         + u" order by OutDate "_s;
}

QString statusOutside(const BillKey &bill, const QString &allowedList)
{
    return u" select CheckStatus"
           u" from o_CbZyZdb"
           u"  where "_s + billCondition(bill, WideAndBillNo)
         + u"   and CheckStatus not in ("_s + allowedList + u") "_s;
}

QString reportableStatuses()
{
    return u" '1','9' "_s;
}

QString reportBill(const BillKey &bill)
{
    return u" update o_cbzyzdb"
           u"    set CheckStatus='2'"
           u"  where "_s + billCondition(bill, WideAndBillNo);
}

QString releaseAllRecords(const BillPageSpelling &page, const BillKey &bill)
{
    return u" update "_s + page.cancelRecordTable.toString()
         + u" set BillCode = null,BillNo = null"
           u"  where "_s + billCondition(bill);
}

QString deleteBill(const BillPageSpelling &page, const BillKey &bill)
{
    return u" delete from "_s + page.cancelBillTable.toString()
         + u"  where "_s + billCondition(bill, WideAndBillNo);
}

QString releaseRecord(const BillPageSpelling &page, const RecordKey &record)
{
    return u" update "_s + page.releaseRecord.toString()
         + u"     CheckerCode1=null,CheckerName1=null,CheckOneFee=0,CheckDate1=null,Checkone=null,"
           u"     CheckerCode=null,CheckerName=null,CheckFee=0,CheckDate=null,CheckRemark=null"
           u"  where "_s + recordCondition(record, page.record);
}

QString clearDeductions(const BillPageSpelling &page, const RecordKey &record)
{
    return u" update o_CbZyBxDjZb"
           u"  set KnockOffFee1=0,KnockOffFee=0"
           u"  where "_s + recordCondition(record, page.record)
         + u"   and (isnull(KnockOffFee1,0) <> 0 or isnull(KnockOffFee,0) <> 0) "_s;
}

QString recomputeAfterRelease(const BillKey &bill)
{
    return u" update o_CbZyZdb set Fee=a.TotalFee,CanFreeFee=a.CanFreeFee"
           u"  from (select isnull(sum(TotalFee),0) as TotalFee,isnull(sum(CanFreeFee),0) as CanFreeFee"
           u"        from o_CbZyBxDj"
           u"        where "_s + billCondition(bill) + u") a "
           u" where "_s + billCondition(bill);
}

QString deleteEmptiedBill(const BillPageSpelling &page, const BillKey &bill)
{
    // Only the page of made bills quotes the number, and only here.
    const QString number = page.lastBillNoQuoted ? quotedStr(bill.number) : bill.number;
    return u" delete from o_CbZyZdb  where "_s + billCondition({bill.code, number}, page.andLastBillNo);
}

// clang-format on

} // namespace data
