// SPDX-License-Identifier: MIT
// The choice between the tables in use and the archive.
#include "data/tables.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Tables, ofPrintedDocuments)
{
    EXPECT_EQ(data::tablePrefix(1), u"o"_s);
    EXPECT_EQ(data::tablePrefix(2), u"s"_s);
    EXPECT_EQ(data::tablePrefix(3), QString());
    EXPECT_EQ(data::tablePrefix(0), QString());
}

TEST(Tables, ofTheApprovalFormAreTheArchiveForEveryOtherType)
{
    EXPECT_EQ(data::approvalTablePrefix(1), u"o"_s);
    EXPECT_EQ(data::approvalTablePrefix(2), u"s"_s);
    EXPECT_EQ(data::approvalTablePrefix(0), u"s"_s);
}

TEST(Tables, ofTheHistoryDialogCarryALeadingBlank)
{
    EXPECT_EQ(data::historyTablePrefix(u"1"_s), u" o"_s);
    EXPECT_EQ(data::historyTablePrefix(u"2"_s), u" s"_s);
    EXPECT_EQ(data::historyTablePrefix(u"3"_s), QString());
    EXPECT_EQ(data::historyTablePrefix(QString()), QString());
}

TEST(Tables, ofTheHistoryListAreTheArchiveForEveryOtherType)
{
    EXPECT_EQ(data::historyRecordTable(u"1"_s), u"o_CbZyBxDj"_s);
    EXPECT_EQ(data::historyRecordTable(u"2"_s), u"s_CbZyBxDj"_s);
    EXPECT_EQ(data::historyRecordTable(QString()), u"s_CbZyBxDj"_s);
}

} // namespace
