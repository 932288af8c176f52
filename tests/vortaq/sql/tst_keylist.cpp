// SPDX-License-Identifier: MIT
// Ticked records written as an OR of their keys become one list of keys, however many.
#include "tests/vortaq/sql/dump.h"
#include "tests/vortaq/sql/refusal.h"
#include "tests/vortaq/sql/testcatalog.h"
#include "vortaq/sql/prepare.h"

#include <gtest/gtest.h>

using namespace vortaq;
using namespace vortaq::sql;

namespace {

std::string clause(int member, int visit)
{
    return "(OrgCode='4201' and CoopMedCode='M" + std::to_string(member) + "' and IDNo=" + std::to_string(member % 9)
        + " and DiagNo=" + std::to_string(visit) + ")";
}

/// As the bill-making page builds it: a blank, then the clauses.
std::string condition(int count)
{
    std::string result;
    for (int i = 0; i < count; ++i)
        result += (i == 0 ? " " : " or ") + clause(i, 1);
    return result;
}

const std::string fragment = "select PatientName from o_CbZyBxDj where ";

std::string whereOf(const std::string &where)
{
    const Statement statement = prepare(fragment + where, test::hospitalCatalog(), Due::Query);
    const std::string dumped = test::dump(statement);
    const std::size_t begin = dumped.find("where ") + 6;
    return dumped.substr(begin, dumped.find('\n', begin) - begin);
}

const std::string columns = "1.OrgCode varchar(20), 1.CoopMedCode varchar(30), 1.IDNo int, 1.DiagNo int";

std::string rows(int count)
{
    std::string result;
    for (int i = 0; i < count; ++i)
        result += "; 4201, M" + std::to_string(i) + ", " + std::to_string(i % 9) + ", 1";
    return result;
}

TEST(KeyList, AWholeCondition)
{
    EXPECT_EQ(whereOf(condition(8)), "keys(" + columns + rows(8) + ")");
}

TEST(KeyList, InParenthesesWithAnotherTest)
{
    EXPECT_EQ(whereOf("(" + condition(8) + ") and BillCode is not null"),
              "and(keys(" + columns + rows(8) + "); 1.BillCode is not null)");
}

TEST(KeyList, AFewTermsStayAsTheyAre)
{
    EXPECT_TRUE(whereOf(condition(7)).starts_with("or(and(1.OrgCode = '4201'; 1.CoopMedCode = 'M0'; "));
}

TEST(KeyList, OtherTermsStayBesideIt)
{
    EXPECT_EQ(whereOf("BillNo is null or " + condition(8) + " or IDNo > 3"),
              "or(keys(" + columns + rows(8) + "); 1.BillNo is null; 1.IDNo > 3:int)");
}

TEST(KeyList, TermsOfAnotherShapeStayBesideIt)
{
    const std::string turned = " or (IDNo=1 and OrgCode='4201')";
    EXPECT_EQ(whereOf(condition(8) + turned),
              "or(keys(" + columns + rows(8) + "); and(1.IDNo = 1:int; 1.OrgCode = '4201'))");
}

TEST(KeyList, NamesInAnyLetterCaseAndWrittenNumbersInOneSpelling)
{
    std::string where = condition(7);
    where += " or (orgcode='4201' and COOPMEDCODE='M7' and IDNO='07' and diagno=001)";
    EXPECT_EQ(whereOf(where), "keys(" + columns + rows(7) + "; 4201, M7, 7, 1)");
}

TEST(KeyList, QuotesInsideValues)
{
    EXPECT_TRUE(whereOf(condition(7) + " or (OrgCode='a''b' and CoopMedCode='' and IDNo=1 and DiagNo=1)")
                    .ends_with("; a'b, , 1, 1)"));
}

TEST(KeyList, OneColumn)
{
    std::string where = "IDNo=0";
    for (int i = 1; i < 9; ++i)
        where += " or IDNo=" + std::to_string(i);
    EXPECT_EQ(whereOf(where), "keys(1.IDNo int; 0; 1; 2; 3; 4; 5; 6; 7; 8)");
}

TEST(KeyList, NumbersComparedWithTextStayComparisons)
{
    std::string where = "OrgCode=0";
    for (int i = 1; i < 9; ++i)
        where += " or OrgCode=" + std::to_string(i);
    EXPECT_TRUE(whereOf(where).starts_with("or(to int(1.OrgCode) = 0:int; "));
}

TEST(KeyList, ValuesBeyondTheColumnsTypeStayComparisons)
{
    EXPECT_TRUE(whereOf(condition(8) + " or (OrgCode='4201' and CoopMedCode='M' and IDNo=1.5 and DiagNo=1)")
                    .ends_with("; to decimal(11,1)(1.IDNo) = 1.5:decimal(2,1); 1.DiagNo = 1:int))"));
}

TEST(KeyList, TheSameColumnTwiceIsNoKey)
{
    std::string where;
    for (int i = 0; i < 9; ++i)
        where += (i == 0 ? "" : " or ") + std::string("(IDNo=1 and IDNo=2)");
    EXPECT_TRUE(whereOf(where).starts_with("or(and("));
}

TEST(KeyList, ColumnsOfTwoTablesAreNoKey)
{
    std::string where;
    for (int i = 0; i < 9; ++i)
        where += (i == 0 ? "" : " or ") + std::string("(a.IDNo=1 and b.BillNo=2)");
    const Statement statement =
        prepare("select a.IDNo from o_CbZyBxDj a,o_CbZyZdb b where " + where, test::hospitalCatalog(), Due::Query);
    EXPECT_EQ(test::dump(statement).find("keys("), std::string::npos);
}

TEST(KeyList, ColumnsOfAQueryAroundAreNoKey)
{
    std::string where;
    for (int i = 0; i < 9; ++i)
        where += (i == 0 ? "" : " or ") + std::string("a.IDNo=1");
    const Statement statement =
        prepare("select IDNo from o_CbZyBxDj a where IDNo in (select BillNo from o_CbZyZdb where " + where + ")",
                test::hospitalCatalog(), Due::Query);
    EXPECT_EQ(test::dump(statement).find("keys("), std::string::npos);
    EXPECT_NE(test::dump(statement).find("in correlated {"), std::string::npos);
}

TEST(KeyList, WhatIsNoNumberIsRefusedAtItsPlace)
{
    const auto refusal = [](const std::string &memberNumber) {
        const std::string before = condition(8) + " or (OrgCode='4201' and CoopMedCode='M' and IDNo=";
        try {
            return whereOf(before + memberNumber + " and DiagNo=1)");
        } catch (const SqlError &error) {
            const std::string place = std::to_string(fragment.size() + before.size() + 1);
            EXPECT_TRUE(test::firstLineOf(error).ends_with("（第1行第" + place + "列）")) << error.what();
            return std::string(error.reason() == SqlError::Reason::Binding ? "binding" : "conversion");
        }
    };
    EXPECT_EQ(refusal("abc"), "binding");
    EXPECT_EQ(refusal("'abc'"), "conversion");
    EXPECT_TRUE(refusal("7").ends_with("; 4201, M, 7, 1)"));
}

TEST(KeyList, TwentyThousandRecordsInEveryStatementThatNamesThem)
{
    constexpr int count = 20000;
    const std::string keys = condition(count);
    const Statement query = prepare(" select OrgCode,CoopMedCode,IDNO,DiagNo,PatientName  from o_CbZyBxDj  where ("
                                        + keys + ") and BillCode is not null",
                                    test::hospitalCatalog(), Due::Query);
    const auto &both = std::get<Junction>(std::get<Query>(query.node).selects[0].where->node);
    EXPECT_EQ(std::get<KeyList>(both.operands[0]->node).rowCount(), static_cast<std::size_t>(count));

    const Statement update = prepare(" update o_CbZyBxDj  set BillCode ='4201',BillNo=13 where " + keys,
                                     test::hospitalCatalog(), Due::Change);
    EXPECT_EQ(std::get<KeyList>(std::get<Update>(update.node).where->node).rowCount(), static_cast<std::size_t>(count));

    const Statement insert = prepare("insert into o_CbZyZdb(BillCode,BillNo,Fee) select '4201',13,sum(TotalFee)"
                                     " from o_CbZyBxDj where "
                                         + keys,
                                     test::hospitalCatalog(), Due::Change);
    EXPECT_EQ(std::get<KeyList>(std::get<Insert>(insert.node).rows.selects[0].where->node).rowCount(),
              static_cast<std::size_t>(count));
}

} // namespace
