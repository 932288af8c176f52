// SPDX-License-Identifier: MIT
// The texts of data/statements/candidates.h, byte for byte.
#include "data/statements/candidates.h"

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

class CandidatesStatement : public testing::TestWithParam<Row> { };

TEST_P(CandidatesStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"BillCandidatesOfEverybody", billCandidates({}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode, (case when CheckerCode1 is null"
     " then '2' else '1' end) as isCheck,ExpressionsID,LimitDef,Ke, (case ExpenseKind when '21' then"
     " '普通住院' when '22' then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院'"
     " when '90' then '其他' end) as ExpenseName from o_CbZyBxDj  where BillNo is null and OutDate is not"
     " null  order by JsDate "},
    {"BillCandidatesGrantedPlain", billCandidates(Grant{u"02"_s, u"0301"_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode, (case when CheckerCode1 is null"
     " then '2' else '1' end) as isCheck,ExpressionsID,LimitDef,Ke, (case ExpenseKind when '21' then"
     " '普通住院' when '22' then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院'"
     " when '90' then '其他' end) as ExpenseName from o_CbZyBxDj  where BillNo is null and OutDate is not"
     " null  and OrgCode in (select OrgCode                  from r_UserRights a,r_RoleItem b,r_SubSysInfo"
     " c,r_BillCheckList d                  where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode"
     "                     and b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and"
     " b.SubSysCode=d.SubSysCode                    and b.IsBillAll='2' and c.SubSysCode='1' and"
     " d.BillCheck='1'                     and a.UserCode='02'                    and b.RightCode='0301')"
     " order by JsDate "},
    {"BillCandidatesGrantedQuotesAndChinese", billCandidates(Grant{u"李'会计"_s, u"'"_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode, (case when CheckerCode1 is null"
     " then '2' else '1' end) as isCheck,ExpressionsID,LimitDef,Ke, (case ExpenseKind when '21' then"
     " '普通住院' when '22' then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院'"
     " when '90' then '其他' end) as ExpenseName from o_CbZyBxDj  where BillNo is null and OutDate is not"
     " null  and OrgCode in (select OrgCode                  from r_UserRights a,r_RoleItem b,r_SubSysInfo"
     " c,r_BillCheckList d                  where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode"
     "                     and b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and"
     " b.SubSysCode=d.SubSysCode                    and b.IsBillAll='2' and c.SubSysCode='1' and"
     " d.BillCheck='1'                     and a.UserCode='李''会计'                    and"
     " b.RightCode='''') order by JsDate "},
    {"BillCandidatesGrantedEmpty", billCandidates(Grant{u""_s, u""_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode, (case when CheckerCode1 is null"
     " then '2' else '1' end) as isCheck,ExpressionsID,LimitDef,Ke, (case ExpenseKind when '21' then"
     " '普通住院' when '22' then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院'"
     " when '90' then '其他' end) as ExpenseName from o_CbZyBxDj  where BillNo is null and OutDate is not"
     " null  and OrgCode in (select OrgCode                  from r_UserRights a,r_RoleItem b,r_SubSysInfo"
     " c,r_BillCheckList d                  where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode"
     "                     and b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and"
     " b.SubSysCode=d.SubSysCode                    and b.IsBillAll='2' and c.SubSysCode='1' and"
     " d.BillCheck='1'                     and a.UserCode=''                    and b.RightCode='') order"
     " by JsDate "},
    {"AddBillCandidatesOfEverybody", addBillCandidates({}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " TotalFee,CanFreeFee,FreeFee,DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode,"
     " (case when CheckerCode1 is null then '2' else '1' end) as isCheck  from o_cbzybxdj  where BillNo is"
     " null and OutDate is not null  order by OutDate "},
    {"AddBillCandidatesGrantedPlain", addBillCandidates(Grant{u"02"_s, u"0301"_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " TotalFee,CanFreeFee,FreeFee,DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode,"
     " (case when CheckerCode1 is null then '2' else '1' end) as isCheck  from o_cbzybxdj  where BillNo is"
     " null and OutDate is not null  and OrgCode in (select OrgCode                       from"
     " r_UserRights a,r_RoleItem b,r_SubSysInfo c,r_BillCheckList d                       where"
     " a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode                         and"
     " b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and b.SubSysCode=d.SubSysCode"
     "                        and b.IsBillAll='2' and c.SubSysCode='1' and d.BillCheck='1'"
     "                         and a.UserCode='02'                        and b.RightCode='0301') order by"
     " OutDate "},
    {"AddBillCandidatesGrantedQuotesAndChinese", addBillCandidates(Grant{u"李'会计"_s, u"'"_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " TotalFee,CanFreeFee,FreeFee,DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode,"
     " (case when CheckerCode1 is null then '2' else '1' end) as isCheck  from o_cbzybxdj  where BillNo is"
     " null and OutDate is not null  and OrgCode in (select OrgCode                       from"
     " r_UserRights a,r_RoleItem b,r_SubSysInfo c,r_BillCheckList d                       where"
     " a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode                         and"
     " b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and b.SubSysCode=d.SubSysCode"
     "                        and b.IsBillAll='2' and c.SubSysCode='1' and d.BillCheck='1'"
     "                         and a.UserCode='李''会计'                        and b.RightCode='''')"
     " order by OutDate "},
    {"AddBillCandidatesGrantedEmpty", addBillCandidates(Grant{u""_s, u""_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " TotalFee,CanFreeFee,FreeFee,DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode,"
     " (case when CheckerCode1 is null then '2' else '1' end) as isCheck  from o_cbzybxdj  where BillNo is"
     " null and OutDate is not null  and OrgCode in (select OrgCode                       from"
     " r_UserRights a,r_RoleItem b,r_SubSysInfo c,r_BillCheckList d                       where"
     " a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode                         and"
     " b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and b.SubSysCode=d.SubSysCode"
     "                        and b.IsBillAll='2' and c.SubSysCode='1' and d.BillCheck='1'"
     "                         and a.UserCode=''                        and b.RightCode='') order by"
     " OutDate "},
};

INSTANTIATE_TEST_SUITE_P(Texts, CandidatesStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
