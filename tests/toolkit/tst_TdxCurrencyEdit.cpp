// SPDX-License-Identifier: MIT
// Boxes that show amounts.
#include "toolkit/TdxCurrencyEdit.h"

#include "tests/support/hints.h"
#include "toolkit/readabletext.h"
#include "toolkit/shownamount.h"

#include <QImage>
#include <QPalette>
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

class NarrowCurrencyEdit : public testing::Test {
protected:
    NarrowCurrencyEdit()
    {
        edit.setDisplayFormat(u",0.00;-,0.00"_s);
        edit.resize(edit.fontMetrics().horizontalAdvance(u"123,456.78"_s), edit.sizeHint().height());
        edit.setEnabled(false);
        edit.show();
    }
    [[nodiscard]] QImage picture() { return edit.grab().toImage(); }
    std::string hint() { return hints::over(edit, edit.rect().center()); }

    TdxCurrencyEdit edit;
};

TEST_F(NarrowCurrencyEdit, showsCrossesForAnAmountThatIsTooWide)
{
    edit.setValue(1.5L);
    const QImage whole = picture();
    EXPECT_EQ(hint(), "");
    edit.setValue(123456.78L);
    const QImage crosses = picture();
    EXPECT_NE(crosses, whole);
    EXPECT_EQ(edit.text(), u"123,456.78"_s);
    EXPECT_EQ(hint(), "123,456.78");
    edit.setValue(-9876543210.5L);
    EXPECT_EQ(picture(), crosses) << "no part of either figure";
    EXPECT_EQ(hint(), "-9,876,543,210.50");
    edit.setValue(1.5L);
    EXPECT_EQ(picture(), whole);
    edit.setValue(123456.78L);
    edit.resize(edit.width() + 40, edit.height());
    EXPECT_EQ(hint(), "");
}

TEST(ShownAmount, isWholeOrCrosses)
{
    const QFontMetrics metrics(QApplication::font());
    const QString amount = u"1,234.50"_s;
    const int width = metrics.horizontalAdvance(amount);
    EXPECT_EQ(toolkit::shownAmount(amount, width, metrics), amount);
    EXPECT_EQ(toolkit::shownAmount(amount, width - 1, metrics), u"####"_s);
    EXPECT_EQ(toolkit::shownAmount(amount, metrics.horizontalAdvance(u'#') * 2, metrics), u"##"_s);
    EXPECT_EQ(toolkit::shownAmount(amount, 0, metrics), u"#"_s);
    EXPECT_EQ(toolkit::shownAmount(QString(), 0, metrics), QString());
}

TEST(CurrencyEdit, isReadableWhereItIsDisabled)
{
    TdxCurrencyEdit edit;
    edit.setEnabled(false);
    EXPECT_GE(toolkit::contrast(edit.palette().color(QPalette::Text), edit.palette().color(QPalette::Base)),
              toolkit::ReadableContrast);
}

} // namespace
