// SPDX-License-Identifier: MIT
// The statements behind the settlement sheet, the approval form and the settlement procedure.
#include "data/statements/settlement.h"

#include "data/codes.h"
#include "data/quoting.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

namespace {

constexpr int SqlServerStyle = 1;

/// "IDNO" in capitals here only.
constexpr RecordKeySpelling FeeSpelling{u"OrgCode=", u" and CoopMedCode=", u"   and IDNO=", u" and DiagNo="};

/// Sum of a column over all stays of the member, in use and archived; `alias` closes the text.
QString lifetimeSum(const QString &column, const QString &prefix, const QString &alias)
{
    const QString ofMember = u"        where a.CoopMedCode="_s + prefix + u"_CbZyJsb.CoopMedCode"
                             u" and a.IDNo="_s + prefix + u"_CbZyJsb.IDNo "_s;
    const QString sum = u"sum("_s + column + u") "_s;
    return u" (select "_s + sum
         + u"  from (select "_s + sum + column + u" from o_CbZyBxDj a "_s
         + ofMember
         + u"        union all "
           u"        select "_s + sum + u"from s_CbZyBxDj a "_s
         + ofMember + u") a)"_s + alias;
}

} // namespace

LengthFunction lengthFunction(int connStyle)
{
    return connStyle == SqlServerStyle ? LengthFunction::Len : LengthFunction::Length;
}

QString homeProperty(const QString &coopMedCode, const QString &idNo)
{
    return u" select HomeProperty"
           u" from p_CbNhGrXx"
           u"  where CoopMedCode="_s + quotedStr(coopMedCode) + u" and IDNo="_s + idNo;
}

QString homeProperties()
{
    return u" select PropertyCode,PropertyName from p_HomeProperty "_s;
}

QString formulaName(const QString &expressionsId)
{
    return u" select ExpressionsName from p_ZyBxGs where ExpressionsId = "_s + quotedStr(expressionsId);
}

QString settlementSheet(const QString &prefix, const RecordKey &key, const QString &homePropertyText)
{
    return u" select CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,convert(varchar(10),BirthDay,126) as BirthDay,"
           u" RelationName,Address,convert(varchar(10),InDate,126) as InDate,convert(varchar(10),OutDate,126) as OutDate,"
           u" DayCount,PatientNo,IllName,InHosCount,Fee,CanFreeFee,FreeFee,MzFee,HosFee,"_s
         + quotedStr(homePropertyText) + u" as HomeProperty "
           u" from "_s + prefix + u"_CbZyJsb "
           u" where "_s + recordCondition(key);
}

QString settlementFees(const QString &prefix, const RecordKey &key)
{
    return u" select FeeTypeCode,Fee,CanFreeFee,FreeFee"
           u"  from "_s + prefix + u"_CbZyJsMxb "
           u" where "_s + recordCondition(key, FeeSpelling);
}

QString sheetFeeTypes(LengthFunction length)
{
    return u" select FeeTypeCode,FeeTypeName"
           u" from p_fylb"
           u" where "_s + (length == LengthFunction::Len ? u"len"_s : u"length"_s) + u"(feetypecode)=2"
           u" order by FeeTypeCode "_s;
}

QString formFeeTypes(LengthFunction length)
{
    return u" select FeeTypeCode,FeeTypeName"
           u" from p_Fylb"
           u" where "_s + (length == LengthFunction::Len ? u"Len"_s : u"Length"_s) + u"(FeeTypeCode)=2"
           u" order by FeeTypeCode "_s;
}

QString approvalForm(const QString &prefix, const RecordKey &key, const ApprovalTexts &texts)
{
    return u" select CoopMedCode,PatientName,HouseHolder,Sex,convert(varchar(10),BirthDay,126) as BirthDay,"
           u"  RelationName,Address,HospitalName,InHosCount,convert(varchar(10),InDate,126) as InDate,"
           u"  convert(varchar(10),OutDate,126) as OutDate,DayCount,PatientNo,"_s
         + quotedStr(texts.limit) + u" as LimitDef,"
           u" IllName,Fee,CanFreeFee,FreeFee,MzFee,HosFee,"_s
         + quotedStr(texts.formula) + u" as ExpressionsName,"_s
         + quotedStr(texts.printInfo) + u" as PrintInfo,"_s
         + lifetimeSum(u"TotalFee"_s, prefix, u" TSumTotalFee,"_s)
         + lifetimeSum(u"FreeFee"_s, prefix, u" as TSumFree "_s)
         + u" from "_s + prefix + u"_CbZyJsb "
           u" where "_s + recordCondition(key);
}

QString settlementFeeFilter(const QString &feeTypeCode)
{
    return u"FeeTypeCode="_s + quotedStr(feeTypeCode);
}

QString settlementCall(int billType, const RecordKey &key)
{
    const QString infix = billType == static_cast<int>(BillType::Archived) ? u"S"_s : QString();
    return u" Pro_Zy_"_s + infix + u"FeeInterFace"
           u" @OrgCode="_s + quotedStr(key.orgCode)
         + u",@CoopMedCode="_s + quotedStr(key.coopMedCode)
         + u",@IDNo="_s + quotedStr(key.idNo)
         + u",@DiagNo="_s + quotedStr(key.diagNo)
         + u",@Type='1'"
           u",@Info=:Info OutPut "_s;
}

// clang-format on

} // namespace data
