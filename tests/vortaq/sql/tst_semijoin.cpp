// SPDX-License-Identifier: MIT
// Which joins become a question for a match, and which stay.
#include "vortaq/sql/semijoin.h"

#include "tests/vortaq/sql/dump.h"
#include "tests/vortaq/sql/testcatalog.h"
#include "vortaq/sql/prepare.h"

#include <gtest/gtest.h>

using namespace vortaq::sql;

namespace {

/// The tree from its first source on, without the output columns.
std::string sourcesOf(const std::string &statement)
{
    const std::string tree = test::dump(prepare(statement, test::hospitalCatalog(), Due::Query));
    const std::size_t from = tree.find("from ");
    return tree.substr(from, tree.find("\ncolumn ") - from);
}

std::string asked(const std::string &outside, const std::string &inside)
{
    return "from 1 a = o_CbZyZdb\nwhere " + outside + "exists correlated {\n  select\n    1:int : int\n" + inside
        + "  column  int\n}";
}

TEST(SemiJoin, ATableThatIsGroupedAwayAgain)
{
    EXPECT_EQ(sourcesOf("select a.Fee from o_CbZyZdb a,o_CbZyBxDj b where a.BillCode=b.BillCode and a.BillNo=b.BillNo "
                        "and a.Fee>1 group by a.BillCode,a.Fee,a.BillNo"),
              asked("and(1.Fee > 1.00:decimal(15,2); ",
                    "  from 2 b = o_CbZyBxDj\n  where and(1.BillCode = 2.BillCode; 1.BillNo = 2.BillNo)\n")
                  + ")");
}

TEST(SemiJoin, SeveralTablesAndEveryConditionThatReadsOne)
{
    EXPECT_EQ(sourcesOf("select a.Fee from o_CbZyBxDj b,o_CbZyZdb a,p_CbNhGrXx c where (a.BillNo=b.BillNo or "
                        "c.IDNo=a.BillNo) and a.BillNo in (select d.IDNo from p_CbNhGrXx d where d.IDNo=c.IDNo) group "
                        "by a.BillNo,a.BillCode,a.Fee"),
              R"(from 2 a = o_CbZyZdb
where exists correlated {
  select
    1:int : int
  from 1 b = o_CbZyBxDj
  from 3 c = p_CbNhGrXx
  where and(or(2.BillNo = 1.BillNo; 3.IDNo = 2.BillNo); 2.BillNo in correlated {
    select
      4.IDNo : int
    from 4 d = p_CbNhGrXx
    where 4.IDNo = 3.IDNo
    column IDNo int
  })
  column  int
})");
}

TEST(SemiJoin, AMatchWithoutCondition)
{
    EXPECT_EQ(sourcesOf("select a.Fee from o_CbZyZdb a,o_CbZyBxDj b group by a.BillCode,a.BillNo,a.Fee"),
              asked("", "  from 2 b = o_CbZyBxDj\n"));
}

TEST(SemiJoin, TheOnlyTableGroupedByItsKey)
{
    EXPECT_EQ(sourcesOf("select a.Fee from o_CbZyZdb a where a.Fee=1 group by a.BillCode,a.BillNo,a.Fee"),
              "from 1 a = o_CbZyZdb\nwhere 1.Fee = 1.00:decimal(15,2)");
}

struct Kept {
    const char *name;
    const char *statement;
};

void PrintTo(const Kept &kept, std::ostream *stream)
{
    *stream << kept.name;
}

class SemiJoinKept : public testing::TestWithParam<Kept> { };

TEST_P(SemiJoinKept, AsWritten)
{
    const std::string sources = sourcesOf(GetParam().statement);
    EXPECT_EQ(sources.find("exists"), std::string::npos) << sources;
    EXPECT_NE(sources.find("\ngroup by "), std::string::npos) << sources;
}

INSTANTIATE_TEST_SUITE_P(
    Joins, SemiJoinKept,
    testing::Values(
        Kept{"HalfTheKey",
             "select a.Fee from o_CbZyZdb a,o_CbZyBxDj b where a.BillNo=b.BillNo group by a.BillNo,a.Fee"},
        Kept{"SumOverMatches",
             "select sum(a.Fee) from o_CbZyZdb a,o_CbZyBxDj b where a.BillNo=b.BillNo group by a.BillNo,a.BillCode"},
        Kept{"OrderedByASum",
             "select a.Fee from o_CbZyZdb a,o_CbZyBxDj b where a.BillNo=b.BillNo group by "
             "a.BillNo,a.BillCode,a.Fee order by sum(a.Fee)"},
        Kept{"BothAreRead",
             "select b.IDNo from o_CbZyZdb a,o_CbZyBxDj b where a.BillNo=b.BillNo group by a.BillNo,a.BillCode,b.IDNo"},
        Kept{"LeftJoin",
             "select a.Fee from o_CbZyZdb a left join o_CbZyBxDj b on a.BillNo=b.BillNo group by "
             "a.BillNo,a.BillCode,a.Fee"},
        Kept{"DerivedTable",
             "select a.Fee from o_CbZyZdb a,(select BillNo from o_CbZyBxDj) b where a.BillNo=b.BillNo "
             "group by a.BillNo,a.BillCode,a.Fee"},
        Kept{"TableWithoutKey", "select a.name from SysObjects a,o_CbZyBxDj b group by a.name"}),
    [](const auto &row) { return row.param.name; });

} // namespace
