// SPDX-License-Identifier: MIT
// Items between separators.
#include "Common/splittext.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using common::Side;

namespace {

TEST(SplitString, givesThePartsAroundTheFirstSeparator)
{
    EXPECT_EQ(common::splitString(u"甲,乙,丙"_s, u","_s, Side::Before), u"甲"_s);
    EXPECT_EQ(common::splitString(u"甲,乙,丙"_s, u","_s, Side::After), u"乙,丙"_s);
}

TEST(SplitString, takesASeparatorOfSeveralCharacters)
{
    EXPECT_EQ(common::splitString(u"a||b"_s, u"||"_s, Side::Before), u"a"_s);
    EXPECT_EQ(common::splitString(u"a||b"_s, u"||"_s, Side::After), u"b"_s);
}

TEST(SplitString, putsEverythingBeforeAMissingSeparator)
{
    EXPECT_EQ(common::splitString(u"abc"_s, u","_s, Side::Before), u"abc"_s);
    EXPECT_EQ(common::splitString(u"abc"_s, u","_s, Side::After), QString());
    EXPECT_EQ(common::splitString(u"abc"_s, QString(), Side::Before), u"abc"_s);
    EXPECT_EQ(common::splitString(u"abc"_s, QString(), Side::After), QString());
}

TEST(SplitString, keepsBlanks)
{
    EXPECT_EQ(common::splitString(u" a , b "_s, u","_s, Side::Before), u" a "_s);
    EXPECT_EQ(common::splitString(u" a , b "_s, u","_s, Side::After), u" b "_s);
}

TEST(SplitItemCount, isOneMoreThanTheSeparators)
{
    EXPECT_EQ(common::splitItemCount(QString(), u","_s), 0);
    EXPECT_EQ(common::splitItemCount(u"a"_s, u","_s), 1);
    EXPECT_EQ(common::splitItemCount(u"a,b"_s, u","_s), 2);
    EXPECT_EQ(common::splitItemCount(u",a,"_s, u","_s), 3);
    EXPECT_EQ(common::splitItemCount(u"aaa"_s, u"aa"_s), 2);
    EXPECT_EQ(common::splitItemCount(u"abc"_s, QString()), 1);
}

TEST(SplitItem, isTrimmed)
{
    const QString source = u"  甲 , 乙\t,, 丙 \r\n"_s;
    EXPECT_EQ(common::splitItem(source, u","_s, 0), u"甲"_s);
    EXPECT_EQ(common::splitItem(source, u","_s, 1), u"乙"_s);
    EXPECT_EQ(common::splitItem(source, u","_s, 2), QString());
    EXPECT_EQ(common::splitItem(source, u","_s, 3), u"丙"_s);
}

TEST(SplitItem, isEmptyOutsideTheList)
{
    EXPECT_EQ(common::splitItem(u"a,b"_s, u","_s, 2), QString());
    EXPECT_EQ(common::splitItem(u"a,b"_s, u","_s, -1), QString());
    EXPECT_EQ(common::splitItem(QString(), u","_s, 0), QString());
    EXPECT_EQ(common::splitItem(u"   "_s, u","_s, 0), QString());
}

TEST(SplitString, findsSeparatorsAtTheEnds)
{
    EXPECT_EQ(common::splitString(u",a"_s, u","_s, Side::Before), QString());
    EXPECT_EQ(common::splitString(u",a"_s, u","_s, Side::After), u"a"_s);
    EXPECT_EQ(common::splitString(u"a,"_s, u","_s, Side::Before), u"a"_s);
    EXPECT_EQ(common::splitString(u"a,"_s, u","_s, Side::After), QString());
    EXPECT_EQ(common::splitString(u","_s, u","_s, Side::Before), QString());
    EXPECT_EQ(common::splitString(u"a"_s, u"a separator longer than the text"_s, Side::Before), u"a"_s);
}

TEST(SplitString, tellsLetterCaseApart)
{
    EXPECT_EQ(common::splitString(u"1X2x3"_s, u"x"_s, Side::Before), u"1X2"_s);
}

TEST(SplitItem, takesBlanksAndLineBreaksForSeparators)
{
    EXPECT_EQ(common::splitItem(u" a b "_s, u" "_s, 1), u"b"_s);
    EXPECT_EQ(common::splitItem(u" a b "_s, u" "_s, 2), QString());
    EXPECT_EQ(common::splitItem(u"a\r\nb\r\n"_s, u"\r\n"_s, 1), u"b"_s);
    EXPECT_EQ(common::splitItem(u"a, "_s, u", "_s, 0), u"a,"_s); // the source is trimmed first
}

TEST(SplitItem, isTheWholeSourceWithoutASeparator)
{
    EXPECT_EQ(common::splitItem(u" a,b "_s, QString(), 0), u"a,b"_s);
    EXPECT_EQ(common::splitItem(u" a,b "_s, QString(), 1), QString());
    EXPECT_EQ(common::splitItem(u"a,b"_s, u";"_s, 0), u"a,b"_s);
}

TEST(SplitItem, goesFromLeftToRightWhereSeparatorsOverlap)
{
    EXPECT_EQ(common::splitItem(u"1;;;2"_s, u";;"_s, 0), u"1"_s);
    EXPECT_EQ(common::splitItem(u"1;;;2"_s, u";;"_s, 1), u";2"_s);
}

TEST(SplitItem, agreesWithRepeatedSplitting)
{
    const QString source = u"a;bb;;ccc;"_s;
    QString rest = source;
    const int count = common::splitItemCount(source, u";"_s);
    ASSERT_EQ(count, 5);
    for (int i = 0; i < count; ++i) {
        EXPECT_EQ(common::splitItem(source, u";"_s, i), common::splitString(rest, u";"_s, Side::Before));
        rest = common::splitString(rest, u";"_s, Side::After);
    }
}

} // namespace
