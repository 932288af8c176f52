// SPDX-License-Identifier: MIT
// Texts of tree nodes and vertical titles.
#include "data/captions.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Captions, putNoBlankBetweenCodeAndName)
{
    EXPECT_EQ(data::organisationCaption(u"4201"_s, u"城关卫生院"_s), u"(4201)城关卫生院"_s);
    EXPECT_EQ(data::organisationCaption(QString(), QString()), u"()"_s);
}

TEST(Captions, putTheStatusBehindTheDate)
{
    EXPECT_EQ(data::historyBillCaption(u"2026-11-21"_s, u"3"_s), u"2026-11-21【一审】"_s);
}

TEST(Captions, keepTheBracketsOfAnUnknownStatus)
{
    EXPECT_EQ(data::historyBillCaption(u"2026-11-21"_s, u"7"_s), u"2026-11-21【】"_s);
}

TEST(Captions, standOneCharacterALine)
{
    EXPECT_EQ(data::registrationTitle().toStdString(),
              "住\r\n \r\n院\r\n \r\n登\r\n \r\n记\r\n \r\n信\r\n \r\n息\r\n \r\n表");
    EXPECT_EQ(data::reimbursementTitle().toStdString(),
              "住\r\n \r\n院\r\n \r\n报\r\n \r\n销\r\n \r\n登\r\n \r\n记\r\n \r\n表");
}

} // namespace
