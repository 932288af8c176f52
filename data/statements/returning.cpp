// SPDX-License-Identifier: MIT
// The statements that return a record to the ward; a record needs all three, in this order.
#include "data/statements/returning.h"

#include "data/quoting.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

// The letter case of the tables, the blanks and the order of the conditions differ between the three on purpose.

namespace {

constexpr RecordKeySpelling Spelling{u"OrgCode=", u"   and CoopMedCode=", u"   and IDNo=", u" and DiagNo="};

} // namespace

QString clearDischarge(const RecordKey &key)
{
    return u" update o_cbzybxdj"
           u"  set OutDate=null,DayCount=null,JsDate=null"
           u"  where "_s + recordCondition(key, Spelling);
}

QString deleteSettlementFees(const RecordKey &key)
{
    return u" delete from o_CbZyJsMxb"
           u"  where CoopMedCode="_s + quotedStr(key.coopMedCode)
         + u"   and IDNo="_s + key.idNo + u" and DiagNo="_s + key.diagNo
         + u"   and OrgCode="_s + quotedStr(key.orgCode);
}

QString deleteSettlement(const RecordKey &key)
{
    return u" delete from o_CbZyJsb  where "_s + recordCondition(key, Spelling);
}

// clang-format on

} // namespace data
