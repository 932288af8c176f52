// SPDX-License-Identifier: MIT
// The texts of data/statements/feelist.h, byte for byte.
#include "data/statements/feelist.h"

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

class FeeListStatement : public testing::TestWithParam<Row> { };

TEST_P(FeeListStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"FeeListHeaderCurrentPlain", feeListHeader(u"o"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select HospitalName,CoopMedCode,PatientName,Sex,cast(Age as varchar(100))+AgeUnit as Age,"
     " PatientNo,HouseHolder,convert(varchar(10),InDate,126) as InDate,InHosCount,DoctorName, (select"
     " Address from p_CbNhGrXx where o_CbZyBxDj.CoopMedCode=p_CbNhGrXx.CoopMedCode and"
     " p_CbNhGrXx.isHouseHolder='1') as Address  from o_CbZyBxDj  where OrgCode='4201' and"
     " CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3"},
    {"FeeListItemsCurrentPlain",
     feeListItems(u"o"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}, u"2026-11-01"_s, u"2026-11-20"_s),
     " select a.ItemName,b.Gg,a.Unit,a.Num,a.Price,a.Fee,convert(varchar(10),a.YyDate,126) as YyDate,"
     " (case a.IfPass when '1' then '是' when '2' then '否' end) as IfPass  from o_CbZyBxDjZb a,p_BxXm b"
     "  where a.ItemCode=b.ItemCode    and OrgCode='4201' and CoopMedCode='420106001200'   and IDNo=1 and"
     " DiagNo=3   and convert(varchar(10),YyDate,126) between '2026-11-01' and '2026-11-20' order by"
     " a.YyDate,a.FeeNo "},
    {"FeeListHeaderCurrentQuotesAndChinese",
     feeListHeader(u"o"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select HospitalName,CoopMedCode,PatientName,Sex,cast(Age as varchar(100))+AgeUnit as Age,"
     " PatientNo,HouseHolder,convert(varchar(10),InDate,126) as InDate,InHosCount,DoctorName, (select"
     " Address from p_CbNhGrXx where o_CbZyBxDj.CoopMedCode=p_CbNhGrXx.CoopMedCode and"
     " p_CbNhGrXx.isHouseHolder='1') as Address  from o_CbZyBxDj  where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1"},
    {"FeeListItemsCurrentQuotesAndChinese",
     feeListItems(u"o"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}, u"'11月1日'"_s, u""_s),
     " select a.ItemName,b.Gg,a.Unit,a.Num,a.Price,a.Fee,convert(varchar(10),a.YyDate,126) as YyDate,"
     " (case a.IfPass when '1' then '是' when '2' then '否' end) as IfPass  from o_CbZyBxDjZb a,p_BxXm b"
     "  where a.ItemCode=b.ItemCode    and OrgCode='42''01' and CoopMedCode='合作''证''''7'   and IDNo=002"
     " and DiagNo=-1   and convert(varchar(10),YyDate,126) between '''11月1日''' and '' order by a.YyDate,"
     "a.FeeNo "},
    {"FeeListHeaderArchivedPlain", feeListHeader(u"s"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select HospitalName,CoopMedCode,PatientName,Sex,cast(Age as varchar(100))+AgeUnit as Age,"
     " PatientNo,HouseHolder,convert(varchar(10),InDate,126) as InDate,InHosCount,DoctorName, (select"
     " Address from p_CbNhGrXx where s_CbZyBxDj.CoopMedCode=p_CbNhGrXx.CoopMedCode and"
     " p_CbNhGrXx.isHouseHolder='1') as Address  from s_CbZyBxDj  where OrgCode='4201' and"
     " CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3"},
    {"FeeListItemsArchivedPlain",
     feeListItems(u"s"_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}, u"2026-11-01"_s, u"2026-11-20"_s),
     " select a.ItemName,b.Gg,a.Unit,a.Num,a.Price,a.Fee,convert(varchar(10),a.YyDate,126) as YyDate,"
     " (case a.IfPass when '1' then '是' when '2' then '否' end) as IfPass  from s_CbZyBxDjZb a,p_BxXm b"
     "  where a.ItemCode=b.ItemCode    and OrgCode='4201' and CoopMedCode='420106001200'   and IDNo=1 and"
     " DiagNo=3   and convert(varchar(10),YyDate,126) between '2026-11-01' and '2026-11-20' order by"
     " a.YyDate,a.FeeNo "},
    {"FeeListHeaderArchivedQuotesAndChinese",
     feeListHeader(u"s"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select HospitalName,CoopMedCode,PatientName,Sex,cast(Age as varchar(100))+AgeUnit as Age,"
     " PatientNo,HouseHolder,convert(varchar(10),InDate,126) as InDate,InHosCount,DoctorName, (select"
     " Address from p_CbNhGrXx where s_CbZyBxDj.CoopMedCode=p_CbNhGrXx.CoopMedCode and"
     " p_CbNhGrXx.isHouseHolder='1') as Address  from s_CbZyBxDj  where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1"},
    {"FeeListItemsArchivedQuotesAndChinese",
     feeListItems(u"s"_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}, u"'11月1日'"_s, u""_s),
     " select a.ItemName,b.Gg,a.Unit,a.Num,a.Price,a.Fee,convert(varchar(10),a.YyDate,126) as YyDate,"
     " (case a.IfPass when '1' then '是' when '2' then '否' end) as IfPass  from s_CbZyBxDjZb a,p_BxXm b"
     "  where a.ItemCode=b.ItemCode    and OrgCode='42''01' and CoopMedCode='合作''证''''7'   and IDNo=002"
     " and DiagNo=-1   and convert(varchar(10),YyDate,126) between '''11月1日''' and '' order by a.YyDate,"
     "a.FeeNo "},
    {"FeeListHeaderWithoutPrefixPlain", feeListHeader(u""_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " select HospitalName,CoopMedCode,PatientName,Sex,cast(Age as varchar(100))+AgeUnit as Age,"
     " PatientNo,HouseHolder,convert(varchar(10),InDate,126) as InDate,InHosCount,DoctorName, (select"
     " Address from p_CbNhGrXx where _CbZyBxDj.CoopMedCode=p_CbNhGrXx.CoopMedCode and"
     " p_CbNhGrXx.isHouseHolder='1') as Address  from _CbZyBxDj  where OrgCode='4201' and"
     " CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3"},
    {"FeeListItemsWithoutPrefixPlain",
     feeListItems(u""_s, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}, u"2026-11-01"_s, u"2026-11-20"_s),
     " select a.ItemName,b.Gg,a.Unit,a.Num,a.Price,a.Fee,convert(varchar(10),a.YyDate,126) as YyDate,"
     " (case a.IfPass when '1' then '是' when '2' then '否' end) as IfPass  from _CbZyBxDjZb a,p_BxXm b"
     "  where a.ItemCode=b.ItemCode    and OrgCode='4201' and CoopMedCode='420106001200'   and IDNo=1 and"
     " DiagNo=3   and convert(varchar(10),YyDate,126) between '2026-11-01' and '2026-11-20' order by"
     " a.YyDate,a.FeeNo "},
    {"FeeListHeaderWithoutPrefixQuotesAndChinese",
     feeListHeader(u""_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " select HospitalName,CoopMedCode,PatientName,Sex,cast(Age as varchar(100))+AgeUnit as Age,"
     " PatientNo,HouseHolder,convert(varchar(10),InDate,126) as InDate,InHosCount,DoctorName, (select"
     " Address from p_CbNhGrXx where _CbZyBxDj.CoopMedCode=p_CbNhGrXx.CoopMedCode and"
     " p_CbNhGrXx.isHouseHolder='1') as Address  from _CbZyBxDj  where OrgCode='42''01' and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1"},
    {"FeeListItemsWithoutPrefixQuotesAndChinese",
     feeListItems(u""_s, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}, u"'11月1日'"_s, u""_s),
     " select a.ItemName,b.Gg,a.Unit,a.Num,a.Price,a.Fee,convert(varchar(10),a.YyDate,126) as YyDate,"
     " (case a.IfPass when '1' then '是' when '2' then '否' end) as IfPass  from _CbZyBxDjZb a,p_BxXm b"
     "  where a.ItemCode=b.ItemCode    and OrgCode='42''01' and CoopMedCode='合作''证''''7'   and IDNo=002"
     " and DiagNo=-1   and convert(varchar(10),YyDate,126) between '''11月1日''' and '' order by a.YyDate,"
     "a.FeeNo "},
};

INSTANTIATE_TEST_SUITE_P(Texts, FeeListStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
