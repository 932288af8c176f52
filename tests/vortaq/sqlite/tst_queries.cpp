// SPDX-License-Identifier: MIT
// Every query of the hospital answers as the server would, cell for cell.
#include "tests/vortaq/sql/corpus.h"
#include "tests/vortaq/sqlite/testdatabase.h"

#include <gtest/gtest.h>

namespace {

using vortaq::sql::test::CorpusEntry;
using vortaq::sql::test::readCorpus;
using namespace vortaq::test;

class Queries : public testing::Test {
protected:
    static void SetUpTestSuite() { s_hospital = std::make_unique<Hospital>(); }
    static void TearDownTestSuite() { s_hospital.reset(); }

    static std::unique_ptr<Hospital> s_hospital;
};

std::unique_ptr<Hospital> Queries::s_hospital;

TEST_F(Queries, EveryOneAnswersExactly)
{
    const std::vector<CorpusEntry> corpus = readCorpus("queries.txt");
    ASSERT_GT(corpus.size(), 40U);
    for (const CorpusEntry &entry : corpus) {
        SCOPED_TRACE(entry.title);
        const auto packet = s_hospital->engine->query(QString::fromStdString(entry.statement));
        const std::string rows = rowsOf(*packet);
        EXPECT_EQ(namesOf(*packet) + (packet->rowCount() == 0 ? "" : "\n") + rows, entry.expected);
    }
}

TEST_F(Queries, EmptyTextGivesNoColumns)
{
    for (const char *text : {"", "  ", " \r\n\t"}) {
        const auto packet = s_hospital->engine->query(QString::fromUtf8(text));
        EXPECT_EQ(packet->columnCount(), 0);
        EXPECT_EQ(packet->rowCount(), 0);
    }
}

TEST_F(Queries, NoRowsKeepTheirColumns)
{
    const auto packet =
        s_hospital->engine->query(QStringLiteral("select OrgCode,OrgName from p_Ylfwdw where OrgCode='0'"));
    EXPECT_EQ(namesOf(*packet), "OrgCode|OrgName");
    EXPECT_EQ(packet->rowCount(), 0);
}

TEST_F(Queries, WhatChangesIsNoQuery)
{
    EXPECT_EQ(errorOf([] { ask(*s_hospital->engine, "delete from p_fylb"); }).substr(0, 7), "Syntax:");
    EXPECT_EQ(errorOf([] { change(*s_hospital->engine, "select OrgCode from p_Ylfwdw"); }).substr(0, 7), "Syntax:");
    EXPECT_EQ(errorOf([] { change(*s_hospital->engine, ""); }).substr(0, 7), "Syntax:");
    EXPECT_EQ(ask(*s_hospital->engine, "select FeeTypeCode from p_fylb where FeeTypeCode='01'"), "01");
}

// A procedure's existence decides how settlements are printed.
TEST_F(Queries, AMissingProcedureGivesNoRow)
{
    EXPECT_EQ(ask(*s_hospital->engine, " select name from SysObjects where name ='Pro_Zy_SFeeInterFace' "), "");
}

} // namespace
