// SPDX-License-Identifier: MIT
// Boxes that show amounts.
#include "toolkit/TdxCurrencyEdit.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(CurrencyEdit, beginsEmptyAndReadOnly)
{
    const TdxCurrencyEdit edit;
    EXPECT_EQ(edit.text(), QString());
    EXPECT_FALSE(edit.hasValue());
    EXPECT_EQ(edit.value(), 0);
    EXPECT_TRUE(edit.isReadOnly());
    EXPECT_TRUE(edit.alignment().testFlag(Qt::AlignRight));
}

TEST(CurrencyEdit, showsTheAmountThroughItsFormat)
{
    TdxCurrencyEdit edit;
    edit.setDisplayFormat(u",0.00;-,0.00"_s);
    EXPECT_EQ(edit.text(), QString());
    edit.setValue(1234.5L);
    EXPECT_EQ(edit.text(), u"1,234.50"_s);
    EXPECT_EQ(edit.value(), 1234.5L);
    edit.setValue(0);
    EXPECT_EQ(edit.text(), u"0.00"_s);
}

TEST(CurrencyEdit, showsTheAmountAgainWhenTheFormatChanges)
{
    TdxCurrencyEdit edit;
    edit.setValue(0.125L);
    EXPECT_EQ(edit.text(), u"0.125"_s);
    edit.setDisplayFormat(u"￥,0.00"_s);
    EXPECT_EQ(edit.text(), u"￥0.13"_s);
    EXPECT_EQ(edit.value(), 0.125L);
}

TEST(CurrencyEdit, takesTheTextOfAQuery)
{
    TdxCurrencyEdit edit;
    edit.setDisplayFormat(u"0.00"_s);
    edit.setValue(u"         123.45"_s);
    EXPECT_EQ(edit.value(), 123.45L);
    EXPECT_EQ(edit.text(), u"123.45"_s);
    edit.setValue(u"0"_s);
    EXPECT_EQ(edit.text(), u"0.00"_s);
}

TEST(CurrencyEdit, isEmptyForAnAmountThatIsNotThere)
{
    TdxCurrencyEdit edit;
    edit.setValue(5);
    edit.setValue(u"   "_s);
    EXPECT_FALSE(edit.hasValue());
    EXPECT_EQ(edit.text(), QString());
    edit.setValue(5);
    edit.clearValue();
    EXPECT_FALSE(edit.hasValue());
    EXPECT_EQ(edit.text(), QString());
}

TEST(CurrencyEdit, keepsItsAmountWhenTheTextIsNoNumber)
{
    TdxCurrencyEdit edit;
    edit.setDisplayFormat(u"0.00"_s);
    edit.setValue(5);
    EXPECT_THROW(edit.setValue(u"abc"_s), std::invalid_argument);
    EXPECT_EQ(edit.value(), 5);
    EXPECT_EQ(edit.text(), u"5.00"_s);
}

TEST(CurrencyEdit, hasPropertiesForForms)
{
    TdxCurrencyEdit edit;
    EXPECT_TRUE(edit.setProperty("displayFormat", u",0.0"_s));
    EXPECT_TRUE(edit.setProperty("value", u"12345.67"_s));
    EXPECT_EQ(edit.text(), u"12,345.7"_s);
    EXPECT_EQ(edit.property("value").toString(), u"12345.67"_s);
    EXPECT_TRUE(edit.setProperty("value", QString()));
    EXPECT_EQ(edit.property("value").toString(), QString());
}

TEST(CurrencyEdit, cannotBeTypedInto)
{
    TdxCurrencyEdit edit;
    edit.setValue(5);
    edit.show();
    QTest::keyClicks(&edit, u"123"_s);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(edit.text(), u"5"_s);
}

TEST(CurrencyEdit, showsTheBeginningOfAnAmountThatIsTooWide)
{
    TdxCurrencyEdit edit;
    edit.setValue(123456789012.0L);
    EXPECT_EQ(edit.cursorPosition(), 0);
}

} // namespace
