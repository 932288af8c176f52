// SPDX-License-Identifier: MIT
// Every change of the hospital does what it says, and nothing else.
#include "tests/vortaq/sqlite/testdatabase.h"

#include <gtest/gtest.h>

namespace {

using namespace vortaq::test;

const std::string firstRecord = "OrgCode='4201'   and CoopMedCode='420100120034'   and IDNo=2 and DiagNo=1";
const std::string tickedRecords = " (OrgCode='4201' and CoopMedCode='420100120034' and IDNo=2 and DiagNo=1)"
                                  " or (OrgCode='4201' and CoopMedCode='420100120040' and IDNo=1 and DiagNo=3)";
const std::string allBills =
    "select BillNo,Fee,CanFreeFee,CheckFee1,CheckFee,CheckStatus from o_CbZyZdb order by BillNo";
const std::string allBillsBefore =
    "11|0.00|0.00|0.00|0.00|1\n12|300.50|200.30|98.70|97.60|1\n13|10.00|10.00|0.00|0.00|9";
const std::string billedRecords =
    "select CoopMedCode,IDNo,DiagNo,BillCode,BillNo from o_CbZyBxDj where BillNo is not null"
    " order by BillNo,CoopMedCode,DiagNo";

std::string insertBill(const std::string &number, const std::string &condition)
{
    return " insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,                       "
           "CheckFee,CheckStatus,PrincipalName)  select '4201',"
        + number + ",'城关镇卫生院' ,'2024-02-06',sum(isnull(TotalFee,0)),sum(isnull(CanFreeFee,0)),0,0,1,'王医生'"
        + " from o_CbZyBxDj where " + condition;
}

class Changes : public testing::Test {
protected:
    int change(const std::string &statement) const { return vortaq::test::change(*m_hospital.engine, statement); }
    [[nodiscard]] std::string ask(const std::string &query) const
    {
        return vortaq::test::ask(*m_hospital.engine, query);
    }

    Hospital m_hospital;
};

TEST_F(Changes, MakingABill)
{
    m_hospital.engine->begin();
    EXPECT_EQ(change(insertBill("15", tickedRecords)), 1);
    EXPECT_EQ(change(" update o_CbZyBxDj  set BillCode ='4201',BillNo=15 where " + tickedRecords), 2);
    m_hospital.engine->commit();
    // 1234.50 + 0.10, and a missing amount counts as nothing.
    EXPECT_EQ(
        ask("select BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,CheckFee,CheckStatus,PrincipalName"
            " from o_CbZyZdb where BillNo=15"),
        "4201|15|城关镇卫生院|2024-02-06|1234.60|1000.00|0.00|0.00|1|王医生");
    EXPECT_EQ(ask(billedRecords),
              "420100120050|1|1|4201|12\n420100120051|1|1|4201|12\n420100120052|1|1|4201|13\n"
              "420100120034|2|1|4201|15\n420100120040|1|3|4201|15");
    EXPECT_EQ(
        m_hospital.database.look("select typeof(Fee)||' '||typeof(BillNo)||' '||typeof(CheckStatus)||' '||WriteDate"
                                 " from o_CbZyZdb where BillNo=15"),
        "real integer text 2024-02-06");
}

// A sum over no record at all is null, as on the server, but the bill is made.
TEST_F(Changes, MakingABillOfNothing)
{
    EXPECT_EQ(change(insertBill("15", " (OrgCode='0' and CoopMedCode='0' and IDNo=0 and DiagNo=0)")), 1);
    EXPECT_EQ(ask("select Fee,CanFreeFee from o_CbZyZdb where BillNo=15"), "~|~");
}

TEST_F(Changes, QuotesAndChineseGoInUnchanged)
{
    EXPECT_EQ(change("insert into o_CbZyZdb(BillCode,BillNo,BillName,PrincipalName) values('4201',15,'李''家集''','  "
                     "王\"医生 ')"),
              1);
    EXPECT_EQ(ask("select BillName,PrincipalName from o_CbZyZdb where BillNo=15"), "李'家集'|  王\"医生 ");
}

TEST_F(Changes, ReturningARecordToTheWard)
{
    EXPECT_EQ(change(" update o_cbzybxdj  set OutDate=null,DayCount=null,JsDate=null  where " + firstRecord), 1);
    EXPECT_EQ(change(" delete from o_CbZyJsMxb  where CoopMedCode='420100120034'   and IDNo=2 and DiagNo=1   and "
                     "OrgCode='4201'"),
              2);
    EXPECT_EQ(change(" delete from o_CbZyJsb  where " + firstRecord), 1);
    EXPECT_EQ(ask("select OutDate,DayCount,JsDate,InDate,TotalFee from o_CbZyBxDj where " + firstRecord),
              "~|~|~|2024-01-28|1234.50");
    EXPECT_EQ(ask("select OrgCode from o_CbZyJsMxb"), "");
    EXPECT_EQ(ask("select DiagNo from s_CbZyJsb"), "9");
}

TEST_F(Changes, ReportingABill)
{
    EXPECT_EQ(change(" update o_cbzyzdb    set CheckStatus='2'  where BillCode='4201'   and BillNo=12"), 1);
    EXPECT_EQ(ask("select BillNo,CheckStatus from o_CbZyZdb order by BillNo"), "11|1\n12|2\n13|9");
    EXPECT_EQ(ask("select CheckStatus from s_CbZyZdb where BillNo=12"), "4");
}

TEST_F(Changes, CancellingABill)
{
    EXPECT_EQ(change(" update o_cbzybxdj set BillCode = null,BillNo = null  where BillCode='4201' and BillNo=12"), 2);
    EXPECT_EQ(change(" delete from o_cbzyzdb  where BillCode='4201'   and BillNo=12"), 1);
    EXPECT_EQ(ask("select BillNo from o_CbZyZdb order by BillNo"), "11\n13");
    EXPECT_EQ(ask(billedRecords), "420100120052|1|1|4201|13");
}

TEST_F(Changes, TakingOneRecordOutOfABill)
{
    const std::string record = "OrgCode='4201'   and CoopMedCode='420100120050'   and IDNO=1 and DiagNo =1";
    EXPECT_EQ(change(" update o_CbZyBxDj  set BillCode = null,BillNo = null,     "
                     "CheckerCode1=null,CheckerName1=null,CheckOneFee=0,CheckDate1=null,Checkone=null,     "
                     "CheckerCode=null,CheckerName=null,CheckFee=0,CheckDate=null,CheckRemark=null  where "
                     + record),
              1);
    EXPECT_EQ(
        ask("select BillCode,BillNo,CheckerCode1,CheckerName1,CheckOneFee,CheckDate1,Checkone,CheckerCode,CheckerName,"
            "CheckFee,CheckDate,CheckRemark,PatientName from o_CbZyBxDj where "
            + record),
        "~|~|~|~|0.00|~|~|~|~|0.00|~|~|孙七");
    EXPECT_EQ(
        change(
            " update o_CbZyZdb set Fee=a.TotalFee,CanFreeFee=a.CanFreeFee  from (select isnull(sum(TotalFee),0) as "
            "TotalFee,isnull(sum(CanFreeFee),0) as CanFreeFee        from o_CbZyBxDj        where BillCode='4201' and "
            "BillNo=12) a  where BillCode='4201' and BillNo=12"),
        1);
    EXPECT_EQ(ask(allBills), "11|0.00|0.00|0.00|0.00|1\n12|0.20|0.10|98.70|97.60|1\n13|10.00|10.00|0.00|0.00|9");
}

TEST_F(Changes, ClearingWriteOffsTouchesOnlyLinesThatHaveSome)
{
    EXPECT_EQ(change(" update o_CbZyBxDjZb  set KnockOffFee1=0,KnockOffFee=0  where " + firstRecord
                     + "   and (isnull(KnockOffFee1,0) <> 0 or isnull(KnockOffFee,0) <> 0) "),
              2);
    EXPECT_EQ(ask("select FeeNo,KnockOffFee1,KnockOffFee from o_CbZyBxDjZb order by FeeNo"),
              "2|0.0000|0.0000\n3|0.0000|0.0000\n4|~|~\n10|0.0000|0.0000");
}

TEST_F(Changes, TotalsOfABillWithoutRecordsAreZero)
{
    EXPECT_EQ(
        change(
            " update o_CbZyZdb set Fee=a.TotalFee,CanFreeFee=a.CanFreeFee  from (select isnull(sum(TotalFee),0) as "
            "TotalFee,isnull(sum(CanFreeFee),0) as CanFreeFee        from o_CbZyBxDj        where BillCode='4201' and "
            "BillNo=14) a  where BillCode='4201' and BillNo=13"),
        1);
    EXPECT_EQ(ask("select Fee,CanFreeFee from o_CbZyZdb where BillNo=13"), "0.00|0.00");
}

TEST_F(Changes, TheLastRecordsBillIsRemovedByItsNumberAsText)
{
    EXPECT_EQ(change(" delete from o_CbZyZdb  where BillCode='4201'   and BillNo='13'"), 1);
    EXPECT_EQ(ask("select BillNo from o_CbZyZdb order by BillNo"), "11\n12");
}

TEST_F(Changes, AddingRecordsToABill)
{
    EXPECT_EQ(change(" update o_CbZyBxDj  set BillCode ='4201',BillNo=12 where " + tickedRecords), 2);
    EXPECT_EQ(
        change(" update o_CbZyZdb set o_CbZyZdb.Fee=a.TotalFee,o_CbZyZdb.CanFreeFee=a.CanFreeFee  from      ( select "
               "sum(TotalFee) as TotalFee,sum(CanFreeFee) as CanFreeFee        from o_CbZyBxDj a        where "
               "a.BillCode='4201' and a.BillNo=12) a where o_CbZyZdb.BillCode='4201' and o_CbZyZdb.BillNo=12"),
        1);
    EXPECT_EQ(ask(allBills), "11|0.00|0.00|0.00|0.00|1\n12|1535.10|1200.30|98.70|97.60|1\n13|10.00|10.00|0.00|0.00|9");
}

TEST_F(Changes, NothingMatchesNothingChanges)
{
    EXPECT_EQ(change(" update o_cbzyzdb    set CheckStatus='2'  where BillCode='4299'   and BillNo=12"), 0);
    EXPECT_EQ(change(" delete from o_cbzyzdb  where BillCode='4201'   and BillNo=99"), 0);
    EXPECT_EQ(ask(allBills), allBillsBefore);
}

// The key is compared without case and trailing blanks, so it is unique without them, too.
TEST_F(Changes, ABillKeyIsTakenInAnySpelling)
{
    change("insert into o_CbZyZdb(BillCode,BillNo) values('ab',1)");
    EXPECT_EQ(errorOf([&] { change("insert into o_CbZyZdb(BillCode,BillNo) values('AB  ',1)"); }),
              "Constraint: 不能写入重复的键（o_CbZyZdb.BillCode, o_CbZyZdb.BillNo）。");
    EXPECT_EQ(change("update o_CbZyZdb set BillNo=2 where BillCode='aB '"), 1);
}

// Indexed text is stored without trailing blanks; other programs order it as the engine does.
TEST_F(Changes, IndexedTextIsStoredWithoutTrailingBlanks)
{
    change("insert into o_CbZyZdb(BillCode,BillNo,BillName) values('4209  ',1,'名称  ')");
    change("insert into o_CbZyZdb(BillCode,BillNo,BillName) select OrgCode+'  ',1,OrgName+' ' from p_Ylfwdw where "
           "OrgCode='4202'");
    change("update o_CbZyBxDj set BillCode='4209 ',BillNo=1 where CoopMedCode='420200000001'");
    EXPECT_EQ(
        m_hospital.database.look("select '['||BillCode||']['||BillName||']' from o_CbZyZdb where BillCode = '4209'"),
        "[4209][名称  ]");
    EXPECT_EQ(
        m_hospital.database.look("select '['||BillCode||']['||BillName||']' from o_CbZyZdb where BillCode = '4202'"),
        "[4202][李'家集卫生院 ]");
    EXPECT_EQ(m_hospital.database.look("select '['||BillCode||']' from o_CbZyBxDj where BillCode = '4209'"), "[4209]");
    EXPECT_EQ(m_hospital.database.look("pragma integrity_check"), "ok");
}

} // namespace
