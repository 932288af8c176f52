// SPDX-License-Identifier: MIT
// Long statements are normal; deep ones are refused before the stack is in danger.
#include "tests/vortaq/sql/refusal.h"
#include "tests/vortaq/sql/testcatalog.h"
#include "vortaq/sql/parse.h"
#include "vortaq/sql/prepare.h"

#include <gtest/gtest.h>

using namespace vortaq;
using namespace vortaq::sql;

namespace {

std::string repeated(const std::string &text, int times)
{
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

std::string outcome(const std::string &text)
{
    try {
        (void)prepare(text, test::hospitalCatalog(), Due::Query);
        return "bound";
    } catch (const SqlError &error) {
        const std::string message = test::firstLineOf(error);
        return message.substr(std::min(message.rfind("："), message.size()));
    }
}

struct Form {
    const char *name;
    const char *before;
    const char *opening;
    const char *middle;
    const char *closing;
    const char *after;
};

class Nesting : public testing::TestWithParam<Form> {
protected:
    static std::string text(int depth)
    {
        const Form &form = GetParam();
        return form.before + repeated(form.opening, depth) + form.middle + repeated(form.closing, depth) + form.after;
    }
};

TEST_P(Nesting, ShallowBinds)
{
    EXPECT_EQ(outcome(text(20)), "bound");
}

TEST_P(Nesting, DeepIsRefused)
{
    EXPECT_EQ(outcome(text(deepestNesting + 1)), "：语句嵌套太深");
    EXPECT_EQ(outcome(text(200000)), "：语句嵌套太深");
}

INSTANTIATE_TEST_SUITE_P(
    Forms, Nesting,
    testing::Values(Form{"values", "select ", "(", "1", ")", ""}, Form{"sums", "select 1", "+1", "", "", ""},
                    Form{"minus", "select ", "-(", "1", ")", ""},
                    Form{"minusOnly", "select ", "- ", "i", "", " from t_Types"},
                    Form{"functions", "select ", "isnull(", "1", ",2)", ""},
                    Form{"cases", "select ", "case when i=1 then ", "1", " end", " from t_Types"},
                    Form{"casts", "select ", "cast(", "1", " as varchar(9))", ""},
                    Form{"converts", "select ", "convert(varchar(9),", "1", ")", ""},
                    Form{"conditions", "select i from t_Types where ", "(", "i=1", ")", ""},
                    Form{"not", "select i from t_Types where ", "not ", "i=1", "", ""},
                    Form{"mixed", "select i from t_Types where ", "(i=1 or i=2 and ", "i=3", ")", ""},
                    Form{"scalars", "select ", "(select ", "1", ")", ""},
                    Form{"derived", "", "select i from (", "select i from t_Types", ") a", ""},
                    Form{"in", "select i from t_Types where ", "i in (select i from t_Types where ", "i=1", ")", ""}),
    [](const testing::TestParamInfo<Form> &form) { return form.param.name; });

TEST(Length, ThousandsOfTermsOfOneLevel)
{
    constexpr int many = 20000;
    EXPECT_EQ(outcome("select i from t_Types where i=1" + repeated(" or i>2", many)), "bound");
    EXPECT_EQ(outcome("select i from t_Types where i=1" + repeated(" and (i>2)", many)), "bound");
    EXPECT_EQ(outcome("select i from t_Types where i=1" + repeated(" or i=2 and v='a'", many)), "bound");
    EXPECT_EQ(outcome("select i from t_Types where i in (1" + repeated(",2", many) + ")"), "bound");
    EXPECT_EQ(outcome("select i from t_Types where i=1" + repeated(" or (i=1 or (i>3))", many)), "bound");
    EXPECT_EQ(outcome("select 1" + repeated(",1", many)), "bound");
    EXPECT_EQ(outcome("select 1" + repeated(" union all select 1", many)), "bound");
    EXPECT_EQ(outcome("select case i when 1 then 1" + repeated(" when 2 then 2", many) + " end from t_Types"), "bound");
}

} // namespace
