// SPDX-License-Identifier: MIT
// Dates as text.
#include "values/dateformat.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(DateFormat, takesYearMonthDay)
{
    EXPECT_EQ(values::parseDate(u"2026-11-21"_s), QDate(2026, 11, 21));
    EXPECT_EQ(values::parseDate(u"2024-02-29"_s), QDate(2024, 2, 29));
    EXPECT_EQ(values::parseDate(u"0001-01-01"_s), QDate(1, 1, 1));
    EXPECT_EQ(values::parseDate(u"9999-12-31"_s), QDate(9999, 12, 31));
}

TEST(DateFormat, refusesDaysThatDoNotExist)
{
    for (const QString &text :
         {u"2026-02-29"_s, u"2026-13-01"_s, u"2026-00-10"_s, u"2026-04-31"_s, u"2026-01-00"_s, u"0000-01-01"_s})
        EXPECT_FALSE(values::parseDate(text)) << text.toStdString();
}

TEST(DateFormat, refusesOtherSpellings)
{
    for (const QString &text : {u""_s, u"2026-1-1"_s, u"26-01-01"_s, u"2026/01/01"_s, u"20260101"_s, u" 2026-01-01"_s,
                                u"2026-01-01 "_s, u"2026-01-01 00:00"_s, u"2026-01-0a"_s, u"-026-01-01"_s,
                                u"2026-+1-01"_s, u"２026-01-01"_s, u"2026年01月"_s, u"01-01-2026"_s})
        EXPECT_FALSE(values::parseDate(text)) << text.toStdString();
}

TEST(DateFormat, writesWhatItReads)
{
    EXPECT_EQ(values::formatDate(QDate(2026, 1, 2)), u"2026-01-02"_s);
    EXPECT_EQ(values::formatDate(QDate(1, 2, 3)), u"0001-02-03"_s);
    EXPECT_EQ(values::formatDate(QDate()), QString());
}

} // namespace
