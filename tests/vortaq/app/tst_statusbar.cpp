// SPDX-License-Identifier: MIT
// Tests of the status bar: what a component of the form says of itself, beside who works where.
#include "tests/support/hands.h"
#include "tests/vortaq/app/support/mainwindowfixture.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QStatusTipEvent>

namespace vortaq::test {

namespace {

const QString Tip = QStringLiteral("制单号：42990101-12　记录：3 笔　总费用：12,345.67　可报销费用：8,000.00");

} // namespace

class StatusBarTest : public MainWindowFixture {
protected:
    StatusBarTest()
        : MainWindowFixture(QStringLiteral(TEST_PLAIN_MODULE))
    {
        trigger("openFunctionAction");
        m_component = new QWidget(m_module.form());
    }

    void tell(const QString &tip)
    {
        QStatusTipEvent event(tip);
        QApplication::sendEvent(m_component, &event);
        QApplication::processEvents();
    }
    [[nodiscard]] QLabel &label(const char *name) const { return hands::find<QLabel>(m_window, name); }
    [[nodiscard]] bool isShown(const char *name) const
    {
        return label(name).isVisible() && label(name).visibleRegion().boundingRect() == label(name).rect();
    }

    QWidget *m_component;
};

TEST_F(StatusBarTest, ATipStandsBesideWhoWorksWhere)
{
    tell(Tip);
    EXPECT_EQ(label("statusTip").text(), Tip);
    for (const char *name : {"statusTip", "statusUser", "statusInstitution", "statusDatabase"})
        EXPECT_TRUE(isShown(name)) << name;
}

TEST_F(StatusBarTest, ATipHasTheRoomItNeeds)
{
    m_window.showNormal();
    for (const int width : {1900, 1300, 900}) {
        m_window.resize(width, 500);
        tell(Tip);
        EXPECT_GE(label("statusTip").width(), label("statusTip").sizeHint().width()) << width;
        EXPECT_TRUE(isShown("statusTip"));
        EXPECT_EQ(m_window.width(), width) << "the window is not pushed wider";
    }
}

TEST_F(StatusBarTest, ANarrowWindowElidesATip)
{
    tell(Tip);
    m_window.showNormal();
    m_window.resize(480, 400);
    QApplication::processEvents();
    EXPECT_EQ(m_window.width(), 480);
    EXPECT_TRUE(m_window.statusBar()->rect().contains(label("statusTip").geometry()));
}

TEST_F(StatusBarTest, ATipGoesWhenItIsTakenBack)
{
    tell(Tip);
    tell({});
    EXPECT_EQ(label("statusTip").text(), QString());
}

TEST_F(StatusBarTest, AWalkThroughTheMenusLeavesATip)
{
    tell(Tip);
    auto *system = m_window.menuBar()->actions().at(1)->menu();
    for (QAction *item : system->actions())
        system->setActiveAction(item);
    system->setActiveAction(nullptr);
    m_window.menuBar()->setActiveAction(m_window.menuBar()->actions().constFirst());
    m_window.menuBar()->setActiveAction(nullptr);
    QApplication::processEvents();
    EXPECT_EQ(label("statusTip").text(), Tip);
    EXPECT_TRUE(isShown("statusTip"));
}

TEST_F(StatusBarTest, ATipGoesWithItsForm)
{
    tell(Tip);
    m_module.form()->close();
    QApplication::processEvents();
    EXPECT_EQ(label("statusTip").text(), QString());

    m_window.openFunction();
    tell(Tip);
    trigger("refreshAction");
    EXPECT_EQ(label("statusTip").text(), QString()) << "the form loads anew";
}

TEST_F(StatusBarTest, ATipIsNoMarkup)
{
    tell(QStringLiteral("<b>王</b>&"));
    EXPECT_EQ(label("statusTip").textFormat(), Qt::PlainText);
    EXPECT_EQ(label("statusTip").text(), QStringLiteral("<b>王</b>&"));
}

} // namespace vortaq::test
