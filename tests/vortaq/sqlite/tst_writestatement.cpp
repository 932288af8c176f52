// SPDX-License-Identifier: MIT
// The text that SQLite gets to see.
#include "vortaq/sqlite/writestatement.h"

#include "tests/vortaq/sqlite/testdatabase.h"
#include "vortaq/sql/prepare.h"
#include "vortaq/sqlite/CatalogReader.h"
#include "vortaq/sqlite/Connection.h"

#include <gtest/gtest.h>

namespace {

using namespace vortaq;

class Written : public testing::Test {
protected:
    Written()
        : m_connection(m_database.file(), {true, std::chrono::milliseconds(100)})
        , m_catalog(m_connection)
    {
    }

    std::string query(const std::string &text) { return write(text, sql::Due::Query).text; }
    std::string change(const std::string &text) { return write(text, sql::Due::Change).text; }

    sqlite::WrittenStatement write(const std::string &text, sql::Due due)
    {
        m_statement = sql::prepare(text, m_catalog, due);
        return sqlite::writeStatement(*m_statement);
    }

    test::TestDatabase m_database;
    sqlite::Connection m_connection;
    sqlite::CatalogReader m_catalog;
    std::optional<sql::Statement> m_statement; // what was written refers to it
};

TEST_F(Written, NamesAreTheDatabasesOwn)
{
    EXPECT_EQ(
        query("select FEETYPECODE from P_FYLB where length(feetypecode)=2 order by FeeTypeCode"),
        R"(SELECT s1."FeeTypeCode" AS c0 FROM "p_fylb" AS s1 WHERE (length(rtrim(s1."FeeTypeCode")) = 2) ORDER BY 1 COLLATE NOCASE)");
}

TEST_F(Written, TextGetsItsCollationWhereTheColumnHasNone)
{
    EXPECT_EQ(query("select name from SysObjects where name='a''b'"),
              R"(SELECT s1."name" AS c0 FROM "SysObjects" AS s1 WHERE (s1."name" COLLATE NOCASE = 'a''b'))");
}

TEST_F(Written, AQuestionForAMatch)
{
    EXPECT_EQ(
        query("select a.Fee from o_CbZyZdb a,o_CbZyBxDj b where a.BillNo=b.BillNo group by a.BillCode,a.BillNo,a.Fee"),
        R"(SELECT s1."Fee" AS c0 FROM "o_CbZyZdb" AS s1 WHERE EXISTS (SELECT 1 AS c0 FROM "o_CbZyBxDj" AS s2 WHERE (s1."BillNo" = s2."BillNo")))");
}

TEST_F(Written, OneMomentForTheWholeStatement)
{
    const sqlite::WrittenStatement written =
        write("select IDNo from o_CbZyBxDj where OutDate=getdate()", sql::Due::Query);
    EXPECT_EQ(written.text,
              R"(SELECT s1."IDNo" AS c0 FROM "o_CbZyBxDj" AS s1 WHERE ((s1."OutDate" || ' 00:00:00') = ?1))");
    EXPECT_TRUE(written.readsClock);
}

TEST_F(Written, AScalarSubqueryMayHaveOneRowOnly)
{
    EXPECT_EQ(
        query("select (select Address from p_CbNhGrXx where isHouseHolder='1') as A"),
        R"(SELECT (SELECT ts_single(c0) FROM (SELECT s1."Address" AS c0 FROM "p_CbNhGrXx" AS s1 WHERE (s1."isHouseHolder" = '1'))) AS c0)");
}

TEST_F(Written, AnAggregateHasOneRowAnyway)
{
    EXPECT_EQ(query("select (select max(IDNo) from p_CbNhGrXx) as A"),
              R"(SELECT (SELECT max(s1."IDNo") AS c0 FROM "p_CbNhGrXx" AS s1) AS c0)");
}

TEST_F(Written, SumsAreExact)
{
    EXPECT_EQ(query("select sum(Fee) from o_CbZyBxDjZb"),
              R"(SELECT ts_sum(s1."Fee", 4, 0, s1.rowid) AS c0 FROM "o_CbZyBxDjZb" AS s1)");
    EXPECT_EQ(query("select sum(IDNo) from o_CbZyBxDjZb"),
              R"(SELECT ts_int(ts_sum(s1."IDNo", 0, 0, s1.rowid)) AS c0 FROM "o_CbZyBxDjZb" AS s1)");
}

TEST_F(Written, ChangesThroughADerivedTable)
{
    EXPECT_EQ(
        change("update o_CbZyZdb set o_CbZyZdb.Fee=a.F from (select sum(TotalFee) as F from o_CbZyBxDj a where "
               "a.BillNo=1) a"
               " where o_CbZyZdb.BillNo=1"),
        R"(UPDATE "o_CbZyZdb" AS s1 SET "Fee" = ts_convert(s2.c0, 'decimal(38,2)', 'decimal(15,2)', 'store', 1, s1.rowid) FROM )"
        R"((SELECT ts_sum(s3."TotalFee", 2, 0, s3.rowid) AS c0 FROM "o_CbZyBxDj" AS s3 WHERE (s3."BillNo" = 1)) AS s2 WHERE (s1."BillNo" = 1))");
}

TEST_F(Written, OnlyIndexedTextIsTrimmed)
{
    EXPECT_EQ(
        change("insert into o_CbZyZdb(BillCode,BillNo,BillName) values('a ',1,'b ')"),
        R"(INSERT INTO "o_CbZyZdb" ("BillCode", "BillNo", "BillName") SELECT rtrim('a ') AS c0, 1 AS c1, 'b ' AS c2)");
}

TEST_F(Written, KeysAreLookedUpInATable)
{
    std::string condition;
    for (int i = 0; i < 50; ++i) {
        condition += std::string(i == 0 ? "" : " or ")
            + "(OrgCode='4201' and CoopMedCode='0012' and IDNo=" + std::to_string(i) + " and DiagNo=1)";
    }
    const sqlite::WrittenStatement written =
        write("update o_CbZyBxDj set BillNo=1 where (" + condition + ") and BillCode is null", sql::Due::Change);
    EXPECT_EQ(
        written.text,
        R"(UPDATE "o_CbZyBxDj" AS s1 SET "BillNo" = 1 WHERE (s1.rowid IN (SELECT r.rowid FROM temp.ts_keys0 AS k CROSS JOIN )"
        R"("o_CbZyBxDj" AS r WHERE r."OrgCode" = k.k0 AND r."CoopMedCode" = k.k1 AND r."IDNo" = k.k2 AND r."DiagNo" = k.k3))"
        R"( AND (s1."BillCode" IS NULL)))");
    ASSERT_EQ(written.keyTables.size(), 1U);
    EXPECT_EQ(written.keyTables[0].table, "ts_keys0");
    EXPECT_EQ(written.keyTables[0].keys->rowCount(), 50U);
}

// A table without row numbers is searched by the key itself.
TEST_F(Written, KeysOfATableWithoutRowNumbers)
{
    m_database.run("create table Own (A varchar(9) collate nocase, B int, primary key (A, B)) without rowid");
    m_catalog.refresh();
    std::string condition;
    for (int i = 0; i < 50; ++i)
        condition += std::string(i == 0 ? "" : " or ") + "(A='0012' and B=" + std::to_string(i) + ")";
    EXPECT_EQ(
        query("select A from Own where " + condition),
        R"(SELECT s1."A" AS c0 FROM "Own" AS s1 WHERE (s1."A" COLLATE NOCASE, s1."B") IN (SELECT k0, k1 FROM temp.ts_keys0))");
}

TEST_F(Written, LongChainsAreBalanced)
{
    std::string condition = "IDNo=0";
    for (int i = 1; i < 4000; ++i)
        condition += " or DiagNo<" + std::to_string(i);
    const std::string text = query("select IDNo from o_CbZyBxDj where " + condition);
    int depth = 0;
    int deepest = 0;
    for (const char c : text) {
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        deepest = std::max(deepest, depth);
    }
    EXPECT_EQ(depth, 0);
    EXPECT_LE(deepest, 10);
}

TEST_F(Written, ACharacterThatWouldEndTheTextIsRefused)
{
    sql::Statement statement = sql::prepare("select 'x'", m_catalog, sql::Due::Query);
    auto &item = std::get<sql::Query>(statement.node).selects.front().items.front();
    std::get<sql::Literal>(item.value->node).text = std::string("a\0b", 3);
    EXPECT_EQ(test::errorOf([&] { (void)sqlite::writeStatement(statement); }),
              "Conversion: 文本中含有不能使用的字符（0）。");
}

TEST(QuotedName, DoublesQuotes)
{
    EXPECT_EQ(sqlite::quotedName("a\"b"), "\"a\"\"b\"");
}

} // namespace
