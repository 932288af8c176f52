// SPDX-License-Identifier: MIT
// The statements behind the settlement sheet, the approval form and the settlement procedure.
#include "data/statements/settlement.h"

#include "data/codes.h"
#include "data/quoting.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SqlServerStyle = 1;

/// "IDNO" in capitals here only.
constexpr RecordKeySpelling FeeSpelling{u"OrgCode=", u" and CoopMedCode=", u"   and IDNO=", u" and DiagNo="};

/// Sum of a column over all stays of the member, in use and archived; `alias` closes the text.
QString lifetimeSum(const QString &column, const QString &prefix, const QString &alias)
{
    const QString ofMember = u"        where a.CoopMedCode="_s + prefix + u"_CbZyJsb.CoopMedCode and a.IDNo="_s + prefix
        + u"_CbZyJsb.IDNo "_s;
    const QString sum = u"sum("_s + column + u") "_s;
    return u" (select "_s + sum + u"  from (select "_s + sum + column + u" from o_CbZyBxDj a "_s + ofMember
        + u"        union all "_s + u"        select "_s + sum + u"from s_CbZyBxDj a "_s + ofMember + u") a)"_s + alias;
}

} // namespace

LengthFunction lengthFunction(int connStyle)
{
    return connStyle == SqlServerStyle ? LengthFunction::Len : LengthFunction::Length;
}

QString homeProperty(const QString &coopMedCode, const QString &idNo)
{
    return u" select HomeProperty from p_CbNhGrXx  where CoopMedCode="_s + quotedStr(coopMedCode) + u" and IDNo="_s
        + idNo;
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
    return u" select CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,convert(varchar(10),"
           u"BirthDay,126) as BirthDay, RelationName,Address,convert(varchar(10),InDate,126) as"
           u" InDate,convert(varchar(10),OutDate,126) as OutDate, DayCount,PatientNo,IllName,"
           u"InHosCount,Fee,CanFreeFee,FreeFee,MzFee,HosFee,"_s
        + quotedStr(homePropertyText) + u" as HomeProperty "_s + u" from "_s + prefix + u"_CbZyJsb "_s + u" where "_s
        + recordCondition(key);
}

QString settlementFees(const QString &prefix, const RecordKey &key)
{
    return u" select FeeTypeCode,Fee,CanFreeFee,FreeFee  from "_s + prefix + u"_CbZyJsMxb "_s + u" where "_s
        + recordCondition(key, FeeSpelling);
}

QString sheetFeeTypes(LengthFunction length)
{
    return u" select FeeTypeCode,FeeTypeName from p_fylb where "_s
        + (length == LengthFunction::Len ? u"len"_s : u"length"_s) + u"(feetypecode)=2 order by FeeTypeCode "_s;
}

QString formFeeTypes(LengthFunction length)
{
    return u" select FeeTypeCode,FeeTypeName from p_Fylb where "_s
        + (length == LengthFunction::Len ? u"Len"_s : u"Length"_s) + u"(FeeTypeCode)=2 order by FeeTypeCode "_s;
}

QString approvalForm(const QString &prefix, const RecordKey &key, const ApprovalTexts &texts)
{
    return u" select CoopMedCode,PatientName,HouseHolder,Sex,convert(varchar(10),BirthDay,126) as"
           u" BirthDay,  RelationName,Address,HospitalName,InHosCount,convert(varchar(10),InDate,126)"
           u" as InDate,  convert(varchar(10),OutDate,126) as OutDate,DayCount,PatientNo,"_s
        + quotedStr(texts.limit) + u" as LimitDef,"_s + u" IllName,Fee,CanFreeFee,FreeFee,MzFee,HosFee,"_s
        + quotedStr(texts.formula) + u" as ExpressionsName,"_s + quotedStr(texts.printInfo) + u" as PrintInfo,"_s
        + lifetimeSum(u"TotalFee"_s, prefix, u" TSumTotalFee,"_s)
        + lifetimeSum(u"FreeFee"_s, prefix, u" as TSumFree "_s) + u" from "_s + prefix + u"_CbZyJsb "_s + u" where "_s
        + recordCondition(key);
}

QString settlementFeeFilter(const QString &feeTypeCode)
{
    return u"FeeTypeCode="_s + quotedStr(feeTypeCode);
}

QString settlementCall(int billType, const RecordKey &key)
{
    const QString infix = billType == static_cast<int>(BillType::Archived) ? u"S"_s : QString();
    return u" Pro_Zy_"_s + infix + u"FeeInterFace @OrgCode="_s + quotedStr(key.orgCode) + u",@CoopMedCode="_s
        + quotedStr(key.coopMedCode) + u",@IDNo="_s + quotedStr(key.idNo) + u",@DiagNo="_s + quotedStr(key.diagNo)
        + u",@Type='1',@Info=:Info OutPut "_s;
}

} // namespace data
