// SPDX-License-Identifier: MIT
// The main window around the real form, on whatever screen it runs: every button can be reached, and what is opened
// from it lies on the screen whole.
#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"
#include "vortaq/app/appearance.h"
#include "vortaq/app/hostobjects.h"
#include "vortaq/app/mainwindow.h"
#include "vortaq/app/modulelibrary.h"
#include "vortaq/app/screenmessages.h"
#include "vortaq/demo/demodata.h"
#include "vortaq/sqlite/sqliteengine.h"

#include "automation/errordisplay.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vortaq::test {

class ScreensTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        dress(*qApp);
        folder = new QTemporaryDir;
        DemoOptions demo;
        demo.records = 300;
        demo.archived = 50;
        createDemo(database(), demo);
    }
    static void TearDownTestSuite() { const std::unique_ptr<QTemporaryDir> owned(folder); }

    ScreensTest()
        : m_session(signIn(openSqlite(database()), {}, {}))
        , m_objects(m_session, std::make_shared<ScreenMessages>())
        , m_module(QStringLiteral(TEST_MODULE))
        , m_window(m_session, m_module, QStringLiteral("/home/clerk/.local/share/Tarnwell/tarnwell-host/hospital.db"),
                   MainWindow::Geometry::Fresh)
    {
        automation::setErrorDisplay([](const QString &message) { ADD_FAILURE() << message.toStdString(); });
        m_window.show();
        m_window.openFunction();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }
    ~ScreensTest() override { automation::setErrorDisplay({}); }

    static QString database() { return folder->filePath(QStringLiteral("hospital.db")); }
    [[nodiscard]] QRect room() const { return m_window.screen()->availableGeometry(); }
    [[nodiscard]] QAbstractItemView &view(const char *name) const
    {
        return hands::find<QAbstractItemView>(m_window, name);
    }
    void showPage(const char *page) const
    {
        hands::showPage(m_window, page);
        QApplication::processEvents();
    }
    /// Clicks a cell's visible part.
    static void click(QAbstractItemView &view, const QModelIndex &index)
    {
        ASSERT_TRUE(index.isValid()) << view.objectName().toStdString();
        (void)hands::reach(view); // a list may be larger than what is seen of it
        view.scrollTo(index);
        const QRect seen = view.visualRect(index).intersected(view.viewport()->visibleRegion().boundingRect());
        ASSERT_FALSE(seen.isEmpty()) << view.objectName().toStdString();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, seen.center());
    }
    static void clickRow(QAbstractItemView &grid) { click(grid, grid.model()->index(0, 3)); }
    static void clickFirstBill(QAbstractItemView &tree)
    {
        click(tree, tree.model()->index(0, 0, tree.model()->index(0, 0)));
    }
    void clickButton(const char *name) const
    {
        auto &button = hands::find<QWidget>(m_window, name);
        ASSERT_TRUE(hands::reach(button)) << name;
        QTest::mouseClick(&button, Qt::LeftButton);
    }
    static void expectButtonsInReach(const QWidget &around)
    {
        int buttons = 0;
        for (QAbstractButton *button : around.findChildren<QAbstractButton *>()) {
            const bool isCommand = !button->text().isEmpty() && button->isVisibleTo(&around);
            if (!isCommand)
                continue;
            ++buttons;
            EXPECT_TRUE(hands::reach(*button)) << button->objectName().toStdString();
        }
        EXPECT_GT(buttons, 0);
    }
    /// What is opened by `act` lies on the screen with all of its buttons.
    void expectOnScreen(const char *dialogName, const std::function<void()> &act, bool hasButtons = true) const
    {
        const ModalVisit visit(QString::fromLatin1(dialogName), [this, hasButtons](QWidget &dialog) {
            QApplication::processEvents();
            EXPECT_TRUE(room().contains(dialog.frameGeometry())) << dialog.width() << 'x' << dialog.height();
            if (hasButtons)
                expectButtonsInReach(dialog);
        });
        act();
    }

    static inline QTemporaryDir *folder = nullptr;
    std::shared_ptr<Session> m_session;
    HostObjects m_objects;
    ModuleLibrary m_module;
    MainWindow m_window;
};

TEST_F(ScreensTest, TheWindowLiesOnTheScreenWithEveryPage)
{
    EXPECT_TRUE(room().contains(m_window.frameGeometry()));
    EXPECT_TRUE(hands::reach(*m_window.statusBar()));
    auto &pages = hands::find<QTabWidget>(m_window, "PageControl1");
    const auto &area = hands::find<QScrollArea>(m_window, "pageArea");
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentIndex(page);
        QApplication::processEvents();
        if (!pages.currentWidget()->findChildren<QPushButton *>().isEmpty())
            expectButtonsInReach(*pages.currentWidget());
        EXPECT_TRUE(room().contains(m_window.frameGeometry()));
        if (room().width() >= 900 && room().height() >= 500) {
            EXPECT_FALSE(area.verticalScrollBar()->isVisible()) << page;
            EXPECT_FALSE(area.horizontalScrollBar()->isVisible()) << page;
        }
    }
}

TEST_F(ScreensTest, TheStartPageToo)
{
    m_window.closeFunction();
    QApplication::processEvents();
    EXPECT_TRUE(room().contains(m_window.frameGeometry()));
    expectButtonsInReach(hands::find<QWidget>(m_window, "startPage"));
}

TEST_F(ScreensTest, AddingRecords)
{
    showPage("tbUp");
    clickFirstBill(view("dxTLUpOrgInfo"));
    clickRow(view("dxTLUpBill"));
    expectOnScreen("frmAddBill", [this] { clickButton("btnUpAdd"); });
}

TEST_F(ScreensTest, FeesOfAStay)
{
    showPage("TabSheet3");
    auto &grid = view("dxTLUp");
    clickRow(grid);
    expectOnScreen("frmDjDetail", [&grid] {
        QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.currentIndex()).center());
    });
}

TEST_F(ScreensTest, FeesOfAPastStay)
{
    showPage("TabSheet2");
    clickFirstBill(view("dxTLOldOrg"));
    auto &grid = view("dxTLOldBill");
    clickRow(grid);
    expectOnScreen("frmDjOld", [&grid] {
        QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.currentIndex()).center());
    });
}

TEST_F(ScreensTest, PrintingAFeeList)
{
    showPage("TabSheet3");
    clickRow(view("dxTLUp"));
    expectOnScreen("frmPrint", [this] { clickButton("btnFeeInfo"); });
}

TEST_F(ScreensTest, APreview)
{
    showPage("TabSheet3");
    clickRow(view("dxTLUp"));
    expectOnScreen("PreviewWindow", [this] { clickButton("btnOutFee"); });
}

TEST_F(ScreensTest, TheLookUp)
{
    showPage("TabSheet3");
    auto &code = hands::find<QLineEdit>(m_window, "edtOrgCode");
    ASSERT_TRUE(hands::reach(code));
    code.setFocus();
    expectOnScreen(
        "codeSearchDialog", [&code] { QTest::keyClick(&code, Qt::Key_Delete); }, false);
}

TEST_F(ScreensTest, TheQuestionBeforeRefreshing)
{
    showPage("TabSheet3");
    auto &grid = view("dxTLUp");
    click(grid, grid.model()->index(0, 0)); // a tick
    expectOnScreen("refreshQuestion", [this] { QTest::keyClick(&m_window, Qt::Key_F5); });
}

} // namespace vortaq::test
