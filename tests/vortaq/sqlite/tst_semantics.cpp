// SPDX-License-Identifier: MIT
// Expressions mean what they mean on the server: types decide, not how SQLite happens to store a value.
#include "tests/vortaq/sqlite/testdatabase.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

using namespace vortaq::test;

struct Row {
    const char *name;
    const char *statement;
    const char *expected;
};

void PrintTo(const Row &row, std::ostream *stream)
{
    *stream << row.statement;
}

/// A table of one column of each type.
class Semantics : public testing::TestWithParam<Row> {
protected:
    static void SetUpTestSuite()
    {
        s_database = std::make_unique<TestDatabase>();
        s_database->run(
            "create table t (Id int primary key, Txt varchar(10) collate nocase, Plain varchar(10), Num int,"
            " Amt decimal(15,2), Fine decimal(15,4), Big decimal(19,0), Flt float, Day date, Moment datetime);"
            "insert into t values (1,'Abc','Abc',10,0.1,1.2345,9007199254740993,1.5,'2024-02-06','2024-02-06 "
            "08:30:00'),"
            "(2,'abc  ','x',null,0.2,2.5,-5,1e20,'2024-02-05','2024-02-06 08:30:00.5'),"
            "(3,null,null,-3,null,null,null,null,null,null),"
            "(4,'7','7',7,0.3,0.00005,0,0.1,'1999-12-31','1999-12-31 23:59:59');"
            "create table word (Txt varchar(10) collate nocase, Len int);"
            "insert into word values ('ABC',3),('zz',2)");
        s_engine = s_database->open();
    }
    static void TearDownTestSuite()
    {
        s_engine.reset();
        s_database.reset();
    }

    static std::unique_ptr<TestDatabase> s_database;
    static std::unique_ptr<vortaq::Engine> s_engine;
};

std::unique_ptr<TestDatabase> Semantics::s_database;
std::unique_ptr<vortaq::Engine> Semantics::s_engine;

class Answers : public Semantics { };

TEST_P(Answers, Exactly)
{
    EXPECT_EQ(ask(*s_engine, GetParam().statement), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Text, Answers,
    testing::Values(Row{"CaseAndBlanks", "select Id from t where Txt='ABC' order by Id", "1\n2"},
                    Row{"CaseInAColumnDeclaredOtherwise", "select Id from t where Plain='aBC '", "1"},
                    Row{"ColumnsOfBothSorts", "select Id from t where Plain=Txt order by Id", "1\n4"},
                    Row{"NotEqual", "select Id from t where Plain<>'ABC' order by Id", "2\n4"},
                    Row{"InList", "select Id from t where Plain in ('ABC','q') order by Id", "1"},
                    Row{"NotInList", "select Id from t where Plain not in ('ABC','q') order by Id", "2\n4"},
                    Row{"InQuery", "select Id from t where Plain in (select Txt from word) order by Id", "1"},
                    Row{"Between", "select Id from t where Plain between 'ABB' and 'ABD' order by Id", "1"},
                    Row{"Join", "select t.Id from t,word where t.Plain=word.Txt", "1"},
                    Row{"LeftJoin", "select t.Id,word.Len from t left join word on word.Txt=t.Plain order by t.Id",
                        "1|3\n2|~\n3|~\n4|~"},
                    Row{"SimpleCase", "select case Plain when 'ABC ' then 'yes' else 'no' end from t order by Id",
                        "yes\nno\nno\nno"},
                    Row{"GroupsBySameText", "select max(Id) as M from t group by Txt order by M", "2\n3\n4"},
                    Row{"MaxIgnoresCase", "select max(Plain) from t where Plain<'b'", "Abc"},
                    Row{"Order", "select Id from t order by Plain,Id", "3\n4\n1\n2"},
                    Row{"OrderDescending", "select Id from t order by Txt desc,Id desc", "2\n1\n4\n3"},
                    Row{"DerivedColumn", "select Id from (select Plain as P,Id from t) a where P='ABC'", "1"},
                    Row{"Length", "select len(Txt) from t order by Id", "3\n3\n~\n1"},
                    Row{"LengthOfChinese", "select len('城关 ')", "2"},
                    Row{"Concatenation", "select Txt+'岁' from t where Id=1", "Abc岁"},
                    Row{"ConcatenatesNumbersOnlyWhenCast", "select cast(Num as varchar(100))+Txt from t where Id=4",
                        "77"},
                    Row{"ConcatenationWithNull", "select Txt+Plain from t where Id=3", "~"},
                    Row{"Like", "select Id from t where Txt like 'A_C%' order by Id", "1\n2"},
                    Row{"NotLike", "select Id from t where Txt not like 'a%' order by Id", "4"},
                    Row{"LikeOfNull", "select Id from t where Txt like Plain order by Id", "1\n4"},
                    Row{"Cut", "select cast(Txt as varchar(2)) from t where Id=1", "Ab"}),
    [](const auto &row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Numbers, Answers,
    testing::Values(Row{"AmountsKeepTheirScale", "select Amt,Fine from t order by Id",
                        "0.10|1.2345\n0.20|2.5000\n~|~\n0.30|0.0001"},
                    Row{"SumIsExact", "select sum(Amt),sum(Fine) from t", "0.60|3.7346"},
                    Row{"SumOfInts", "select sum(Num) from t", "14"},
                    Row{"SumOfNothing", "select sum(Amt) from t where Id=3", "~"},
                    Row{"SumOfNoRow", "select sum(Amt),max(Num) from t where Id=9", "~|~"},
                    Row{"SumOfNoRowGuarded", "select isnull(sum(Amt),0) from t where Id=9", "0.00"},
                    Row{"SumOfFloats", "select sum(Flt) from t where Id<>2", "1.6"},
                    Row{"AddsDecimals", "select Amt+0.2 from t where Id=1", "0.30"},
                    Row{"ComparesSumsOfDecimals", "select Id from t where Amt+0.2=0.3", "1"},
                    Row{"SubtractsInts", "select Num-12 from t where Id=1", "-2"},
                    Row{"Negates", "select -Num,-Amt from t where Id=1", "-10|-0.10"},
                    Row{"LargeWholeNumbers", "select Big from t where Id=1", "9007199254740993"},
                    Row{"Floats", "select Flt from t order by Id", "1.5\n1e+20\n~\n0.1"},
                    Row{"TextAgainstInt", "select Id from t where Num='10'", "1"},
                    Row{"TextColumnAgainstInt", "select Id from t where Id=4 and Txt=7", "4"},
                    Row{"TextAgainstDecimal", "select Id from t where Amt=' 0.30'", "4"},
                    Row{"IntAgainstDecimal", "select Id from t where Fine=2.50", "2"},
                    Row{"EmptyTextIsZeroAsInt", "select Num from t where Num='' or Num=-3", "-3"},
                    Row{"CastToText", "select cast(Amt as varchar(10)),cast(Fine as varchar(10)) from t where Id=2",
                        "0.20|2.5000"},
                    Row{"IsNull", "select isnull(Num,0) from t order by Id", "10\n0\n-3\n7"},
                    Row{"Max", "select max(Num),max(Amt),max(Fine) from t", "10|0.30|2.5000"}),
    [](const auto &row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Str, Answers,
    testing::Values(Row{"RightAligned", "select Str(Amt,15,2) from t where Id=1", "           0.10"},
                    Row{"OfNull", "select Str(Amt,15,2) from t where Id=3", "~"},
                    Row{"OfAnInt", "select Str(Num,15,4) from t where Id=1", "        10.0000"},
                    Row{"Rounds", "select Str(Fine,15,2) from t order by Id",
                        "           1.23\n           2.50\n~\n           0.00"},
                    Row{"RoundsHalvesAwayFromZero", "select Str(1.005,6,2),Str(-1.005,6,2)", "  1.01| -1.01"},
                    Row{"RoundsToWhole", "select Str(2.5,5,0)", "    3"},
                    Row{"JustFits", "select Str(123.45,6,2)", "123.45"},
                    Row{"TooWide", "select Str(1234.56,6,2)", "******"}, Row{"Negative", "select Str(-7,4,1)", "-7.0"},
                    Row{"OfAFloat", "select Str(Flt,10,2) from t where Id=1", "      1.50"},
                    Row{"OfASum", "select Str(sum(Amt),15,2) from t", "           0.60"}),
    [](const auto &row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Dates, Answers,
    testing::Values(
        Row{"BareDate", "select Day from t order by Id", "2024-02-06\n2024-02-05\n~\n1999-12-31"},
        Row{"BareMomentHasNoMilliseconds", "select Moment from t order by Id",
            "2024-02-06 08:30:00\n2024-02-06 08:30:00\n~\n1999-12-31 23:59:59"},
        Row{"Convert", "select convert(varchar(10),Day,126),convert(varchar(10),Moment,126) from t order by Id",
            "2024-02-06|2024-02-06\n2024-02-05|2024-02-06\n~|~\n1999-12-31|1999-12-31"},
        Row{"ConvertInFull", "select convert(varchar(30),Moment,126) from t where Id=1", "2024-02-06T08:30:00"},
        Row{"GetDate", "select getdate()", "2024-02-06 09:30:15"},
        Row{"Today", "select Id from t where Day=convert(varchar(10),getdate(),126)", "1"},
        Row{"TodayInACase",
            "select (case Day when convert(varchar(10),getdate(),126) then '1' else '0' end) from t order by Id",
            "1\n0\n0\n0"},
        Row{"MomentIsNotTheWholeDay", "select Id from t where Moment='2024-02-06'", ""},
        Row{"DateAgainstMoment", "select Id from t where Day<Moment order by Id", "1\n2\n4"},
        Row{"OtherSpellings", "select Id from t where Day='20240206' or Day='2024/2/5' order by Id", "1\n2"},
        Row{"TextOfADateComparesAsText", "select Id from t where convert(varchar(10),Day,126) > '2024-1-31'", ""},
        Row{"Descending", "select Id from t order by Day desc", "1\n2\n4\n3"}),
    [](const auto &row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Queries, Answers,
    testing::Values(Row{"NullsAreLowest", "select Id from t order by Num", "2\n3\n4\n1"},
                    Row{"NullsComeLastDescending", "select Id from t order by Num desc", "1\n4\n3\n2"},
                    Row{"NotInWithANull", "select Id from t where Id not in (select Num from t)", ""},
                    Row{"ScalarSubquery",
                        "select Id,(select Len from word where word.Txt=t.Txt) as L from t order by Id",
                        "1|3\n2|3\n3|~\n4|~"},
                    Row{"ScalarSubqueryOverNothing", "select (select Len from word where Txt='none')", "~"},
                    Row{"AggregateSubquery", "select (select max(Len) from word)", "3"},
                    Row{"UnionAllKeepsDuplicates",
                        "select a.N from (select Num as N from t where Id=1 union all select Num from t where Id=1) a",
                        "10\n10"},
                    Row{"OrConditionsManyAndMixed",
                        "select Id from t where Id=1 or Num=-3 or Txt='7' or Amt=0.2 order by Id", "1\n2\n3\n4"},
                    Row{"Not", "select Id from t where not (Num>0) order by Id", "3"},
                    Row{"SameNameTwice", "select Id,Id from t where Id=1", "1|1"}),
    [](const auto &row) { return row.param.name; });

class Refuses : public Semantics { };

TEST_P(Refuses, WithReason)
{
    const std::string error = errorOf([] { ask(*s_engine, GetParam().statement); });
    EXPECT_EQ(error, GetParam().expected);
    // The connection is fit for the next statement.
    EXPECT_EQ(ask(*s_engine, "select Num from t where Id=1"), "10");
}

INSTANTIATE_TEST_SUITE_P(
    , Refuses,
    testing::Values(
        Row{"TextThatIsNoNumber", "select Id from t where Txt=7", "Conversion: “Abc”不能转换为int。\n所在列：Txt"},
        Row{"TextThatIsNoDate", "select Id from t where Day=Txt", "Conversion: “Abc”不能转换为date。\n所在列：Txt"},
        Row{"TextThatIsNoAmount", "select Id from t where Amt=Plain",
            "Conversion: “Abc”不能转换为decimal(15,2)。\n所在列：Plain"},
        Row{"IntOverflow", "select Num+2147483647 from t where Id=1", "Conversion: 数值“2147483657”超出了范围。"},
        Row{"SumOverflow", "select sum(Num+2147483630) from t where Id in (1,4)",
            "Conversion: 数值“4294967277”超出了范围。"},
        Row{"NumberTooLongForItsCast", "select cast(Amt as varchar(3)) from t where Id=1",
            "Conversion: “0.10”超出varchar(3)的范围。\n所在列：Amt"},
        Row{"SeveralRowsInAScalarSubquery", "select (select Len from word)",
            "Other: 子查询返回了多个值，此处只允许一个值。"},
        Row{"SeveralRowsPerRecord", "select (select Len from word where word.Len<t.Num) from t where Id=1",
            "Other: 子查询返回了多个值，此处只允许一个值。"}),
    [](const auto &row) { return row.param.name; });

// What another program wrote into a column without regard to its type is an error, not a silent nothing.
TEST(ForeignValues, TextInAnAmountIsRefused)
{
    TestDatabase database;
    database.run("insert into o_CbZyZdb (BillCode,BillNo,Fee,CanFreeFee) values ('1',1,'abc',' 1.5 ')");
    const auto engine = database.open();
    EXPECT_EQ(errorOf([&] { ask(*engine, "select Fee from o_CbZyZdb"); }),
              "Conversion: “abc”不是可用的数值。\n所在列：Fee");
    EXPECT_EQ(errorOf([&] { ask(*engine, "select sum(Fee) from o_CbZyZdb"); }),
              "Conversion: “abc”不是可用的数值。\n所在列：Fee\n所在行：BillCode=1，BillNo=1");
    EXPECT_EQ(ask(*engine, "select CanFreeFee,Str(CanFreeFee,8,2) from o_CbZyZdb"), "1.50|    1.50");
}

class Storing : public testing::Test {
protected:
    Storing()
    {
        m_database.run(
            "create table t (Id int primary key not null, Txt varchar(4) collate nocase, Num int, Amt decimal(7,2),"
            " Day date, Moment datetime);"
            "create table raw (Txt varchar(100) collate nocase, Amt decimal(15,4), Moment datetime, Day date);"
            "insert into raw values ('张三李四王五', 12345.675, null, null),"
            " ('12', 1.005, '2024-02-06 08:30:00', '2024-02-07'), ('ab    ', 99999.995, null, null)");
        m_engine = m_database.open();
    }

    std::string store(const std::string &column, const std::string &value, const std::string &condition)
    {
        return errorOf([&] {
            change(*m_engine, "insert into t(Id," + column + ") select 1," + value + " from raw where " + condition);
        });
    }
    std::string stored(const std::string &column)
    {
        return m_database.look("select quote(" + column + ") from t where Id=1");
    }

    TestDatabase m_database;
    std::unique_ptr<vortaq::Engine> m_engine;
};

TEST_F(Storing, LongTextIsRefused)
{
    EXPECT_EQ(store("Txt", "Txt", "Amt=12345.675"), "Conversion: “张三李四王五”太长，最多4个字符。\n所在列：Txt");
    EXPECT_EQ(stored("count(*)"), "0");
}

TEST_F(Storing, BlanksBeyondTheSizeAreDropped)
{
    EXPECT_EQ(store("Txt", "Txt", "Txt='ab'"), "no error");
    EXPECT_EQ(stored("Txt"), "'ab  '");
}

TEST_F(Storing, AmountsRoundHalvesAwayFromZero)
{
    EXPECT_EQ(store("Amt", "Amt", "Txt='12'"), "no error");
    EXPECT_EQ(stored("Amt"), "1.01");
}

TEST_F(Storing, AmountsOutOfRangeAreRefused)
{
    EXPECT_EQ(store("Amt", "Amt", "Txt='ab'"), "Conversion: “99999.9950”超出decimal(7,2)的范围。\n所在列：Amt");
}

TEST_F(Storing, AmountsLoseTheirDecimalsInAnInt)
{
    EXPECT_EQ(store("Num", "Amt", "Txt='ab'"), "no error");
    EXPECT_EQ(stored("Num"), "99999");
}

TEST_F(Storing, NumbersOutOfRangeAreRefused)
{
    EXPECT_EQ(store("Num", "Amt+3000000000", "Txt='12'"), "Conversion: “3000000001.0050”超出int的范围。\n所在列：Num");
}

TEST_F(Storing, TextBecomesANumber)
{
    EXPECT_EQ(store("Num", "Txt", "Txt='12'"), "no error");
    EXPECT_EQ(stored("Num"), "12");
}

TEST_F(Storing, AMomentBecomesADate)
{
    EXPECT_EQ(store("Day", "Moment", "Txt='12'"), "no error");
    EXPECT_EQ(stored("Day"), "'2024-02-06'");
}

TEST_F(Storing, ADateBecomesAMoment)
{
    EXPECT_EQ(store("Moment", "Day", "Txt='12'"), "no error");
    EXPECT_EQ(stored("Moment"), "'2024-02-07 00:00:00'");
}

TEST_F(Storing, NullInAKeyIsRefused)
{
    EXPECT_EQ(errorOf([&] { change(*m_engine, "insert into t(Id) values(null)"); }),
              "Constraint: 该列不允许为空（t.Id）。");
}

} // namespace
