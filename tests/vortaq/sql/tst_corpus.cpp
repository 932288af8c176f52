// SPDX-License-Identifier: MIT
// Whole statements: those that bind, those that are refused and why, and bound trees compared as text.
#include "tests/vortaq/sql/corpus.h"
#include "tests/vortaq/sql/dump.h"
#include "tests/vortaq/sql/refusal.h"
#include "tests/vortaq/sql/testcatalog.h"

#include <gtest/gtest.h>

#include <set>

using namespace vortaq;
using namespace vortaq::sql;

namespace {

/// The statement's tree, or the refusal.
std::string outcome(const test::CorpusEntry &entry, SqlError::Reason *reason = nullptr)
{
    try {
        return test::dump(prepare(entry.statement, test::hospitalCatalog(), entry.due));
    } catch (const SqlError &error) {
        if (reason)
            *reason = error.reason();
        return test::firstLineOf(error);
    }
}

Due otherThan(Due due)
{
    return due == Due::Query ? Due::Change : Due::Query;
}

TEST(Corpus, EveryStatementOfTheSystemBinds)
{
    const auto entries = test::readCorpus("good.txt");
    ASSERT_GE(entries.size(), 60U);
    for (const test::CorpusEntry &entry : entries) {
        SCOPED_TRACE(entry.title);
        EXPECT_NO_THROW({
            const Statement statement = prepare(entry.statement, test::hospitalCatalog(), entry.due);
            EXPECT_EQ(statement.isQuery(), entry.due == Due::Query);
        });
    }
}

TEST(Corpus, TitlesAreUnique)
{
    for (const char *file : {"good.txt", "bad.txt", "trees.txt"}) {
        std::set<std::string> titles;
        for (const test::CorpusEntry &entry : test::readCorpus(file))
            EXPECT_TRUE(titles.insert(entry.title).second) << file << ": " << entry.title;
    }
}

TEST(Corpus, AQueryIsRefusedWhereAChangeIsDueAndTheReverse)
{
    for (const test::CorpusEntry &entry : test::readCorpus("good.txt")) {
        SCOPED_TRACE(entry.title);
        SqlError::Reason reason = SqlError::Reason::Other;
        const std::string message =
            outcome({otherThan(entry.due), entry.title, entry.statement, entry.expected}, &reason);
        EXPECT_EQ(reason, SqlError::Reason::Syntax);
        EXPECT_EQ(message, entry.due == Due::Query ? "此处不能执行查询语句" : "此处只能执行查询语句");
    }
}

TEST(Corpus, RefusalsNameTheirReasonAndPlace)
{
    const std::map<std::string, SqlError::Reason> reasons{{"syntax", SqlError::Reason::Syntax},
                                                          {"binding", SqlError::Reason::Binding},
                                                          {"conversion", SqlError::Reason::Conversion}};
    for (const test::CorpusEntry &entry : test::readCorpus("bad.txt")) {
        SCOPED_TRACE(entry.title);
        SqlError::Reason reason = SqlError::Reason::Other;
        const std::size_t colon = entry.expected.find(": ");
        ASSERT_NE(colon, std::string::npos);
        EXPECT_EQ(outcome(entry, &reason), entry.expected.substr(colon + 2));
        EXPECT_EQ(reason, reasons.at(entry.expected.substr(0, colon)));
    }
}

TEST(Corpus, TreesAreAsWritten)
{
    for (const test::CorpusEntry &entry : test::readCorpus("trees.txt")) {
        SCOPED_TRACE(entry.title);
        EXPECT_EQ(outcome(entry), entry.expected + "\n");
    }
}

} // namespace
