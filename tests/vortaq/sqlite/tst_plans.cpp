// SPDX-License-Identifier: MIT
// Lists stay fast however many records there are: what is written for SQLite goes through the indexes.
#include "tests/vortaq/sql/corpus.h"
#include "tests/vortaq/sqlite/testdatabase.h"
#include "vortaq/sqlite/CatalogReader.h"
#include "vortaq/sqlite/Connection.h"
#include "vortaq/sqlite/PreparedStatement.h"
#include "vortaq/sqlite/keytables.h"
#include "vortaq/sqlite/writestatement.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace vortaq;

class Plans : public testing::Test {
protected:
    Plans()
        : m_connection(m_database.file(), {false, std::chrono::milliseconds(100)})
        , m_catalog(m_connection)
    {
    }

    /// SQLite's own words for how it reads each table, in order, joined by "; ".
    std::string planOf(const std::string &text, sql::Due due)
    {
        const sql::Statement statement = sql::prepare(text, m_catalog, due);
        const sqlite::WrittenStatement written = sqlite::writeStatement(statement);
        sqlite::fillKeyTables(m_connection, written.keyTables);
        sqlite::PreparedStatement plan(m_connection, "explain query plan " + written.text);
        std::string result;
        while (plan.step())
            result += (result.empty() ? "" : "; ") + std::string(plan.text(3));
        return result;
    }

    std::string planOfQuery(const std::string &title)
    {
        const auto corpus = sql::test::readCorpus("queries.txt");
        const auto entry =
            std::find_if(corpus.begin(), corpus.end(), [&](const auto &each) { return each.title == title; });
        return entry == corpus.end() ? "no such query" : planOf(entry->statement, sql::Due::Query);
    }

    test::TestDatabase m_database;
    sqlite::Connection m_connection;
    sqlite::CatalogReader m_catalog;
};

bool has(const std::string &plan, const std::string &step)
{
    return plan.find(step) != std::string::npos;
}

TEST_F(Plans, TheHistoryFindsABillsRecords)
{
    const std::string plan = planOfQuery("all bills, current and archived");
    EXPECT_TRUE(has(plan, "USING COVERING INDEX o_CbZyBxDj_Bill (BillCode=?")) << plan;
    EXPECT_TRUE(has(plan, "USING COVERING INDEX s_CbZyBxDj_Bill (BillCode=?")) << plan;
    EXPECT_FALSE(has(plan, "GROUP BY")) << plan; // one record of a bill is enough, however many it has
}

TEST_F(Plans, AMembersStaysAreFoundForTheLifetimeSums)
{
    const std::string plan = planOfQuery("approval form with lifetime sums, current");
    EXPECT_TRUE(has(plan, "SEARCH s3 USING INDEX sqlite_autoindex_o_CbZyBxDj_1 (CoopMedCode=? AND IDNo=?)")) << plan;
    EXPECT_TRUE(has(plan, "SEARCH s4 USING INDEX sqlite_autoindex_s_CbZyBxDj_1 (CoopMedCode=? AND IDNo=?)")) << plan;
}

TEST_F(Plans, TheTreeFindsUnbilledInstitutions)
{
    const std::string plan = planOfQuery("institutions with unbilled records");
    EXPECT_TRUE(has(plan, "INDEX o_CbZyBxDj_Unbilled")) << plan;
}

TEST_F(Plans, AnInstitutionsUnbilledPatients)
{
    const std::string plan = planOfQuery("unbilled patients of an institution");
    EXPECT_TRUE(has(plan, "SEARCH s1 USING INDEX o_CbZyBxDj_Unbilled (OrgCode=?)")) << plan;
}

TEST_F(Plans, TheRecordsOfABill)
{
    const std::string plan = planOfQuery("records of a made bill");
    EXPECT_TRUE(has(plan, "SEARCH s1 USING INDEX o_CbZyBxDj_Bill (BillCode=? AND BillNo=?)")) << plan;
}

TEST_F(Plans, OneRecordByItsKey)
{
    EXPECT_EQ(
        planOf("update o_cbzybxdj set OutDate=null where OrgCode='4201' and CoopMedCode='1' and IDNo=2 and DiagNo=1",
               sql::Due::Change),
        "SEARCH s1 USING INDEX sqlite_autoindex_o_CbZyBxDj_1 (CoopMedCode=? AND IDNo=? AND DiagNo=? AND OrgCode=?)");
    EXPECT_EQ(planOfQuery("fee items").substr(0, 111),
              "SEARCH s1 USING INDEX sqlite_autoindex_o_CbZyBxDjZb_1 (CoopMedCode=? AND IDNo=? AND DiagNo=? AND "
              "OrgCode=?); SE");
}

TEST_F(Plans, ManyRecordsByTheirKeys)
{
    std::string condition;
    for (int i = 0; i < 100; ++i) {
        condition += std::string(i == 0 ? "" : " or ")
            + "(OrgCode='4201' and CoopMedCode='1' and IDNo=" + std::to_string(i) + " and DiagNo=1)";
    }
    const std::string search = "SEARCH r USING COVERING INDEX sqlite_autoindex_o_CbZyBxDj_1"
                               " (CoopMedCode=? AND IDNo=? AND DiagNo=? AND OrgCode=?)";
    for (const auto &[text, due] :
         {std::pair{"update o_CbZyBxDj set BillNo=1 where " + condition, sql::Due::Change},
          std::pair{"select IDNo from o_CbZyBxDj where (" + condition + ") and BillCode is not null",
                    sql::Due::Query}}) {
        const std::string plan = planOf(text, due);
        EXPECT_TRUE(has(plan, "SEARCH s1 USING INTEGER PRIMARY KEY (rowid=?)")) << plan;
        EXPECT_TRUE(has(plan, search)) << plan;
    }
}

} // namespace
