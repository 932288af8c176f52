// SPDX-License-Identifier: MIT
// The place of a refusal, shown so that a clerk's telephone call can be understood.
#include "tests/vortaq/sql/corpus.h"
#include "tests/vortaq/sql/refusal.h"
#include "tests/vortaq/sql/testcatalog.h"
#include "vortaq/sql/diagnostic.h"
#include "vortaq/sql/excerpt.h"
#include "vortaq/sql/prepare.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

using namespace vortaq;
using namespace vortaq::sql;

struct Row {
    const char *name;
    std::string text; ///< the place where the @ stands, which is no part of the text
    std::string shown;
};

class Excerpt : public testing::TestWithParam<Row> { };

TEST_P(Excerpt, MarksThePlace)
{
    std::string text = GetParam().text;
    const std::size_t place = text.find('@');
    text.erase(place, 1);
    EXPECT_EQ(excerpt(text, place), GetParam().shown);
}

std::string times(int count, std::string_view piece)
{
    std::string result;
    for (int i = 0; i < count; ++i)
        result += piece;
    return result;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Excerpt,
    testing::Values(Row{"InTheMiddle", "select a from t where @or b=1", "select a from t where ▶or b=1"},
                    Row{"AtTheBeginning", "@drop table t", "▶drop table t"},
                    Row{"AtTheEnd", "delete from t where @", "delete from t where ▶"},
                    Row{"BlanksAround", "  select @x from t  \r", "select ▶x from t"},
                    Row{"OneLineOfSeveral", "select a\n from t\n where @or b=1\n order by a", "where ▶or b=1"},
                    Row{"AtALineBreak", "select a from@\nwhere b=1", "select a from▶"},
                    Row{"AtTheFirstLetterOfALine", "select a\n@or", "▶or"},
                    Row{"AfterTheLastLine", "update t set\n \n @", "update t set▶"},
                    Row{"InAnEmptyLine", "update t set\n@\nwhere b=1", "update t set▶"},
                    Row{"Chinese", "select 姓名 from 病人 where 状态='在院' @or 科室='内科'",
                        "select 姓名 from 病人 where 状态='在院' ▶or 科室='内科'"},
                    Row{"Tabs", "\tselect\ta\t@or\tb", "select a ▶or b"},
                    Row{"Controls", "select a\x01 @or\x7f", "select a  ▶or "},
                    Row{"BrokenBytes", "select '\xe5\x8c' @\xff", "select '��' ▶�"},
                    Row{"FourBytes", "select '𠮷@𠮷'", "select '𠮷▶𠮷'"},
                    Row{"JustNotCut", times(40, "前") + "@" + times(40, "后"), times(40, "前") + "▶" + times(40, "后")},
                    Row{"CutOnBothSides", times(41, "前") + "@" + times(41, "后"),
                        "…" + times(40, "前") + "▶" + times(40, "后") + "…"},
                    Row{"NoText", " \n @ ", ""}, Row{"Nothing", "@", ""}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(Excerpt, BeyondTheTextIsItsEnd)
{
    EXPECT_EQ(excerpt("select", 100), "select▶");
}

/// The byte that a message's （第1行第5列） means.
std::size_t offsetOf(std::string_view statement, const std::string &message)
{
    int line = 0;
    int column = 0;
    const std::size_t named = message.find("（第");
    if (named == std::string::npos
        || std::sscanf(message.c_str() + named, "（第%d行第%d列）", &line, &column) != 2) // NOLINT(cert-err34-c)
        return std::string::npos;
    std::size_t offset = 0;
    while (offset < statement.size() && !(placeOf(statement, offset) == Place{line, column}))
        ++offset;
    return offset;
}

TEST(Excerpt, StandsBelowEveryRefusalAndMarksThePlaceThatItNames)
{
    int shown = 0;
    for (const test::CorpusEntry &entry : test::readCorpus("bad.txt")) {
        SCOPED_TRACE(entry.title);
        try {
            (void)prepare(entry.statement, test::hospitalCatalog(), entry.due);
            ADD_FAILURE() << "bound";
        } catch (const SqlError &error) {
            const std::size_t offset = offsetOf(entry.statement, error.what());
            if (offset == std::string::npos || entry.statement.find_first_not_of(' ') == std::string::npos)
                continue; // out of place altogether, or without text
            EXPECT_EQ(error.what(), test::firstLineOf(error) + "\n" + excerpt(entry.statement, offset));
            ++shown;
        }
    }
    EXPECT_GT(shown, 60);
}

TEST(Excerpt, ShowsTheFirstWordOfAStatementThatIsOutOfPlace)
{
    try {
        (void)prepare(" delete from o_CbZyZdb where BillNo=1", test::hospitalCatalog(), Due::Query);
        FAIL() << "bound";
    } catch (const SqlError &error) {
        EXPECT_STREQ(error.what(), "此处只能执行查询语句\n▶delete from o_CbZyZdb where BillNo=1");
    }
}

} // namespace
