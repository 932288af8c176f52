// SPDX-License-Identifier: MIT
// Dates as the environment writes them.
#include "values/shortdate.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

class ShortDate : public testing::Test {
protected:
    ~ShortDate() override { qputenv("LC_ALL", m_before); }

    const QByteArray m_before = qgetenv("LC_ALL");
};

void refuses(const QString &text)
{
    try {
        (void)values::parseShortDate(text);
        ADD_FAILURE() << text.toStdString();
    } catch (const std::invalid_argument &error) {
        EXPECT_EQ(QString::fromUtf8(error.what()), u"“%1”不是有效的日期。"_s.arg(text));
    }
}

TEST_F(ShortDate, isYearMonthDayWhereNoLanguageIsSet)
{
    qputenv("LC_ALL", "C.UTF-8");
    EXPECT_EQ(values::shortDateFormat(), u"yyyy-MM-dd"_s);
    EXPECT_EQ(values::parseShortDate(u"2026-11-20"_s), QDate(2026, 11, 20));
    for (const QString &text : {u"-2026-11-20"_s, u"+2026-11-20"_s, u"2026--11-20"_s, u"2026-11-31"_s, u"0000-11-20"_s,
                                u""_s, u"2026-11-20 "_s, u"2026/11/20"_s, u"20-11-2026"_s, u"abc"_s})
        refuses(text);
}

TEST_F(ShortDate, isTheEnvironmentsToo)
{
    qputenv("LC_ALL", "zh_CN.UTF-8");
    EXPECT_EQ(values::shortDateFormat(), u"yyyy/M/d"_s);
    EXPECT_EQ(values::parseShortDate(u"2026/3/9"_s), QDate(2026, 3, 9));
    EXPECT_EQ(values::parseShortDate(u"2026-03-09"_s), QDate(2026, 3, 9));
    for (const QString &text : {u"-2026/3/9"_s, u"2026/-3/9"_s, u"2026/3/32"_s, u"-2026-03-09"_s})
        refuses(text);
}

} // namespace
