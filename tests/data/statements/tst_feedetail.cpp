// SPDX-License-Identifier: MIT
// The texts of data/statements/feedetail.h, byte for byte.
#include "data/statements/feedetail.h"

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

class FeeDetailStatement : public testing::TestWithParam<Row> { };

TEST_P(FeeDetailStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"FeeTypesPlain", feeTypes(RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select FeeTypeCode,FeeTypeName,sum(Fee) as Fee  from o_CbZyBxDjZb  where OrgCode='4201' and"
     " CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3 group by FeeTypeCode,FeeTypeName  order by"
     " FeeTypeCode "},
    {"FeeTypesQuotesAndChinese", feeTypes(RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select FeeTypeCode,FeeTypeName,sum(Fee) as Fee  from o_CbZyBxDjZb  where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1 group by FeeTypeCode,FeeTypeName  order by"
     " FeeTypeCode "},
    {"FeeTypesEmpty", feeTypes(RecordKey{u""_s, u""_s, u""_s, u""_s}),
     " select FeeTypeCode,FeeTypeName,sum(Fee) as Fee  from o_CbZyBxDjZb  where OrgCode='' and"
     " CoopMedCode=''   and IDNo= and DiagNo= group by FeeTypeCode,FeeTypeName  order by FeeTypeCode "},
    {"FeeItemsPlain", feeItems(RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit, Str(a.Price,15,4) as"
     " Price,Str(a.Num,15,4) as Num, Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as CanFreeFee,"
     "a.FeeTypeCode, convert(varchar(10),a.YyDate,126) as YyDate,convert(varchar(10),a.InputDate,126) as"
     " InputDate, (case isnull(c.Status,'') when '' then 2 else 1 end) as IsTp  from o_CbZyBxDjZb a left"
     " join o_CbZyBxTpb c on a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode"
     "                                             and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo"
     "                                             and a.ItemCode=c.ItemCode and c.Status='3'   where"
     " a.OrgCode='4201' and a.CoopMedCode='420106001200'   and a.IDNo=1 and a.DiagNo=3 order by a.FeeNo "},
    {"FeeItemsQuotesAndChinese", feeItems(RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit, Str(a.Price,15,4) as"
     " Price,Str(a.Num,15,4) as Num, Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as CanFreeFee,"
     "a.FeeTypeCode, convert(varchar(10),a.YyDate,126) as YyDate,convert(varchar(10),a.InputDate,126) as"
     " InputDate, (case isnull(c.Status,'') when '' then 2 else 1 end) as IsTp  from o_CbZyBxDjZb a left"
     " join o_CbZyBxTpb c on a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode"
     "                                             and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo"
     "                                             and a.ItemCode=c.ItemCode and c.Status='3'   where"
     " a.OrgCode='42''01' and a.CoopMedCode='合作''证''''7'   and a.IDNo=002 and a.DiagNo=-1 order by"
     " a.FeeNo "},
    {"FeeItemsEmpty", feeItems(RecordKey{u""_s, u""_s, u""_s, u""_s}),
     " select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit, Str(a.Price,15,4) as"
     " Price,Str(a.Num,15,4) as Num, Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as CanFreeFee,"
     "a.FeeTypeCode, convert(varchar(10),a.YyDate,126) as YyDate,convert(varchar(10),a.InputDate,126) as"
     " InputDate, (case isnull(c.Status,'') when '' then 2 else 1 end) as IsTp  from o_CbZyBxDjZb a left"
     " join o_CbZyBxTpb c on a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode"
     "                                             and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo"
     "                                             and a.ItemCode=c.ItemCode and c.Status='3'   where"
     " a.OrgCode='' and a.CoopMedCode=''   and a.IDNo= and a.DiagNo= order by a.FeeNo "},
    {"HistoryFeeTypesOfType1Plain", historyFeeTypes(u"1"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select FeeTypeCode,FeeTypeName,sum(Fee) as Fee  from  o_CbZyBxDjZb where OrgCode='4201' and"
     " CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3 group by FeeTypeCode,FeeTypeName  order by"
     " FeeTypeCode "},
    {"HistoryFeeTypesOfType1QuotesAndChinese",
     historyFeeTypes(u"1"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select FeeTypeCode,FeeTypeName,sum(Fee) as Fee  from  o_CbZyBxDjZb where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1 group by FeeTypeCode,FeeTypeName  order by"
     " FeeTypeCode "},
    {"HistoryFeeItemsOfType1Plain", historyFeeItems(u"1"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit, Str(a.Price,15,4) as"
     " Price,Str(a.Num,15,4) as Num, Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as CanFreeFee,"
     " Str(a.KnockOffFee1,15,4) as OneFee,Str(a.KnockOffFee,15,4) as TwoFee,a.FeeTypeCode,"
     " convert(varchar(10),a.YyDate,126) as YyDate,convert(varchar(10),a.InputDate,126) as InputDate,"
     " (case isnull(c.Status,'') when '' then 2 else 1 end) as IsTp  from  o_CbZyBxDjZb a left join"
     "  o_CbZyBxTpb c on a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode"
     "                                             and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo"
     "                                             and a.ItemCode=c.ItemCode and c.Status='3'   where"
     " a.OrgCode='4201' and a.CoopMedCode='420106001200'   and a.IDNo=1 and a.DiagNo=3 order by a.FeeNo "},
    {"HistoryFeeItemsOfType1QuotesAndChinese",
     historyFeeItems(u"1"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit, Str(a.Price,15,4) as"
     " Price,Str(a.Num,15,4) as Num, Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as CanFreeFee,"
     " Str(a.KnockOffFee1,15,4) as OneFee,Str(a.KnockOffFee,15,4) as TwoFee,a.FeeTypeCode,"
     " convert(varchar(10),a.YyDate,126) as YyDate,convert(varchar(10),a.InputDate,126) as InputDate,"
     " (case isnull(c.Status,'') when '' then 2 else 1 end) as IsTp  from  o_CbZyBxDjZb a left join"
     "  o_CbZyBxTpb c on a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode"
     "                                             and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo"
     "                                             and a.ItemCode=c.ItemCode and c.Status='3'   where"
     " a.OrgCode='42''01' and a.CoopMedCode='合作''证''''7'   and a.IDNo=002 and a.DiagNo=-1 order by"
     " a.FeeNo "},
    {"HistoryFeeTypesOfType2Plain", historyFeeTypes(u"2"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select FeeTypeCode,FeeTypeName,sum(Fee) as Fee  from  s_CbZyBxDjZb where OrgCode='4201' and"
     " CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3 group by FeeTypeCode,FeeTypeName  order by"
     " FeeTypeCode "},
    {"HistoryFeeTypesOfType2QuotesAndChinese",
     historyFeeTypes(u"2"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select FeeTypeCode,FeeTypeName,sum(Fee) as Fee  from  s_CbZyBxDjZb where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1 group by FeeTypeCode,FeeTypeName  order by"
     " FeeTypeCode "},
    {"HistoryFeeItemsOfType2Plain", historyFeeItems(u"2"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit, Str(a.Price,15,4) as"
     " Price,Str(a.Num,15,4) as Num, Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as CanFreeFee,"
     " Str(a.KnockOffFee1,15,4) as OneFee,Str(a.KnockOffFee,15,4) as TwoFee,a.FeeTypeCode,"
     " convert(varchar(10),a.YyDate,126) as YyDate,convert(varchar(10),a.InputDate,126) as InputDate,"
     " (case isnull(c.Status,'') when '' then 2 else 1 end) as IsTp  from  s_CbZyBxDjZb a left join"
     "  s_CbZyBxTpb c on a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode"
     "                                             and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo"
     "                                             and a.ItemCode=c.ItemCode and c.Status='3'   where"
     " a.OrgCode='4201' and a.CoopMedCode='420106001200'   and a.IDNo=1 and a.DiagNo=3 order by a.FeeNo "},
    {"HistoryFeeItemsOfType2QuotesAndChinese",
     historyFeeItems(u"2"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit, Str(a.Price,15,4) as"
     " Price,Str(a.Num,15,4) as Num, Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as CanFreeFee,"
     " Str(a.KnockOffFee1,15,4) as OneFee,Str(a.KnockOffFee,15,4) as TwoFee,a.FeeTypeCode,"
     " convert(varchar(10),a.YyDate,126) as YyDate,convert(varchar(10),a.InputDate,126) as InputDate,"
     " (case isnull(c.Status,'') when '' then 2 else 1 end) as IsTp  from  s_CbZyBxDjZb a left join"
     "  s_CbZyBxTpb c on a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode"
     "                                             and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo"
     "                                             and a.ItemCode=c.ItemCode and c.Status='3'   where"
     " a.OrgCode='42''01' and a.CoopMedCode='合作''证''''7'   and a.IDNo=002 and a.DiagNo=-1 order by"
     " a.FeeNo "},
    {"HistoryFeeTypesOfType3Plain", historyFeeTypes(u"3"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select FeeTypeCode,FeeTypeName,sum(Fee) as Fee  from _CbZyBxDjZb where OrgCode='4201' and"
     " CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3 group by FeeTypeCode,FeeTypeName  order by"
     " FeeTypeCode "},
    {"HistoryFeeTypesOfType3QuotesAndChinese",
     historyFeeTypes(u"3"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select FeeTypeCode,FeeTypeName,sum(Fee) as Fee  from _CbZyBxDjZb where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1 group by FeeTypeCode,FeeTypeName  order by"
     " FeeTypeCode "},
    {"HistoryFeeItemsOfType3Plain", historyFeeItems(u"3"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit, Str(a.Price,15,4) as"
     " Price,Str(a.Num,15,4) as Num, Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as CanFreeFee,"
     " Str(a.KnockOffFee1,15,4) as OneFee,Str(a.KnockOffFee,15,4) as TwoFee,a.FeeTypeCode,"
     " convert(varchar(10),a.YyDate,126) as YyDate,convert(varchar(10),a.InputDate,126) as InputDate,"
     " (case isnull(c.Status,'') when '' then 2 else 1 end) as IsTp  from _CbZyBxDjZb a left join"
     " _CbZyBxTpb c on a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode"
     "                                             and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo"
     "                                             and a.ItemCode=c.ItemCode and c.Status='3'   where"
     " a.OrgCode='4201' and a.CoopMedCode='420106001200'   and a.IDNo=1 and a.DiagNo=3 order by a.FeeNo "},
    {"HistoryFeeItemsOfType3QuotesAndChinese",
     historyFeeItems(u"3"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select Str(a.FeeNo,15,4) as FeeNo,a.ItemCode,a.ItemName,a.IfPass,a.Unit, Str(a.Price,15,4) as"
     " Price,Str(a.Num,15,4) as Num, Str(a.Fee,15,4) as Fee,Str(a.CanFreeFee,15,4) as CanFreeFee,"
     " Str(a.KnockOffFee1,15,4) as OneFee,Str(a.KnockOffFee,15,4) as TwoFee,a.FeeTypeCode,"
     " convert(varchar(10),a.YyDate,126) as YyDate,convert(varchar(10),a.InputDate,126) as InputDate,"
     " (case isnull(c.Status,'') when '' then 2 else 1 end) as IsTp  from _CbZyBxDjZb a left join"
     " _CbZyBxTpb c on a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode"
     "                                             and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo"
     "                                             and a.ItemCode=c.ItemCode and c.Status='3'   where"
     " a.OrgCode='42''01' and a.CoopMedCode='合作''证''''7'   and a.IDNo=002 and a.DiagNo=-1 order by"
     " a.FeeNo "},
    {"FeeTypeFilterPlain", feeTypeFilter(u"01"_s), " FeeTypeCode='01'"},
    {"FeeTypeFilterQuotesAndChinese", feeTypeFilter(u"西'药"_s), " FeeTypeCode='西''药'"},
    {"FeeTypeFilterEmpty", feeTypeFilter(u""_s), " FeeTypeCode=''"},
    {"CompensableFilter", compensableFilter(), " IfPass = '1' "},
    {"NotCompensableFilter", notCompensableFilter(), " IfPass = '2' "},
};

INSTANTIATE_TEST_SUITE_P(Texts, FeeDetailStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
