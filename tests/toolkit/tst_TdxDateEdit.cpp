// SPDX-License-Identifier: MIT
// Boxes for dates: typing, stepping, the calendar.
#include "toolkit/TdxDateEdit.h"

#include "toolkit/calendarpopup.h"
#include "toolkit/clock.h"

#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class DateEdit : public testing::Test {
protected:
    void SetUp() override
    {
        toolkit::setClock([] { return QDate(2026, 11, 21); });
        m_edit.show();
    }

    void TearDown() override
    {
        if (calendar())
            popup()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        toolkit::setClock({});
    }

    toolkit::CalendarPopup *popup() { return m_edit.findChild<toolkit::CalendarPopup *>(); }

    QCalendarWidget *calendar()
    {
        return popup() && popup()->isVisible() ? popup()->findChild<QCalendarWidget *>() : nullptr;
    }

    TdxDateEdit m_edit;
};

TEST_F(DateEdit, beginsEmpty)
{
    EXPECT_EQ(m_edit.text(), QString());
    EXPECT_FALSE(m_edit.date());
}

TEST_F(DateEdit, showsADateAsYearMonthDay)
{
    m_edit.setDate(QDate(2026, 1, 2));
    EXPECT_EQ(m_edit.text(), u"2026-01-02"_s);
    EXPECT_EQ(m_edit.date(), QDate(2026, 1, 2));
    m_edit.setDate(QDate());
    EXPECT_EQ(m_edit.text(), QString());
}

TEST_F(DateEdit, keepsTheTextAsItWasTyped)
{
    QTest::keyClicks(&m_edit, u"2026-02-30"_s);
    EXPECT_EQ(m_edit.text(), u"2026-02-30"_s);
    EXPECT_FALSE(m_edit.date());
    m_edit.setText(u"2026-2-3"_s);
    EXPECT_EQ(m_edit.text(), u"2026-2-3"_s);
    EXPECT_FALSE(m_edit.date());
}

TEST_F(DateEdit, stepsDays)
{
    m_edit.setDate(QDate(2026, 12, 31));
    QTest::keyClick(&m_edit, Qt::Key_Up);
    EXPECT_EQ(m_edit.text(), u"2027-01-01"_s);
    QTest::keyClick(&m_edit, Qt::Key_Down);
    QTest::keyClick(&m_edit, Qt::Key_Down);
    EXPECT_EQ(m_edit.text(), u"2026-12-30"_s);
}

TEST_F(DateEdit, doesNotStepFromATextThatIsNoDate)
{
    m_edit.setText(u"2026-02-30"_s);
    QTest::keyClick(&m_edit, Qt::Key_Up);
    EXPECT_EQ(m_edit.text(), u"2026-02-30"_s);
}

TEST_F(DateEdit, dropsTheCalendarDownByKeys)
{
    m_edit.setDate(QDate(2026, 5, 6));
    QTest::keyClick(&m_edit, Qt::Key_F4);
    ASSERT_TRUE(calendar());
    EXPECT_EQ(calendar()->selectedDate(), QDate(2026, 5, 6));
    QTest::keyClick(popup(), Qt::Key_Escape);
    EXPECT_FALSE(calendar());
    EXPECT_EQ(m_edit.text(), u"2026-05-06"_s);

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::keyClick(&m_edit, Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(calendar());
    EXPECT_EQ(m_edit.text(), u"2026-05-06"_s);
}

TEST_F(DateEdit, dropsTheCalendarDownByItsButton)
{
    auto *button = m_edit.findChild<QToolButton *>();
    ASSERT_TRUE(button);
    QTest::mouseClick(button, Qt::LeftButton);
    ASSERT_TRUE(calendar());
    EXPECT_EQ(calendar()->selectedDate(), QDate(2026, 11, 21)) << "today, as the box is empty";
}

TEST_F(DateEdit, takesTheDayChosenByKeys)
{
    m_edit.setDate(QDate(2026, 5, 6));
    m_edit.showCalendar();
    ASSERT_TRUE(calendar());
    QTest::keyClick(calendar()->focusProxy() ? calendar()->focusProxy() : calendar(), Qt::Key_Right);
    QTest::keyClick(calendar()->focusProxy() ? calendar()->focusProxy() : calendar(), Qt::Key_Return);
    EXPECT_FALSE(calendar());
    EXPECT_EQ(m_edit.text(), u"2026-05-07"_s);
}

TEST_F(DateEdit, takesToday)
{
    m_edit.setDate(QDate(2026, 5, 6));
    m_edit.showCalendar();
    ASSERT_TRUE(calendar());
    auto *today = popup()->findChild<QPushButton *>(u"btnToday"_s);
    EXPECT_EQ(today->text(), u"今天 2026-11-21"_s);
    today->click();
    EXPECT_FALSE(calendar());
    EXPECT_EQ(m_edit.text(), u"2026-11-21"_s);
}

TEST_F(DateEdit, freesTheCalendarWhenItCloses)
{
    m_edit.showCalendar();
    const QPointer<toolkit::CalendarPopup> shown = popup();
    ASSERT_TRUE(shown);
    shown->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(shown);
}

TEST_F(DateEdit, changesNothingWhenReadOnly)
{
    m_edit.setDate(QDate(2026, 5, 6));
    m_edit.setReadOnly(true);
    QTest::keyClick(&m_edit, Qt::Key_Up);
    QTest::keyClick(&m_edit, Qt::Key_F4);
    EXPECT_EQ(m_edit.text(), u"2026-05-06"_s);
    EXPECT_FALSE(calendar());
}

TEST_F(DateEdit, hasAPropertyForForms)
{
    EXPECT_TRUE(m_edit.setProperty("date", QDate(2026, 5, 6)));
    EXPECT_EQ(m_edit.text(), u"2026-05-06"_s);
    EXPECT_EQ(m_edit.property("date").toDate(), QDate(2026, 5, 6));
}

} // namespace
