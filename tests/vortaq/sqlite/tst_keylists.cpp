// SPDX-License-Identifier: MIT
// Thousands of ticked records in one statement.
#include "tests/vortaq/sqlite/testdatabase.h"

#include <gtest/gtest.h>

namespace {

using namespace vortaq::test;

constexpr int recordCount = 6000;

std::string keyOf(int record)
{
    return "(OrgCode='A" + std::to_string(record % 3) + "' and CoopMedCode='c" + std::to_string(record / 4)
        + "' and IDNo=" + std::to_string(record % 4) + " and DiagNo=1)";
}

/// As the module writes it: a leading blank, keys joined by or.
std::string keysOf(int first, int behind, int step = 1)
{
    std::string result;
    for (int record = first; record < behind; record += step)
        result += (result.empty() ? " " : " or ") + keyOf(record);
    return result;
}

class KeyLists : public testing::Test {
protected:
    KeyLists()
    {
        m_database.run(
            "with recursive n(i) as (select 0 union all select i + 1 from n where i + 1 < 6000)"
            " insert into o_CbZyBxDj (OrgCode, CoopMedCode, IDNo, DiagNo, PatientName, OutDate, TotalFee, CanFreeFee)"
            " select 'a' || (i % 3), 'C' || (i / 4), i % 4, 1, 'P' || i, case when i % 10 then '2024-01-01' end,"
            " i / 100.0, 0.1 from n");
        m_engine = m_database.open();
    }

    int change(const std::string &statement) { return vortaq::test::change(*m_engine, statement); }
    std::string ask(const std::string &query) { return vortaq::test::ask(*m_engine, query); }
    [[nodiscard]] std::string count(const std::string &condition) const
    {
        return m_database.look("select count(*) from o_CbZyBxDj where " + condition);
    }

    TestDatabase m_database;
    std::unique_ptr<vortaq::Engine> m_engine;
};

TEST_F(KeyLists, UpdatesExactlyTheNamedRecords)
{
    EXPECT_EQ(change(" update o_CbZyBxDj  set BillCode ='4201',BillNo=7 where " + keysOf(0, recordCount, 2)),
              recordCount / 2);
    EXPECT_EQ(count("BillNo = 7"), "3000");
    EXPECT_EQ(count("BillNo = 7 and cast(substr(PatientName, 2) as int) % 2 = 1"), "0");
}

TEST_F(KeyLists, SumsEachRecordOnceHoweverOftenItIsNamed)
{
    const std::string twice = keysOf(0, 100) + " or" + keysOf(0, 100);
    EXPECT_EQ(change(" insert into o_CbZyZdb(BillCode,BillNo,Fee,CanFreeFee)  select '4201',1,sum(isnull(TotalFee,0)),"
                     "sum(isnull(CanFreeFee,0)) from o_CbZyBxDj where "
                     + twice),
              1);
    EXPECT_EQ(ask("select Fee,CanFreeFee from o_CbZyZdb"), "49.50|10.00");
}

TEST_F(KeyLists, NarrowedByAFurtherCondition)
{
    EXPECT_EQ(ask(" select PatientName  from o_CbZyBxDj  where (" + keysOf(5, 35) + ") and OutDate is null "),
              "P10\nP20\nP30");
    EXPECT_EQ(ask(" select PatientName from o_CbZyBxDj  where (" + keysOf(0, 5000)
                  + ")  and convert(varchar(10),OutDate,126) > '2024-01-01'"),
              "");
}

TEST_F(KeyLists, InTheOrderAskedFor)
{
    EXPECT_EQ(ask("select PatientName from o_CbZyBxDj where (" + keysOf(0, 60, 6) + ") order by TotalFee desc"),
              "P54\nP48\nP42\nP36\nP30\nP24\nP18\nP12\nP6\nP0");
}

TEST_F(KeyLists, UnknownKeysMatchNothing)
{
    EXPECT_EQ(change("update o_CbZyBxDj set BillNo=1 where " + keysOf(recordCount, recordCount + 500)), 0);
    EXPECT_EQ(change("update o_CbZyBxDj set BillNo=1 where " + keysOf(recordCount - 10, recordCount + 500)), 10);
}

TEST_F(KeyLists, Negated)
{
    EXPECT_EQ(change("delete from o_CbZyBxDj where not (" + keysOf(0, recordCount - 5) + ")"), 5);
    EXPECT_EQ(count("1"), "5995");
}

TEST_F(KeyLists, TwoInOneStatement)
{
    EXPECT_EQ(ask("select PatientName from o_CbZyBxDj where (" + keysOf(0, 40) + ") and (" + keysOf(38, 80)
                  + ") order by TotalFee"),
              "P38\nP39");
}

TEST_F(KeyLists, OneStatementAfterAnother)
{
    EXPECT_EQ(change("update o_CbZyBxDj set BillNo=1 where " + keysOf(0, 100)), 100);
    m_engine->begin();
    EXPECT_EQ(change("update o_CbZyBxDj set BillNo=2 where " + keysOf(50, 250)), 200);
    m_engine->rollback();
    EXPECT_EQ(change("update o_CbZyBxDj set BillNo=3 where " + keysOf(90, 110)), 20);
    EXPECT_EQ(count("BillNo = 1"), "90");
    EXPECT_EQ(count("BillNo = 2"), "0");
    EXPECT_EQ(count("BillNo = 3"), "20");
}

TEST_F(KeyLists, OnATableWithoutRowNumbers)
{
    m_database.run(
        "create table Own (CoopMedCode varchar(20), IDNo int, Name varchar(20), primary key (CoopMedCode, IDNo))"
        " without rowid; insert into Own select CoopMedCode, IDNo, PatientName from o_CbZyBxDj");
    std::string condition;
    for (int member = 0; member < 20; ++member)
        condition +=
            (member == 0 ? "" : " or ") + std::string("(CoopMedCode='c") + std::to_string(member) + " ' and IDNo=3)";
    const std::string rows = ask("select Name from Own where " + condition + " order by CoopMedCode");
    EXPECT_EQ(rows, "P3\nP7\nP43\nP47\nP51\nP55\nP59\nP63\nP67\nP71\nP75\nP79\nP11\nP15\nP19\nP23\nP27\nP31\nP35\nP39");
}

TEST_F(KeyLists, OnADerivedTable)
{
    std::string condition;
    for (int member = 0; member < 20; ++member)
        condition += (member == 0 ? "" : " or ") + std::string("(C='c") + std::to_string(member) + "' and I=3)";
    EXPECT_EQ(ask("select max(P) from (select CoopMedCode as C,IDNo as I,TotalFee as P from o_CbZyBxDj) a where "
                  + condition),
              "0.79");
}

TEST_F(KeyLists, TwentyThousandTerms)
{
    EXPECT_EQ(change("update o_CbZyBxDj set BillNo=1 where " + keysOf(0, 20000)), recordCount);
}

// Conditions that are no keys stay an or of thousands of terms.
TEST_F(KeyLists, ThousandsOfOtherTerms)
{
    std::string condition = "DiagNo=9";
    for (int i = 0; i < 1500; ++i)
        condition += " or TotalFee between " + std::to_string(i) + ".001 and " + std::to_string(i) + ".009";
    EXPECT_EQ(ask("select PatientName from o_CbZyBxDj where " + condition), "");
    EXPECT_EQ(ask("select PatientName from o_CbZyBxDj where TotalFee=3 or " + condition), "P300");
}

TEST_F(KeyLists, InAReadOnlyDatabase)
{
    vortaq::OpenOptions options;
    options.readOnly = true;
    const auto reader = vortaq::openSqlite(m_database.file(), options);
    EXPECT_EQ(vortaq::test::ask(
                  *reader, "select PatientName from o_CbZyBxDj where (" + keysOf(10, 31) + ") and OutDate is null"),
              "P10\nP20\nP30");
}

} // namespace
