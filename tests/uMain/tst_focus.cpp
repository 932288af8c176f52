// SPDX-License-Identifier: MIT
// Where the keyboard is: in the work field of whichever page is in front.
#include "tests/support/desk.h"
#include "tests/support/hands.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMainWindow>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>

namespace {

class FocusTest : public testing::Test {
protected:
    FocusTest()
    {
        m_desk.open().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form()));
    }

    [[nodiscard]] QWidget &form() const { return m_desk.form(); }
    [[nodiscard]] QTabWidget &pages() const { return hands::find<QTabWidget>(form(), "PageControl1"); }
    [[nodiscard]] TdxTreeList &list(const char *name) const { return hands::find<TdxTreeList>(form(), name); }
    [[nodiscard]] static QString focus()
    {
        const QWidget *widget = QApplication::focusWidget();
        return widget == nullptr ? QString() : widget->objectName();
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void clickTab(int tab) const
    {
        QTest::mouseClick(pages().tabBar(), Qt::LeftButton, {}, pages().tabBar()->tabRect(tab).center());
    }

    Desk m_desk;
    const QStringList m_fields = {QStringLiteral("dxTLBxDjDetail"), QStringLiteral("dxTLUp"),
                                  QStringLiteral("dxTLUpOrgInfo"), QStringLiteral("dxTLBackOrg"),
                                  QStringLiteral("dxTLOldOrg")};
};

} // namespace

TEST_F(FocusTest, isInTheCandidatesAtFirst)
{
    EXPECT_EQ(focus(), QStringLiteral("dxTLUp"));
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_EQ(list("dxTLUp").node(1).text(0), QStringLiteral("1")) << "arrows move rows, space ticks";
    EXPECT_EQ(pages().currentIndex(), 1);
}

TEST_F(FocusTest, followsCtrlTabRoundAllPages)
{
    for (const int page : {2, 3, 4, 0, 1}) {
        press(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(pages().currentIndex(), page);
        EXPECT_EQ(focus(), m_fields.at(page));
    }
    press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(focus(), m_fields.at(0));
}

TEST_F(FocusTest, followsAClickOnATab)
{
    for (int page = 0; page < pages().count(); ++page) {
        pages().tabBar()->setFocus();
        clickTab(page);
        EXPECT_EQ(pages().currentIndex(), page);
        EXPECT_EQ(focus(), m_fields.at(page));
    }
    hands::find<QWidget>(form(), "dxTLOldBill").setFocus();
    clickTab(4);
    EXPECT_EQ(focus(), QStringLiteral("dxTLOldOrg")) << "on the tab in front as well";
}

TEST_F(FocusTest, followsCtrlTabFromTheTabs)
{
    pages().tabBar()->setFocus();
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(focus(), QStringLiteral("dxTLUpOrgInfo"));
}

TEST_F(FocusTest, staysOnTheTabsWhileArrowsWalkAlongThem)
{
    pages().tabBar()->setFocus();
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(pages().currentIndex(), 3);
    EXPECT_TRUE(pages().tabBar()->hasFocus());
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), QStringLiteral("dxTLBackOrg"));
}

TEST_F(FocusTest, isInTheWorkFieldOfAFormThatAHostTakesIntoItsWindow)
{
    form().hide();
    QMainWindow window;
    auto *contents = new QStackedWidget(&window);
    auto *open = new QPushButton(contents);
    contents->addWidget(open);
    contents->addWidget(&form());
    window.setCentralWidget(contents);
    window.show();
    open->setFocus();
    contents->setCurrentWidget(&form());
    EXPECT_EQ(window.focusWidget(), &list("dxTLUp"));
    form().setParent(nullptr); // the desk frees it
}

TEST_F(FocusTest, isInTheWorkFieldAtEachShowing)
{
    hands::showPage(form(), "tbUp");
    hands::find<QWidget>(form(), "btnUpExit").setFocus();
    form().hide();
    form().show();
    EXPECT_EQ(form().focusWidget(), &list("dxTLUpOrgInfo"));
}
