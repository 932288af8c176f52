// SPDX-License-Identifier: MIT
// The texts of data/statements/unbilled.h, byte for byte.
#include "data/statements/unbilled.h"

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

class UnbilledStatement : public testing::TestWithParam<Row> { };

TEST_P(UnbilledStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"UnbilledRecordsPlain", unbilledRecords(u"4201"_s),
     " select CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder, Sex,cast(Age as"
     " varchar(100))+AgeUnit as Age,convert(varchar(10),InDate,126) as InDate, convert(varchar(10),"
     "OutDate,126) as OutDate,IllCode,IllName, Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as"
     " CanFreeFee, Str(FreeFee,15,2) as FreeFee,DoctorName,InputerCode,InputerName,InterfaceIn, (case when"
     " OutDate is null then '1' else '2' end ) as IfZy, (case InDate when convert(varchar(10),getdate(),"
     "126) then '1' else '0' end) as IfInToday, (case OutDate when convert(varchar(10),getdate(),126) then"
     " '1' else '0' end) as IfOutToday, (case ExpenseKind when '21' then '普通住院' when '22' then"
     " '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他' end)"
     " as ExpenseName from o_CbZyBxDj  where OrgCode='4201' and BillNo is null  order by OutDate desc,"
     "InDate desc "},
    {"UnbilledRecordsQuotesAndChinese", unbilledRecords(u"42'01"_s),
     " select CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder, Sex,cast(Age as"
     " varchar(100))+AgeUnit as Age,convert(varchar(10),InDate,126) as InDate, convert(varchar(10),"
     "OutDate,126) as OutDate,IllCode,IllName, Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as"
     " CanFreeFee, Str(FreeFee,15,2) as FreeFee,DoctorName,InputerCode,InputerName,InterfaceIn, (case when"
     " OutDate is null then '1' else '2' end ) as IfZy, (case InDate when convert(varchar(10),getdate(),"
     "126) then '1' else '0' end) as IfInToday, (case OutDate when convert(varchar(10),getdate(),126) then"
     " '1' else '0' end) as IfOutToday, (case ExpenseKind when '21' then '普通住院' when '22' then"
     " '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他' end)"
     " as ExpenseName from o_CbZyBxDj  where OrgCode='42''01' and BillNo is null  order by OutDate desc,"
     "InDate desc "},
    {"UnbilledRecordsEmpty", unbilledRecords(u""_s),
     " select CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder, Sex,cast(Age as"
     " varchar(100))+AgeUnit as Age,convert(varchar(10),InDate,126) as InDate, convert(varchar(10),"
     "OutDate,126) as OutDate,IllCode,IllName, Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as"
     " CanFreeFee, Str(FreeFee,15,2) as FreeFee,DoctorName,InputerCode,InputerName,InterfaceIn, (case when"
     " OutDate is null then '1' else '2' end ) as IfZy, (case InDate when convert(varchar(10),getdate(),"
     "126) then '1' else '0' end) as IfInToday, (case OutDate when convert(varchar(10),getdate(),126) then"
     " '1' else '0' end) as IfOutToday, (case ExpenseKind when '21' then '普通住院' when '22' then"
     " '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他' end)"
     " as ExpenseName from o_CbZyBxDj  where OrgCode='' and BillNo is null  order by OutDate desc,InDate"
     " desc "},
};

INSTANTIATE_TEST_SUITE_P(Texts, UnbilledStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
