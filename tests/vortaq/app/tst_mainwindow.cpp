// SPDX-License-Identifier: MIT
// Tests of the main window around a module's form.
#include "tests/vortaq/app/support/mainwindowfixture.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace vortaq::test {

class MainWindowTest : public MainWindowFixture {
protected:
    explicit MainWindowTest(const QString &module = QStringLiteral(TEST_PLAIN_MODULE))
        : MainWindowFixture(module)
    {
    }

    bool isEnabled(const char *action)
    {
        return m_window.findChild<QAction *>(QString::fromLatin1(action))->isEnabled();
    }
    [[nodiscard]] bool startPageShown() const
    {
        return m_window.findChild<QWidget *>(QStringLiteral("startPage"))->isVisible();
    }
    [[nodiscard]] QString label(const char *name) const
    {
        return m_window.findChild<QLabel *>(QString::fromLatin1(name))->text();
    }
};

TEST_F(MainWindowTest, TheMenuComesFromTheModule)
{
    EXPECT_EQ(m_window.menuBar()->actions().constFirst()->text(), QStringLiteral("业务管理"));
    EXPECT_EQ(m_window.findChild<QAction *>(QStringLiteral("openFunctionAction"))->text(), QStringLiteral("制单"));
    EXPECT_EQ(m_window.findChild<QPushButton *>(QStringLiteral("openFunctionButton"))->text(), QStringLiteral("制单"));
}

// Alt+S, Alt+B and their like belong to the buttons of the form.
TEST_F(MainWindowTest, TheMenuBarClaimsNoAltShortcuts)
{
    for (const QAction *menu : m_window.menuBar()->actions())
        EXPECT_FALSE(menu->text().contains(QLatin1Char('&'))) << menu->text().toStdString();
}

TEST_F(MainWindowTest, TheStatusBarTellsWhoWorksWhere)
{
    EXPECT_EQ(label("statusUser"), QStringLiteral("操作员：管理员（01）"));
    EXPECT_EQ(label("statusDatabase"), QStringLiteral("数据库：demo.db"));
}

TEST_F(MainWindowTest, BeginsWithTheStartPage)
{
    EXPECT_TRUE(startPageShown());
    EXPECT_EQ(m_window.windowTitle(), QStringLiteral("农合医院业务平台"));
    EXPECT_FALSE(isEnabled("refreshAction"));
    EXPECT_FALSE(isEnabled("closeFunctionAction"));
    EXPECT_EQ(m_module.form(), nullptr);
}

TEST_F(MainWindowTest, OpeningShowsTheFormOnce)
{
    trigger("openFunctionAction");
    QWidget *form = m_module.form();
    ASSERT_TRUE(form);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(form->window(), &m_window);
    EXPECT_EQ(form->property("shown").toInt(), 1);
    EXPECT_FALSE(startPageShown());
    EXPECT_EQ(m_window.windowTitle(), QStringLiteral("制单 - 农合医院业务平台"));

    trigger("openFunctionAction");
    EXPECT_EQ(m_module.form(), form);
    EXPECT_EQ(form->property("shown").toInt(), 1) << "an open form is not shown again";
    trigger("refreshAction");
    EXPECT_EQ(m_errors, QStringList());
}

TEST_F(MainWindowTest, TheFormsOwnExitReturnsToTheStartPageAndOpeningShowsItAnew)
{
    trigger("openFunctionAction");
    QWidget *form = m_module.form();
    form->findChild<QPushButton *>(QStringLiteral("btnExit"))->click();
    QApplication::processEvents();
    EXPECT_TRUE(startPageShown());
    EXPECT_EQ(m_module.form(), form) << "the form is kept";
    EXPECT_TRUE(isEnabled("closeFunctionAction"));

    m_window.findChild<QPushButton *>(QStringLiteral("openFunctionButton"))->click();
    QApplication::processEvents();
    EXPECT_EQ(m_module.form(), form);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(form->property("shown").toInt(), 2);
}

TEST_F(MainWindowTest, ExitAndAtOnceOpenShowsTheForm)
{
    trigger("openFunctionAction");
    m_module.form()->close();
    m_window.openFunction();
    QApplication::processEvents();
    EXPECT_TRUE(m_module.form()->isVisible());
    EXPECT_EQ(m_window.windowTitle(), QStringLiteral("制单 - 农合医院业务平台"));
}

TEST_F(MainWindowTest, TheFocusGoesIntoTheForm)
{
    trigger("openFunctionAction");
    const auto *exit = m_module.form()->findChild<QPushButton *>(QStringLiteral("btnExit"));
    EXPECT_EQ(m_window.focusWidget(), exit);
    trigger("closeFunctionAction");
    EXPECT_EQ(m_window.focusWidget()->objectName(), QStringLiteral("openFunctionButton"));
}

TEST_F(MainWindowTest, ClosingByTheMenuFreesTheForm)
{
    trigger("openFunctionAction");
    const QPointer<QWidget> form = m_module.form();
    trigger("closeFunctionAction");
    EXPECT_TRUE(form.isNull());
    EXPECT_TRUE(startPageShown());
    EXPECT_FALSE(isEnabled("refreshAction"));
    trigger("openFunctionAction");
    ASSERT_TRUE(m_module.form());
    EXPECT_EQ(m_module.form()->property("shown").toInt(), 1);
}

TEST_F(MainWindowTest, AModuleThatIsBusyKeepsItsForm)
{
    trigger("openFunctionAction");
    const QPointer<QWidget> form = m_module.form();
    form->setProperty("busy", true);
    trigger("closeFunctionAction");
    EXPECT_EQ(m_errors,
              QStringList(QStringLiteral("功能中还有打开的窗口或者没有完成的操作，请先完成或者关闭，"
                                         "再试一次。")));
    ASSERT_FALSE(form.isNull());
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(startPageShown());
    EXPECT_EQ(m_window.windowTitle(), QStringLiteral("制单 - 农合医院业务平台"));

    form->setProperty("busy", false);
    trigger("closeFunctionAction");
    EXPECT_TRUE(form.isNull());
    EXPECT_TRUE(startPageShown());
}

TEST_F(MainWindowTest, F10OpensTheMenuBar)
{
    trigger("openFunctionAction");
    QTest::keyClick(m_window.focusWidget(), Qt::Key_F10);
    QWidget *menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), QStringLiteral("categoryMenu"));
    QTest::keyClick(menu, Qt::Key_Escape);
    QTest::keyClick(m_window.focusWidget(), Qt::Key_F10, Qt::ControlModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(MainWindowTest, ShiftF10OpensTheContextMenuOfWhatHasTheFocus)
{
    trigger("openFunctionAction");
    QPushButton &button = *m_module.form()->findChild<QPushButton *>(QStringLiteral("btnExit"));
    button.setContextMenuPolicy(Qt::CustomContextMenu);
    int requests = 0;
    QObject::connect(&button, &QWidget::customContextMenuRequested, &m_window, [&requests] { ++requests; });
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(requests, 1);
}

TEST_F(MainWindowTest, ShiftF10OpensTheMenuOfAnEditInADialog)
{
    QDialog dialog(&m_window);
    QLineEdit edit(&dialog);
    edit.setContextMenuPolicy(Qt::CustomContextMenu);
    int requests = 0;
    QObject::connect(&edit, &QWidget::customContextMenuRequested, &m_window, [&requests] { ++requests; });
    dialog.show();
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(requests, 1);
    QTest::keyClick(&edit, Qt::Key_F10);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(MainWindowTest, MinimisingAndClosingTheWindowLeaveTheFormOpen)
{
    trigger("openFunctionAction");
    m_window.hide();
    QApplication::processEvents();
    EXPECT_EQ(m_window.windowTitle(), QStringLiteral("制单 - 农合医院业务平台"));
    EXPECT_FALSE(m_module.form()->isHidden());
}

class FailedLoadingTest : public MainWindowTest {
protected:
    ~FailedLoadingTest() override { setFailing(false); }

    static void setFailing(bool isFailing) { QCoreApplication::instance()->setProperty("loadingFails", isFailing); }
    [[nodiscard]] QWidget &notice() const { return *m_window.findChild<QWidget *>(QStringLiteral("loadingNotice")); }
    [[nodiscard]] bool isOffered() const { return notice().isVisible(); }
    [[nodiscard]] QPushButton &retry() const
    {
        return *m_window.findChild<QPushButton *>(QStringLiteral("retryButton"));
    }
    [[nodiscard]] int timesShown() const { return m_module.form()->property("shown").toInt(); }
    void openInVain()
    {
        setFailing(true);
        trigger("openFunctionAction");
    }
};

TEST_F(FailedLoadingTest, AFormThatIsLoadedIsOfferedNoSecondTry)
{
    EXPECT_FALSE(isOffered());
    trigger("openFunctionAction");
    EXPECT_FALSE(isOffered());
    EXPECT_TRUE(m_module.form()->isEnabled());
}

TEST_F(FailedLoadingTest, TheFormStaysOnTheScreenAndTakesNothing)
{
    openInVain();
    EXPECT_EQ(m_errors, QStringList(QStringLiteral("没有数据。")));
    EXPECT_TRUE(m_module.form()->isVisible());
    EXPECT_FALSE(m_module.form()->isEnabled());
    EXPECT_TRUE(isOffered());
    EXPECT_EQ(label("statusLoading"), QStringLiteral("载入失败，功能暂停使用"));
    EXPECT_TRUE(isEnabled("closeFunctionAction"));
    EXPECT_EQ(m_window.windowTitle(), QStringLiteral("制单 - 农合医院业务平台"));
}

TEST_F(FailedLoadingTest, TheKeyboardStandsOnTheSecondTry)
{
    openInVain();
    EXPECT_EQ(m_window.focusWidget(), &retry());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        const int before = timesShown();
        QTest::keyClick(m_window.focusWidget(), key);
        QApplication::processEvents();
        EXPECT_EQ(timesShown(), before + 1);
        EXPECT_EQ(m_window.focusWidget(), &retry()) << "in vain again";
    }
    EXPECT_EQ(m_errors.size(), 3);
}

TEST_F(FailedLoadingTest, TheSecondTryShowsTheFormAnew)
{
    openInVain();
    setFailing(false);
    retry().click();
    QApplication::processEvents();
    EXPECT_EQ(timesShown(), 2);
    EXPECT_TRUE(m_module.form()->isVisible());
    EXPECT_TRUE(m_module.form()->isEnabled());
    EXPECT_FALSE(isOffered());
    EXPECT_EQ(m_window.focusWidget()->objectName(), QStringLiteral("btnExit"));
    EXPECT_EQ(m_errors.size(), 1);
}

TEST_F(FailedLoadingTest, ChoosingTheFunctionAgainIsASecondTry)
{
    openInVain();
    setFailing(false);
    trigger("openFunctionAction");
    EXPECT_EQ(timesShown(), 2);
    EXPECT_TRUE(m_module.form()->isEnabled());
}

TEST_F(FailedLoadingTest, ALaterShowingThatFailsCountsAsWell)
{
    trigger("openFunctionAction");
    m_module.form()->close();
    QApplication::processEvents();
    openInVain();
    EXPECT_EQ(timesShown(), 2);
    EXPECT_FALSE(m_module.form()->isEnabled());
    EXPECT_TRUE(isOffered());
}

TEST_F(FailedLoadingTest, ErrorsOfLaterWorkDisableNothing)
{
    trigger("openFunctionAction");
    automation::displayError(QStringLiteral("磁盘已满。"));
    trigger("openFunctionAction");
    EXPECT_TRUE(m_module.form()->isEnabled());
    EXPECT_FALSE(isOffered());
}

TEST_F(FailedLoadingTest, ClosingTheFunctionTakesTheOfferBack)
{
    openInVain();
    trigger("closeFunctionAction");
    EXPECT_TRUE(startPageShown());
    EXPECT_FALSE(isOffered());
    EXPECT_EQ(m_window.focusWidget()->objectName(), QStringLiteral("openFunctionButton"));
}

class FailingModuleTest : public MainWindowTest {
protected:
    FailingModuleTest()
        : MainWindowTest(QStringLiteral(TEST_FAILING_MODULE))
    {
    }
};

TEST_F(FailingModuleTest, AFormThatCannotBeMadeIsAnErrorAndTheStartPageStays)
{
    trigger("openFunctionAction");
    EXPECT_EQ(m_errors, QStringList(QStringLiteral("模块的 CreateModule 失败，错误码 0x8000FFFF。")));
    EXPECT_TRUE(startPageShown());
    m_window.refreshFunction();
    EXPECT_EQ(m_errors.size(), 2);
}

TEST(MainWindowEnd, TheFormGoesWithTheWindow)
{
    const HostFixture host;
    ModuleLibrary module(QStringLiteral(TEST_PLAIN_MODULE));
    QPointer<QWidget> form;
    {
        MainWindow window(host.session, module, {}, MainWindow::Geometry::Fresh);
        window.show();
        window.openFunction();
        form = module.form();
        ASSERT_TRUE(form);
    }
    EXPECT_TRUE(form.isNull());
    EXPECT_EQ(module.form(), nullptr);
}

} // namespace vortaq::test
