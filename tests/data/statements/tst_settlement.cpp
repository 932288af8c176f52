// SPDX-License-Identifier: MIT
// The texts of data/statements/settlement.h, byte for byte.
#include "data/statements/settlement.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::Literals::StringLiterals;
using namespace data;

namespace {

struct Row {
    const char *name;
    QString built;
    const char *expected; ///< UTF-8
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

class SettlementStatement : public testing::TestWithParam<Row> { };

TEST_P(SettlementStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"HomePropertyPlain", homeProperty(u"420106001200"_s, u"1"_s),
     " select HomeProperty from p_CbNhGrXx  where CoopMedCode='420106001200' and IDNo=1"},
    {"HomePropertyQuotesAndChinese", homeProperty(u"合作'证''7"_s, u"002"_s),
     " select HomeProperty from p_CbNhGrXx  where CoopMedCode='合作''证''''7' and IDNo=002"},
    {"HomePropertyEmpty", homeProperty(u""_s, u""_s),
     " select HomeProperty from p_CbNhGrXx  where CoopMedCode='' and IDNo="},
    {"HomeProperties", homeProperties(), " select PropertyCode,PropertyName from p_HomeProperty "},
    {"FormulaNamePlain", formulaName(u"4201"_s), " select ExpressionsName from p_ZyBxGs where ExpressionsId = '4201'"},
    {"FormulaNameQuotesAndChinese", formulaName(u"院'"_s),
     " select ExpressionsName from p_ZyBxGs where ExpressionsId = '院'''"},
    {"FormulaNameEmpty", formulaName(u""_s), " select ExpressionsName from p_ZyBxGs where ExpressionsId = ''"},
    {"SettlementSheetCurrentPlain",
     settlementSheet(u"o"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}, u"一般农户"_s),
     " select CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,convert(varchar(10),BirthDay,126) as"
     " BirthDay, RelationName,Address,convert(varchar(10),InDate,126) as InDate,convert(varchar(10),"
     "OutDate,126) as OutDate, DayCount,PatientNo,IllName,InHosCount,Fee,CanFreeFee,FreeFee,MzFee,HosFee,"
     "'一般农户' as HomeProperty  from o_CbZyJsb  where OrgCode='4201' and CoopMedCode='420106001200'"
     "   and IDNo=1 and DiagNo=3"},
    {"SettlementFeesCurrentPlain", settlementFees(u"o"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select FeeTypeCode,Fee,CanFreeFee,FreeFee  from o_CbZyJsMxb  where OrgCode='4201' and"
     " CoopMedCode='420106001200'   and IDNO=1 and DiagNo=3"},
    {"ApprovalFormCurrentPlain",
     approvalForm(u"o"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s},
                  {u"限额500"_s, u"普通公式"_s, u"补偿说明"_s}),
     " select CoopMedCode,PatientName,HouseHolder,Sex,convert(varchar(10),BirthDay,126) as BirthDay,"
     "  RelationName,Address,HospitalName,InHosCount,convert(varchar(10),InDate,126) as InDate,"
     "  convert(varchar(10),OutDate,126) as OutDate,DayCount,PatientNo,'限额500' as LimitDef, IllName,Fee,"
     "CanFreeFee,FreeFee,MzFee,HosFee,'普通公式' as ExpressionsName,'补偿说明' as PrintInfo, (select"
     " sum(TotalFee)   from (select sum(TotalFee) TotalFee from o_CbZyBxDj a         where"
     " a.CoopMedCode=o_CbZyJsb.CoopMedCode and a.IDNo=o_CbZyJsb.IDNo         union all         select"
     " sum(TotalFee) from s_CbZyBxDj a         where a.CoopMedCode=o_CbZyJsb.CoopMedCode and"
     " a.IDNo=o_CbZyJsb.IDNo ) a) TSumTotalFee, (select sum(FreeFee)   from (select sum(FreeFee) FreeFee"
     " from o_CbZyBxDj a         where a.CoopMedCode=o_CbZyJsb.CoopMedCode and a.IDNo=o_CbZyJsb.IDNo"
     "         union all         select sum(FreeFee) from s_CbZyBxDj a         where"
     " a.CoopMedCode=o_CbZyJsb.CoopMedCode and a.IDNo=o_CbZyJsb.IDNo ) a) as TSumFree  from o_CbZyJsb"
     "  where OrgCode='4201' and CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3"},
    {"SettlementSheetCurrentQuotesAndChinese",
     settlementSheet(u"o"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}, u"五保户'/低保户"_s),
     " select CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,convert(varchar(10),BirthDay,126) as"
     " BirthDay, RelationName,Address,convert(varchar(10),InDate,126) as InDate,convert(varchar(10),"
     "OutDate,126) as OutDate, DayCount,PatientNo,IllName,InHosCount,Fee,CanFreeFee,FreeFee,MzFee,HosFee,"
     "'五保户''/低保户' as HomeProperty  from o_CbZyJsb  where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1"},
    {"SettlementFeesCurrentQuotesAndChinese",
     settlementFees(u"o"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select FeeTypeCode,Fee,CanFreeFee,FreeFee  from o_CbZyJsMxb  where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNO=002 and DiagNo=-1"},
    {"ApprovalFormCurrentQuotesAndChinese",
     approvalForm(u"o"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s},
                  {u"不'限"_s, u"公式'一'"_s, u"'"_s}),
     " select CoopMedCode,PatientName,HouseHolder,Sex,convert(varchar(10),BirthDay,126) as BirthDay,"
     "  RelationName,Address,HospitalName,InHosCount,convert(varchar(10),InDate,126) as InDate,"
     "  convert(varchar(10),OutDate,126) as OutDate,DayCount,PatientNo,'不''限' as LimitDef, IllName,Fee,"
     "CanFreeFee,FreeFee,MzFee,HosFee,'公式''一''' as ExpressionsName,'''' as PrintInfo, (select"
     " sum(TotalFee)   from (select sum(TotalFee) TotalFee from o_CbZyBxDj a         where"
     " a.CoopMedCode=o_CbZyJsb.CoopMedCode and a.IDNo=o_CbZyJsb.IDNo         union all         select"
     " sum(TotalFee) from s_CbZyBxDj a         where a.CoopMedCode=o_CbZyJsb.CoopMedCode and"
     " a.IDNo=o_CbZyJsb.IDNo ) a) TSumTotalFee, (select sum(FreeFee)   from (select sum(FreeFee) FreeFee"
     " from o_CbZyBxDj a         where a.CoopMedCode=o_CbZyJsb.CoopMedCode and a.IDNo=o_CbZyJsb.IDNo"
     "         union all         select sum(FreeFee) from s_CbZyBxDj a         where"
     " a.CoopMedCode=o_CbZyJsb.CoopMedCode and a.IDNo=o_CbZyJsb.IDNo ) a) as TSumFree  from o_CbZyJsb"
     "  where OrgCode='42''01' and CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1"},
    {"SettlementSheetArchivedPlain",
     settlementSheet(u"s"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}, u"一般农户"_s),
     " select CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,convert(varchar(10),BirthDay,126) as"
     " BirthDay, RelationName,Address,convert(varchar(10),InDate,126) as InDate,convert(varchar(10),"
     "OutDate,126) as OutDate, DayCount,PatientNo,IllName,InHosCount,Fee,CanFreeFee,FreeFee,MzFee,HosFee,"
     "'一般农户' as HomeProperty  from s_CbZyJsb  where OrgCode='4201' and CoopMedCode='420106001200'"
     "   and IDNo=1 and DiagNo=3"},
    {"SettlementFeesArchivedPlain", settlementFees(u"s"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select FeeTypeCode,Fee,CanFreeFee,FreeFee  from s_CbZyJsMxb  where OrgCode='4201' and"
     " CoopMedCode='420106001200'   and IDNO=1 and DiagNo=3"},
    {"ApprovalFormArchivedPlain",
     approvalForm(u"s"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s},
                  {u"限额500"_s, u"普通公式"_s, u"补偿说明"_s}),
     " select CoopMedCode,PatientName,HouseHolder,Sex,convert(varchar(10),BirthDay,126) as BirthDay,"
     "  RelationName,Address,HospitalName,InHosCount,convert(varchar(10),InDate,126) as InDate,"
     "  convert(varchar(10),OutDate,126) as OutDate,DayCount,PatientNo,'限额500' as LimitDef, IllName,Fee,"
     "CanFreeFee,FreeFee,MzFee,HosFee,'普通公式' as ExpressionsName,'补偿说明' as PrintInfo, (select"
     " sum(TotalFee)   from (select sum(TotalFee) TotalFee from o_CbZyBxDj a         where"
     " a.CoopMedCode=s_CbZyJsb.CoopMedCode and a.IDNo=s_CbZyJsb.IDNo         union all         select"
     " sum(TotalFee) from s_CbZyBxDj a         where a.CoopMedCode=s_CbZyJsb.CoopMedCode and"
     " a.IDNo=s_CbZyJsb.IDNo ) a) TSumTotalFee, (select sum(FreeFee)   from (select sum(FreeFee) FreeFee"
     " from o_CbZyBxDj a         where a.CoopMedCode=s_CbZyJsb.CoopMedCode and a.IDNo=s_CbZyJsb.IDNo"
     "         union all         select sum(FreeFee) from s_CbZyBxDj a         where"
     " a.CoopMedCode=s_CbZyJsb.CoopMedCode and a.IDNo=s_CbZyJsb.IDNo ) a) as TSumFree  from s_CbZyJsb"
     "  where OrgCode='4201' and CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3"},
    {"SettlementSheetArchivedQuotesAndChinese",
     settlementSheet(u"s"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}, u"五保户'/低保户"_s),
     " select CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,convert(varchar(10),BirthDay,126) as"
     " BirthDay, RelationName,Address,convert(varchar(10),InDate,126) as InDate,convert(varchar(10),"
     "OutDate,126) as OutDate, DayCount,PatientNo,IllName,InHosCount,Fee,CanFreeFee,FreeFee,MzFee,HosFee,"
     "'五保户''/低保户' as HomeProperty  from s_CbZyJsb  where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1"},
    {"SettlementFeesArchivedQuotesAndChinese",
     settlementFees(u"s"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select FeeTypeCode,Fee,CanFreeFee,FreeFee  from s_CbZyJsMxb  where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNO=002 and DiagNo=-1"},
    {"ApprovalFormArchivedQuotesAndChinese",
     approvalForm(u"s"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s},
                  {u"不'限"_s, u"公式'一'"_s, u"'"_s}),
     " select CoopMedCode,PatientName,HouseHolder,Sex,convert(varchar(10),BirthDay,126) as BirthDay,"
     "  RelationName,Address,HospitalName,InHosCount,convert(varchar(10),InDate,126) as InDate,"
     "  convert(varchar(10),OutDate,126) as OutDate,DayCount,PatientNo,'不''限' as LimitDef, IllName,Fee,"
     "CanFreeFee,FreeFee,MzFee,HosFee,'公式''一''' as ExpressionsName,'''' as PrintInfo, (select"
     " sum(TotalFee)   from (select sum(TotalFee) TotalFee from o_CbZyBxDj a         where"
     " a.CoopMedCode=s_CbZyJsb.CoopMedCode and a.IDNo=s_CbZyJsb.IDNo         union all         select"
     " sum(TotalFee) from s_CbZyBxDj a         where a.CoopMedCode=s_CbZyJsb.CoopMedCode and"
     " a.IDNo=s_CbZyJsb.IDNo ) a) TSumTotalFee, (select sum(FreeFee)   from (select sum(FreeFee) FreeFee"
     " from o_CbZyBxDj a         where a.CoopMedCode=s_CbZyJsb.CoopMedCode and a.IDNo=s_CbZyJsb.IDNo"
     "         union all         select sum(FreeFee) from s_CbZyBxDj a         where"
     " a.CoopMedCode=s_CbZyJsb.CoopMedCode and a.IDNo=s_CbZyJsb.IDNo ) a) as TSumFree  from s_CbZyJsb"
     "  where OrgCode='42''01' and CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1"},
    {"SettlementSheetWithoutPrefixPlain",
     settlementSheet(u""_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}, u"一般农户"_s),
     " select CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,convert(varchar(10),BirthDay,126) as"
     " BirthDay, RelationName,Address,convert(varchar(10),InDate,126) as InDate,convert(varchar(10),"
     "OutDate,126) as OutDate, DayCount,PatientNo,IllName,InHosCount,Fee,CanFreeFee,FreeFee,MzFee,HosFee,"
     "'一般农户' as HomeProperty  from _CbZyJsb  where OrgCode='4201' and CoopMedCode='420106001200'   and"
     " IDNo=1 and DiagNo=3"},
    {"SettlementFeesWithoutPrefixPlain", settlementFees(u""_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select FeeTypeCode,Fee,CanFreeFee,FreeFee  from _CbZyJsMxb  where OrgCode='4201' and"
     " CoopMedCode='420106001200'   and IDNO=1 and DiagNo=3"},
    {"SettlementSheetWithoutPrefixQuotesAndChinese",
     settlementSheet(u""_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}, u"五保户'/低保户"_s),
     " select CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,convert(varchar(10),BirthDay,126) as"
     " BirthDay, RelationName,Address,convert(varchar(10),InDate,126) as InDate,convert(varchar(10),"
     "OutDate,126) as OutDate, DayCount,PatientNo,IllName,InHosCount,Fee,CanFreeFee,FreeFee,MzFee,HosFee,"
     "'五保户''/低保户' as HomeProperty  from _CbZyJsb  where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1"},
    {"SettlementFeesWithoutPrefixQuotesAndChinese",
     settlementFees(u""_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select FeeTypeCode,Fee,CanFreeFee,FreeFee  from _CbZyJsMxb  where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNO=002 and DiagNo=-1"},
    {"SheetFeeTypesLen", sheetFeeTypes(lengthFunction(1)),
     " select FeeTypeCode,FeeTypeName from p_fylb where len(feetypecode)=2 order by FeeTypeCode "},
    {"SheetFeeTypesLength", sheetFeeTypes(lengthFunction(2)),
     " select FeeTypeCode,FeeTypeName from p_fylb where length(feetypecode)=2 order by FeeTypeCode "},
    {"FormFeeTypesLen", formFeeTypes(lengthFunction(1)),
     " select FeeTypeCode,FeeTypeName from p_Fylb where Len(FeeTypeCode)=2 order by FeeTypeCode "},
    {"FormFeeTypesLength", formFeeTypes(lengthFunction(0)),
     " select FeeTypeCode,FeeTypeName from p_Fylb where Length(FeeTypeCode)=2 order by FeeTypeCode "},
    {"SettlementFeeFilterPlain", settlementFeeFilter(u"01"_s), "FeeTypeCode='01'"},
    {"SettlementFeeFilterQuotesAndChinese", settlementFeeFilter(u"'药'"_s), "FeeTypeCode='''药'''"},
    {"SettlementCallOfType1Plain", settlementCall(1, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " Pro_Zy_FeeInterFace @OrgCode='4201',@CoopMedCode='420106001200',@IDNo='1',@DiagNo='3',@Type='1',"
     "@Info=:Info OutPut "},
    {"SettlementCallOfType1QuotesAndChinese",
     settlementCall(1, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " Pro_Zy_FeeInterFace @OrgCode='42''01',@CoopMedCode='合作''证''''7',@IDNo='002',@DiagNo='-1',"
     "@Type='1',@Info=:Info OutPut "},
    {"SettlementCallOfType2Plain", settlementCall(2, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " Pro_Zy_SFeeInterFace @OrgCode='4201',@CoopMedCode='420106001200',@IDNo='1',@DiagNo='3',@Type='1',"
     "@Info=:Info OutPut "},
    {"SettlementCallOfType2QuotesAndChinese",
     settlementCall(2, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " Pro_Zy_SFeeInterFace @OrgCode='42''01',@CoopMedCode='合作''证''''7',@IDNo='002',@DiagNo='-1',"
     "@Type='1',@Info=:Info OutPut "},
    {"SettlementCallOfType3Plain", settlementCall(3, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " Pro_Zy_FeeInterFace @OrgCode='4201',@CoopMedCode='420106001200',@IDNo='1',@DiagNo='3',@Type='1',"
     "@Info=:Info OutPut "},
    {"SettlementCallOfType3QuotesAndChinese",
     settlementCall(3, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " Pro_Zy_FeeInterFace @OrgCode='42''01',@CoopMedCode='合作''证''''7',@IDNo='002',@DiagNo='-1',"
     "@Type='1',@Info=:Info OutPut "},
};

INSTANTIATE_TEST_SUITE_P(Texts, SettlementStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
