// SPDX-License-Identifier: MIT
// The texts of data/statements/history.h, byte for byte.
#include "data/statements/history.h"

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

class HistoryStatement : public testing::TestWithParam<Row> { };

TEST_P(HistoryStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"HistoryBillsPlain", historyBills(u"4201"_s, u"4201"_s),
     " select * from (  select a.BillCode,a.BillName,a.BillNo,convert(varchar(10),WriteDate,126) as"
     " WriteDate,CheckStatus,1 as Type,  a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee  from o_CbZyZdb a,"
     "o_CbZyBxDj b  where a.BillCode=b.BillCode and a.BillNo=b.BillNo    and a.BillCode='4201' group by"
     " a.BillCode,a.BillName,a.BillNo,a.WriteDate,CheckStatus,a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee"
     "  union all  select a.BillCode,a.BillName,a.BillNo,convert(varchar(10),WriteDate,126) as WriteDate,"
     "CheckStatus,2 as Type,  a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee  from s_CbZyZdb a,s_CbZyBxDj b"
     "  where a.BillCode=b.BillCode and a.BillNo=b.BillNo    and a.BillCode='4201' group by a.BillCode,"
     "a.BillName,a.BillNo,a.WriteDate,CheckStatus,a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee ) a order by"
     " a.BillCode,a.BillNo desc "},
    {"HistoryBillsEachHalfWithItsCode", historyBills(u"42'01"_s, u"院'"_s),
     " select * from (  select a.BillCode,a.BillName,a.BillNo,convert(varchar(10),WriteDate,126) as"
     " WriteDate,CheckStatus,1 as Type,  a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee  from o_CbZyZdb a,"
     "o_CbZyBxDj b  where a.BillCode=b.BillCode and a.BillNo=b.BillNo    and a.BillCode='42''01' group by"
     " a.BillCode,a.BillName,a.BillNo,a.WriteDate,CheckStatus,a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee"
     "  union all  select a.BillCode,a.BillName,a.BillNo,convert(varchar(10),WriteDate,126) as WriteDate,"
     "CheckStatus,2 as Type,  a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee  from s_CbZyZdb a,s_CbZyBxDj b"
     "  where a.BillCode=b.BillCode and a.BillNo=b.BillNo    and a.BillCode='院''' group by a.BillCode,"
     "a.BillName,a.BillNo,a.WriteDate,CheckStatus,a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee ) a order by"
     " a.BillCode,a.BillNo desc "},
    {"HistoryBillsEmpty", historyBills(u""_s, u""_s),
     " select * from (  select a.BillCode,a.BillName,a.BillNo,convert(varchar(10),WriteDate,126) as"
     " WriteDate,CheckStatus,1 as Type,  a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee  from o_CbZyZdb a,"
     "o_CbZyBxDj b  where a.BillCode=b.BillCode and a.BillNo=b.BillNo    and a.BillCode='' group by"
     " a.BillCode,a.BillName,a.BillNo,a.WriteDate,CheckStatus,a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee"
     "  union all  select a.BillCode,a.BillName,a.BillNo,convert(varchar(10),WriteDate,126) as WriteDate,"
     "CheckStatus,2 as Type,  a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee  from s_CbZyZdb a,s_CbZyBxDj b"
     "  where a.BillCode=b.BillCode and a.BillNo=b.BillNo    and a.BillCode='' group by a.BillCode,"
     "a.BillName,a.BillNo,a.WriteDate,CheckStatus,a.Fee,a.CanFreeFee,a.CheckFee1,a.CheckFee ) a order by"
     " a.BillCode,a.BillNo desc "},
    {"HistoryRecordsOfType1Plain", historyRecords(u"1"_s, BillKey{u"4201"_s, u"17"_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName,  (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName,ExpressionsID,LimitDef from o_CbZyBxDj where BillCode='4201' and BillNo=17"
     " order by OutDate "},
    {"HistoryRecordsOfType1QuotesAndChinese", historyRecords(u"1"_s, BillKey{u"院'"_s, u"5 "_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName,  (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName,ExpressionsID,LimitDef from o_CbZyBxDj where BillCode='院''' and BillNo=5"
     "  order by OutDate "},
    {"HistoryRecordsOfType2Plain", historyRecords(u"2"_s, BillKey{u"4201"_s, u"17"_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName,  (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName,ExpressionsID,LimitDef from s_CbZyBxDj where BillCode='4201' and BillNo=17"
     " order by OutDate "},
    {"HistoryRecordsOfType2QuotesAndChinese", historyRecords(u"2"_s, BillKey{u"院'"_s, u"5 "_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName,  (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName,ExpressionsID,LimitDef from s_CbZyBxDj where BillCode='院''' and BillNo=5"
     "  order by OutDate "},
    {"HistoryRecordsOfTypeUnknownPlain", historyRecords(u""_s, BillKey{u"4201"_s, u"17"_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName,  (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName,ExpressionsID,LimitDef from s_CbZyBxDj where BillCode='4201' and BillNo=17"
     " order by OutDate "},
    {"HistoryRecordsOfTypeUnknownQuotesAndChinese", historyRecords(u""_s, BillKey{u"院'"_s, u"5 "_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName,  (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName,ExpressionsID,LimitDef from s_CbZyBxDj where BillCode='院''' and BillNo=5"
     "  order by OutDate "},
};

INSTANTIATE_TEST_SUITE_P(Texts, HistoryStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
