// SPDX-License-Identifier: MIT
// The walk over the tree, in the words of a database that differs from SQLite in all that the walk asks for.
#include "vortaq/engines/statementtext.h"

#include "tests/vortaq/sql/testcatalog.h"
#include "vortaq/engines/StatementWriter.h"
#include "vortaq/sql/prepare.h"

#include <gtest/gtest.h>

namespace {

using namespace vortaq;
using engines::Side;
using engines::StatementWriter;

/// Names in brackets; every literal with its type; both sides of a comparison folded; nulls placed by word; groups told
/// by a folded column; keys as numbered parameters.
class OtherDialect final : public engines::Dialect {
public:
    [[nodiscard]] std::string name(const std::string &name) const override { return "[" + name + "]"; }
    void literal(StatementWriter &out, const sql::Literal &literal, const sql::Type &type) override
    {
        out << (literal.isNull ? "null" : "'" + literal.text + "'") << "::" << sql::typeName(type);
    }
    void column(StatementWriter &out, const sql::ColumnRef &column, const sql::Type &) override
    {
        const std::string name = engines::sourceName(column.source) + "." + out.columnName(column);
        out << (out.writesRows() ? name : "min(" + name + ")");
    }
    void conversion(StatementWriter &out, const sql::Conversion &conversion, const sql::Type &to) override
    {
        const engines::ValuePlace place = out.placeOf(*conversion.operand);
        out << "conv(" << *conversion.operand << ", " << sql::typeName(to) << ", " << place.column << ' '
            << place.source << ')';
    }
    void arithmetic(StatementWriter &out, const sql::Arithmetic &arithmetic, const sql::Type &) override
    {
        out << "plus(" << *arithmetic.left << ", " << *arithmetic.right << ')';
    }
    void call(StatementWriter &out, const sql::Call &call) override
    {
        out << "call" << static_cast<int>(call.function) << '(';
        for (const sql::ExprPtr &argument : call.arguments)
            out << *argument << ';';
        out << ')';
    }
    void aggregate(StatementWriter &out, const sql::Aggregate &aggregate) override
    {
        out << "agg(" << *aggregate.operand << ')';
    }
    void scalar(StatementWriter &out, const sql::Subquery &subquery) override { out << '(' << *subquery.query << ')'; }
    void compared(StatementWriter &out, const sql::Expr &value, Side side) override
    {
        out << (side == Side::Left ? "L(" : "R(") << value << ')';
    }
    void order(StatementWriter &out, const sql::Query &, const sql::OrderTerm &term) override
    {
        if (term.output)
            out << 'c' << static_cast<int>(*term.output);
        else
            out << *term.value;
        out << (term.descending ? " desc nulls last" : " asc nulls first");
    }
    void like(StatementWriter &out, const sql::Like &like) override
    {
        out << "like(" << *like.operand << ", " << *like.pattern << ')';
    }
    void inQuery(StatementWriter &out, const sql::InQuery &test) override
    {
        out << "in(" << *test.operand << ", " << *test.subquery.query << ')';
    }
    void keyList(StatementWriter &out, const sql::KeyList &keys) override
    {
        out << "keys" << static_cast<int>(keys.rowCount()) << '(';
        for (const sql::ColumnRef &column : keys.columns)
            out << out.columnName(column) << ';';
        out << ')';
    }
    void stored(StatementWriter &out, const sql::Expr &value, const engines::StoredInto &into) override
    {
        out << value << "->" << into.table.columns[into.column].name << into.source;
    }
};

std::string written(const std::string &text, sql::Due due)
{
    const sql::Statement statement = sql::prepare(text, sql::test::hospitalCatalog(), due);
    OtherDialect dialect;
    return engines::statementText(statement, dialect);
}

struct Row {
    const char *name;
    sql::Due due;
    std::string statement;
    std::string text;
};

class StatementText : public testing::TestWithParam<Row> { };

TEST_P(StatementText, AsksTheDialectForWhatDiffers)
{
    EXPECT_EQ(written(GetParam().statement, GetParam().due), GetParam().text);
}

std::string tenKeys()
{
    std::string result;
    for (int i = 0; i < 10; ++i)
        result += (i == 0 ? "BillNo=" : " or BillNo=") + std::to_string(i);
    return result;
}

constexpr auto query = sql::Due::Query;
constexpr auto change = sql::Due::Change;

INSTANTIATE_TEST_SUITE_P(
    , StatementText,
    testing::Values(
        Row{"NamesAndComparisons", query, "select BillNo from o_CbZyZdb where BillName='x' and BillNo is null",
            "SELECT s1.[BillNo] AS c0 FROM [o_CbZyZdb] AS s1 WHERE ((L(s1.[BillName]) = R('x'::varchar(1))) AND "
            "(s1.[BillNo] IS NULL))"},
        Row{"ListsAndRanges", query,
            "select BillNo from o_CbZyZdb where BillNo in (1,2) and not BillNo between 3 and 4 and BillName like 'a'",
            "SELECT s1.[BillNo] AS c0 FROM [o_CbZyZdb] AS s1 WHERE ((L(s1.[BillNo]) IN (R('1'::int), R('2'::int))) AND "
            "(NOT (L(s1.[BillNo]) BETWEEN R('3'::int) AND R('4'::int))) AND like(s1.[BillName], 'a'::varchar(1)))"},
        Row{"Order", query, "select BillNo from o_CbZyZdb order by BillNo desc,BillName",
            "SELECT s1.[BillNo] AS c0 FROM [o_CbZyZdb] AS s1 ORDER BY c0 desc nulls last, s1.[BillName] asc nulls "
            "first"},
        Row{"Groups", query, "select BillName,sum(BillNo) as N from o_CbZyZdb group by BillName",
            "SELECT min(s1.[BillName]) AS c0, agg(s1.[BillNo]) AS c1 FROM [o_CbZyZdb] AS s1 GROUP BY "
            "L(s1.[BillName])"},
        Row{"JoinsAndDerivedTables", query,
            "select a.N from (select BillNo as N from o_CbZyZdb union all select null) a left join o_CbZyBxDj b on "
            "b.BillNo=a.N",
            "SELECT s1.c0 AS c0 FROM (SELECT s2.[BillNo] AS c0 FROM [o_CbZyZdb] AS s2 UNION ALL SELECT null::int AS "
            "c0) "
            "AS s1 LEFT JOIN [o_CbZyBxDj] AS s3 ON (L(s3.[BillNo]) = R(s1.c0))"},
        Row{"Conversions", query,
            "select case BillNo when 1 then 'a' else cast(BillNo as varchar(9)) end as A from "
            "o_CbZyZdb where BillName=7",
            "SELECT CASE L(s1.[BillNo]) WHEN R('1'::int) THEN 'a'::varchar(9) ELSE conv(s1.[BillNo], varchar(9), "
            "BillNo "
            "1) END AS c0 FROM [o_CbZyZdb] AS s1 WHERE (L(conv(s1.[BillName], int, BillName 1)) = R('7'::int))"},
        Row{"AGroupIsNoRow", query, "select BillName+1 as N from o_CbZyZdb group by BillName",
            "SELECT plus(conv(min(s1.[BillName]), int, BillName 0), '1'::int) AS c0 FROM [o_CbZyZdb] AS s1 GROUP BY "
            "L(s1.[BillName])"},
        Row{"KeyLists", query, "select BillName from o_CbZyZdb where " + tenKeys(),
            "SELECT s1.[BillName] AS c0 FROM [o_CbZyZdb] AS s1 WHERE keys10([BillNo];)"},
        Row{"Insertion", change, "insert into o_CbZyZdb(BillCode,BillNo) values('4201',7)",
            "INSERT INTO [o_CbZyZdb] ([BillCode], [BillNo]) SELECT '4201'::varchar(20)->BillCode0 AS c0, "
            "'7'::int->BillNo0 AS c1"},
        Row{"Update", change,
            "update o_CbZyZdb set BillNo=a.N from (select max(BillNo) as N from o_CbZyZdb) a where BillCode='1'",
            "UPDATE [o_CbZyZdb] AS s1 SET [BillNo] = s2.c0->BillNo1 FROM (SELECT agg(s3.[BillNo]) AS c0 FROM "
            "[o_CbZyZdb] AS s3) AS s2 WHERE (L(s1.[BillCode]) = R('1'::varchar(1)))"},
        Row{"Deletion", change, "delete from o_CbZyZdb where BillNo in (select max(BillNo) from o_CbZyZdb)",
            "DELETE FROM [o_CbZyZdb] AS s1 WHERE in(s1.[BillNo], SELECT agg(s2.[BillNo]) AS c0 FROM [o_CbZyZdb] AS "
            "s2)"}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace
