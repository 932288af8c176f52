// SPDX-License-Identifier: MIT
// The statements and filters of the fee detail dialogs, for records in use and for those of the history.
#include "data/statements/feedetail.h"

#include "data/quoting.h"
#include "data/tables.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

namespace {

constexpr RecordKeySpelling LineSpelling{u"a.OrgCode=", u" and a.CoopMedCode=", u"   and a.IDNo=", u" and a.DiagNo="};

QString typesFrom(const QString &table, const RecordKey &key)
{
    return u" select FeeTypeCode,FeeTypeName,sum(Fee) as Fee"
           u"  from "_s + table + recordCondition(key)
         + u" group by FeeTypeCode,FeeTypeName "
           u" order by FeeTypeCode "_s;
}

/// `deductions` are further columns, with a comma at the end.
QString itemsFrom(const QString &prefix, const QString &deductions, const RecordKey &key)
{
    return u" select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit,"
           u" Str(a.Price,15,4) as Price,Str(a.Num,15,4) as Num,"
           u" Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as CanFreeFee,"_s
         + deductions
         + u"a.FeeTypeCode,"
           u" convert(varchar(10),a.YyDate,126) as YyDate,convert(varchar(10),a.InputDate,126) as InputDate,"
           u" (case isnull(c.Status,'') when '' then 2 else 1 end) as IsTp"
           u"  from "_s + prefix + u"_CbZyBxDjZb a left join "_s + prefix + u"_CbZyBxTpb c"
           u" on a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode "
           u"                                            and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo "
           u"                                            and a.ItemCode=c.ItemCode and c.Status='3'  "
           u" where "_s + recordCondition(key, LineSpelling)
         + u" order by a.FeeNo "_s;
}

} // namespace

QString feeTypes(const RecordKey &key)
{
    return typesFrom(u"o_CbZyBxDjZb  where "_s, key);
}

QString feeItems(const RecordKey &key)
{
    return itemsFrom(u"o"_s, QString(), key);
}

QString historyFeeTypes(const QString &billType, const RecordKey &key)
{
    return typesFrom(historyTablePrefix(billType) + u"_CbZyBxDjZb where "_s, key);
}

QString historyFeeItems(const QString &billType, const RecordKey &key)
{
    return itemsFrom(historyTablePrefix(billType),
                     u" Str(a.KnockOffFee1,15,4) as OneFee,Str(a.KnockOffFee,15,4) as TwoFee,"_s, key);
}

QString feeTypeFilter(const QString &feeTypeCode)
{
    return u" FeeTypeCode="_s + quotedStr(feeTypeCode);
}

QString compensableFilter()
{
    return u" IfPass = '1' "_s;
}

QString notCompensableFilter()
{
    return u" IfPass = '2' "_s;
}

// clang-format on

} // namespace data
