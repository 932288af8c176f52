// SPDX-License-Identifier: MIT
// The texts of data/statements/savingbill.h, byte for byte.
#include "data/statements/savingbill.h"

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

class SavingBillStatement : public testing::TestWithParam<Row> { };

TEST_P(SavingBillStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"AlreadyBilledPlain",
     alreadyBilled(
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s),
     " select OrgCode,CoopMedCode,IDNO,DiagNo,PatientName  from o_CbZyBxDj  where ( (OrgCode='A1' and"
     " CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and"
     " DiagNo=1)) and BillCode is not null"},
    {"NoLongerDischargedPlain",
     noLongerDischarged(
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,PatientName  from o_CbZyBxDj  where ( (OrgCode='A1' and"
     " CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and"
     " DiagNo=1)) and OutDate is null "},
    {"AlreadyBilledEmpty", alreadyBilled(u""_s),
     " select OrgCode,CoopMedCode,IDNO,DiagNo,PatientName  from o_CbZyBxDj  where () and BillCode is not"
     " null"},
    {"NoLongerDischargedEmpty", noLongerDischarged(u""_s),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,PatientName  from o_CbZyBxDj  where () and OutDate is null "},
    {"DischargedAfterPlain",
     dischargedAfter(
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s,
         u"2026-11-21"_s),
     " select CoopMedCode from o_CbZyBxDj  where ( (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and"
     " DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1))  and"
     " convert(varchar(10),OutDate,126) > '2026-11-21'"},
    {"DischargedAfterQuotesAndChinese",
     dischargedAfter(
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s,
         u"二十一'日"_s),
     " select CoopMedCode from o_CbZyBxDj  where ( (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and"
     " DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1))  and"
     " convert(varchar(10),OutDate,126) > '二十一''日'"},
    {"DischargedAfterEmpty",
     dischargedAfter(
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s,
         u""_s),
     " select CoopMedCode from o_CbZyBxDj  where ( (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and"
     " DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1))  and"
     " convert(varchar(10),OutDate,126) > ''"},
    {"HighestBillNoPlain", highestBillNo(u"4201"_s),
     " select max(BillNo) as BillNo  from  (         select isnull(max(BillNo),0) as BillNo          from"
     " o_CbZyZdb          where BillCode='4201'         union all          select isnull(max(BillNo),0) as"
     " BillNo          from s_CbZyZdb          where BillCode='4201') a"},
    {"HighestBillNoQuotesAndChinese", highestBillNo(u"院'"_s),
     " select max(BillNo) as BillNo  from  (         select isnull(max(BillNo),0) as BillNo          from"
     " o_CbZyZdb          where BillCode='院'''         union all          select isnull(max(BillNo),0) as"
     " BillNo          from s_CbZyZdb          where BillCode='院''') a"},
    {"HighestBillNoEmpty", highestBillNo(u""_s),
     " select max(BillNo) as BillNo  from  (         select isnull(max(BillNo),0) as BillNo          from"
     " o_CbZyZdb          where BillCode=''         union all          select isnull(max(BillNo),0) as"
     " BillNo          from s_CbZyZdb          where BillCode='') a"},
    {"InsertBillPlain",
     insertBill(
         NewBill{{u"4201"_s, u"8"_s}, u"城关卫生院"_s, u"2026-11-21"_s, u"王主任"_s},
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s),
     " insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,"
     "                       CheckFee,CheckStatus,PrincipalName)  select '4201',8,'城关卫生院' ,"
     "'2026-11-21',sum(isnull(TotalFee,0)),sum(isnull(CanFreeFee,0)),0,0,1,'王主任' from o_CbZyBxDj where"
     "  (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and"
     " CoopMedCode='0040' and IDNo=2 and DiagNo=1)"},
    {"AssignRecordsPlain",
     assignRecords(
         {u"4201"_s, u"8"_s},
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s),
     " update o_CbZyBxDj  set BillCode ='4201',BillNo=8 where  (OrgCode='A1' and CoopMedCode='0012' and"
     " IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"},
    {"InsertBillQuotesAndChinese",
     insertBill(
         NewBill{{u"42'01"_s, u"12"_s}, u"'中心'卫生院"_s, u"'"_s, u" 李' "_s},
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s),
     " insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,"
     "                       CheckFee,CheckStatus,PrincipalName)  select '42''01',12,'''中心''卫生院' ,"
     "'''',sum(isnull(TotalFee,0)),sum(isnull(CanFreeFee,0)),0,0,1,' 李'' ' from o_CbZyBxDj where"
     "  (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and"
     " CoopMedCode='0040' and IDNo=2 and DiagNo=1)"},
    {"AssignRecordsQuotesAndChinese",
     assignRecords(
         {u"42'01"_s, u"12"_s},
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s),
     " update o_CbZyBxDj  set BillCode ='42''01',BillNo=12 where  (OrgCode='A1' and CoopMedCode='0012' and"
     " IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"},
    {"InsertBillEmpty",
     insertBill(
         NewBill{{u""_s, u""_s}, u""_s, u""_s, u""_s},
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s),
     " insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,"
     "                       CheckFee,CheckStatus,PrincipalName)  select '',,'' ,'',sum(isnull(TotalFee,"
     "0)),sum(isnull(CanFreeFee,0)),0,0,1,'' from o_CbZyBxDj where  (OrgCode='A1' and CoopMedCode='0012'"
     " and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"},
    {"AssignRecordsEmpty",
     assignRecords(
         {u""_s, u""_s},
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s),
     " update o_CbZyBxDj  set BillCode ='',BillNo= where  (OrgCode='A1' and CoopMedCode='0012' and IDNo=1"
     " and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"},
    {"AssignRecordsFromTheDialog",
     assignRecords(
         BillKey{u"4201"_s, u"17"_s},
         u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s),
     " update o_CbZyBxDj  set BillCode ='4201',BillNo=17 where  (OrgCode='A1' and CoopMedCode='0012' and"
     " IDNo=1 and DiagNo=3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"},
};

INSTANTIATE_TEST_SUITE_P(Texts, SavingBillStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
