// SPDX-License-Identifier: MIT
// The statements that make a bill out of ticked records.
#include "data/statements/savingbill.h"

#include "data/quoting.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

QString alreadyBilled(const QString &condition)
{
    return u" select OrgCode,CoopMedCode,IDNO,DiagNo,PatientName"
           u"  from o_CbZyBxDj"
           u"  where ("_s + condition + u") and BillCode is not null"_s;
}

QString noLongerDischarged(const QString &condition)
{
    return u" select OrgCode,CoopMedCode,IDNo,DiagNo,PatientName"
           u"  from o_CbZyBxDj"
           u"  where ("_s + condition + u") and OutDate is null "_s;
}

QString dischargedAfter(const QString &condition, const QString &date)
{
    return u" select CoopMedCode"
           u" from o_CbZyBxDj"
           u"  where ("_s + condition + u")"
           u"  and convert(varchar(10),OutDate,126) > "_s + quotedStr(date);
}

QString highestBillNo(const QString &billCode)
{
    return u" select max(BillNo) as BillNo"
           u"  from  ("
           u"         select isnull(max(BillNo),0) as BillNo"
           u"          from o_CbZyZdb"
           u"          where BillCode="_s + quotedStr(billCode)
         + u"         union all "
           u"         select isnull(max(BillNo),0) as BillNo "
           u"         from s_CbZyZdb "
           u"         where BillCode="_s + quotedStr(billCode) + u") a"_s;
}

QString insertBill(const NewBill &bill, const QString &condition)
{
    return u" insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,"
           u"                       CheckFee,CheckStatus,PrincipalName)"
           u"  select "_s + quotedStr(bill.key.code) + u","_s + bill.key.number + u","_s + quotedStr(bill.name)
         + u" ,"_s + quotedStr(bill.writeDate) + u",sum(isnull(TotalFee,0)),sum(isnull(CanFreeFee,0))"
           u",0,0,1,"_s + quotedStr(bill.principal)
         + u" from o_CbZyBxDj"
           u" where "_s + condition;
}

QString assignRecords(const BillKey &bill, const QString &condition)
{
    return u" update o_CbZyBxDj"
           u"  set BillCode ="_s + quotedStr(bill.code) + u",BillNo="_s + bill.number
         + u" where "_s + condition;
}

// clang-format on

} // namespace data
