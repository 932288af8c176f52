// SPDX-License-Identifier: MIT
// A value that cannot be converted while a statement runs is named with its column and its record or bill.
#include "tests/vortaq/sqlite/testdatabase.h"

#include <gtest/gtest.h>

namespace {

using namespace vortaq::test;

const std::string record = "\n所在行：CoopMedCode=M7，IDNo=2，DiagNo=1，OrgCode=4201";
const std::string bill = "\n所在行：BillCode=4201，BillNo=12";

/// One record and one bill as they should be, and one of each with text in an amount and in a number's place.
class FailedValues : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        s_database = std::make_unique<TestDatabase>();
        s_database->run(
            "insert into o_CbZyBxDj (OrgCode,CoopMedCode,IDNo,DiagNo,PatientNo,TotalFee) values"
            " ('4201','M6',1,1,'100',1.5), ('4201','M7',2,1,'A10','x.5');"
            "insert into o_CbZyZdb (BillCode,BillNo,BillName,Fee) values ('4201',11,'77',1), ('4201',12,'城关镇','二');"
            "create view Records as select * from o_CbZyBxDj;"
            "create table Narrow (A varchar(9) collate nocase not null, B varchar(9), primary key (A)) without rowid;"
            "insert into Narrow values ('a', 'b')");
        s_engine = s_database->open();
    }
    static void TearDownTestSuite()
    {
        s_engine.reset();
        s_database.reset();
    }

    static inline std::unique_ptr<TestDatabase> s_database;
    static inline std::unique_ptr<vortaq::Engine> s_engine;
};

struct Row {
    const char *name;
    std::string statement;
    std::string error;
};

class Queries : public FailedValues, public testing::WithParamInterface<Row> { };

TEST_P(Queries, NameColumnAndRow)
{
    EXPECT_EQ(errorOf([] { ask(*s_engine, GetParam().statement); }), "Conversion: " + GetParam().error);
    EXPECT_EQ(ask(*s_engine, "select max(BillNo) from o_CbZyZdb"), "12") << "and the engine goes on";
}

INSTANTIATE_TEST_SUITE_P(
    , Queries,
    testing::Values(
        Row{"InACondition", "select IDNo from o_CbZyBxDj where PatientNo>7",
            "“A10”不能转换为int。\n所在列：PatientNo" + record},
        Row{"InAnExpression", "select isnull(PatientNo,'')+1 as N from o_CbZyBxDj where IDNo=2",
            "“A10”不能转换为int。\n所在列：PatientNo" + record},
        Row{"OnTheOtherSideOfAJoin",
            "select a.BillNo from o_CbZyZdb a left join o_CbZyBxDj b on b.PatientNo=a.BillNo where a.BillNo=11",
            "“A10”不能转换为int。\n所在列：PatientNo" + record},
        Row{"InASum", "select sum(TotalFee) from o_CbZyBxDj where OrgCode='4201'",
            "“x.5”不是可用的数值。\n所在列：TotalFee" + record},
        Row{"InASumOfConvertedText", "select sum(case when IDNo=2 then PatientNo else 1 end) from o_CbZyBxDj",
            "“A10”不能转换为int。\n所在列：PatientNo" + record},
        Row{"InStr", "select Str(Fee,10,2) as F from o_CbZyZdb", "“二”不是可用的数值。\n所在列：Fee" + bill},
        Row{"InASubquery", "select (select sum(Fee) from o_CbZyZdb) as F", "“二”不是可用的数值。\n所在列：Fee" + bill},
        Row{"InADerivedTable", "select a.N from (select Fee as N from o_CbZyZdb) a where Str(a.N,10,2)=''",
            "“二”不是可用的数值。\n所在列：N"},
        Row{"OfAGroup", "select PatientNo+1 as N,sum(IDNo) as S from o_CbZyBxDj where IDNo=2 group by PatientNo",
            "“A10”不能转换为int。\n所在列：PatientNo"},
        Row{"OfAView", "select IDNo from Records where PatientNo>7", "“A10”不能转换为int。\n所在列：PatientNo"},
        Row{"OfATableWithoutRowNumbers", "select A from Narrow where B>7", "“b”不能转换为int。\n所在列：B"},
        Row{"ReadWithTheRecordsKey",
            "select OrgCode,CoopMedCode,IDNo,DiagNo,BillNo,BillCode,TotalFee as Total from "
            "o_CbZyBxDj",
            "“x.5”不是可用的数值。\n所在列：Total\n所在行：OrgCode=4201，CoopMedCode=M7，IDNo=2，DiagNo=1"},
        Row{"ReadWithTheBillsKey", "select a.Fee,a.BillNo,a.billcode from (select * from o_CbZyZdb) a",
            "“二”不是可用的数值。\n所在列：Fee\n所在行：billcode=4201，BillNo=12"},
        Row{"ReadWithoutAKey", "select CoopMedCode,TotalFee from o_CbZyBxDj",
            "“x.5”不是可用的数值。\n所在列：TotalFee"},
        Row{"OfNoColumn", "select BillNo from o_CbZyZdb where (select '1.5x')=1.5", "“1.5x”不能转换为decimal(2,1)。"}),
    [](const auto &row) { return std::string(row.param.name); });

class Changing : public FailedValues { };

TEST_F(Changing, NamesTheColumnThatTheValueGoesIntoAndTheRowThatIsChanged)
{
    const std::string before = s_database->look("select group_concat(quote(BillName)||quote(Fee)) from o_CbZyZdb");
    EXPECT_EQ(errorOf([] { change(*s_engine, "update o_CbZyZdb set Fee=BillName"); }),
              "Conversion: “城关镇”不能转换为decimal(15,2)。\n所在列：Fee" + bill);
    s_engine->begin();
    EXPECT_EQ(errorOf([] {
                  change(*s_engine,
                         "update o_CbZyZdb set Fee=a.P from (select max(PatientNo) as P from o_CbZyBxDj) a where "
                         "BillNo=12");
              }),
              "Conversion: “A10”不能转换为decimal(15,2)。\n所在列：Fee" + bill);
    s_engine->commit();
    EXPECT_EQ(s_database->look("select group_concat(quote(BillName)||quote(Fee)) from o_CbZyZdb"), before);
}

TEST_F(Changing, NamesTheRowThatAnInsertionReads)
{
    EXPECT_EQ(errorOf([] {
                  change(*s_engine, "insert into o_CbZyZdb(BillCode,BillNo) select OrgCode,PatientNo from o_CbZyBxDj");
              }),
              "Conversion: “A10”不能转换为int。\n所在列：BillNo" + record);
    EXPECT_EQ(ask(*s_engine, "select BillNo from o_CbZyZdb order by BillNo"), "11\n12");
}

TEST_F(Changing, NamesTheRowOfADeletion)
{
    EXPECT_EQ(errorOf([] { change(*s_engine, "delete from o_CbZyBxDj where PatientNo=7"); }),
              "Conversion: “A10”不能转换为int。\n所在列：PatientNo" + record);
}

} // namespace
