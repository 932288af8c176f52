// SPDX-License-Identifier: MIT
// The real module in the host's window, when the database refuses one of the questions that the form asks at its start.
#include "tests/support/failingengine.h"
#include "tests/support/smallhospital.h"
#include "tests/vortaq/app/support/hostfixture.h"
#include "vortaq/app/mainwindow.h"
#include "vortaq/app/modulelibrary.h"
#include "vortaq/sqlite/sqliteengine.h"

#include "automation/errordisplay.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <sqlite3.h>

#include <gtest/gtest.h>

namespace vortaq::test {

/// The clerk may save (1) but return nothing (2).
QString hospitalOfAClerkWithoutTheRightToReturn(const QTemporaryDir &folder)
{
    QString file = folder.filePath(QStringLiteral("hospital.db"));
    createSmallHospital(file);
    sqlite3 *database = nullptr;
    EXPECT_EQ(sqlite3_open(file.toUtf8().constData(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, "update v_User set RightParam='1'", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(database);
    return file;
}

void layBesideTheExecutable(const QString &name, const QByteArray &text)
{
    QFile file(QCoreApplication::applicationDirPath() + QLatin1Char('/') + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(text), text.size());
}

class FailedLoading : public testing::Test {
protected:
    FailedLoading()
        : m_engine(std::make_shared<FailingEngine>(openSqlite(hospitalOfAClerkWithoutTheRightToReturn(m_folder), {})))
        , m_session(signIn(m_engine, QStringLiteral("01"), {}))
        , m_objects(m_session, std::make_shared<NotedMessages>())
        , m_module(QStringLiteral(TEST_MODULE))
        , m_window(m_session, m_module, {}, MainWindow::Geometry::Fresh)
    {
        layBesideTheExecutable(QStringLiteral("setup.ini"), "[system]\r\nconnStyle=1\r\n");
        automation::setErrorDisplay([this](const QString &message) { m_errors.append(message); });
        m_window.show();
    }
    ~FailedLoading() override { automation::setErrorDisplay({}); }

    template <typename Component> [[nodiscard]] Component &find(const char *name) const
    {
        return *m_window.findChild<Component *>(QString::fromLatin1(name));
    }
    /// What the clerk does to return the first candidate, with a mouse that stops at nothing.
    void tickAndReturn()
    {
        auto &grid = find<QTreeView>("dxTLUp");
        const QModelIndex tick = grid.model()->index(0, 0);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(tick).center());
        QTimer question;
        QObject::connect(&question, &QTimer::timeout, [] {
            if (QWidget *asking = QApplication::activeModalWidget()) {
                ADD_FAILURE() << "asked whether to return";
                asking->close();
            }
        });
        question.start(0);
        QTest::mouseClick(&find<QPushButton>("btnBack"), Qt::LeftButton);
        QApplication::processEvents();
    }

    QTemporaryDir m_folder;
    std::shared_ptr<FailingEngine> m_engine;
    std::shared_ptr<Session> m_session;
    HostObjects m_objects;
    QStringList m_errors;
    ModuleLibrary m_module;
    MainWindow m_window;
};

// The form asks for rights late in its start-up: what failed before left every button free to press.
TEST_F(FailedLoading, WithoutTheRightNothingCanBeReturnedWhereverTheStartUpEnds)
{
    const int before = m_engine->calls();
    m_window.openFunction();
    const int questions = m_engine->calls() - before;
    ASSERT_TRUE(m_module.form()->isEnabled());
    ASSERT_FALSE(find<QPushButton>("btnBack").isEnabled()) << "there is no right to";
    ASSERT_EQ(m_errors, QStringList());
    m_window.closeFunction();

    int loadedCandidates = 0;
    for (int failing = 1; failing <= questions; ++failing) {
        m_engine->failCall(failing);
        m_window.openFunction();
        ASSERT_EQ(m_errors.size(), failing) << "call " << failing;
        EXPECT_TRUE(m_module.form()->isVisible());
        EXPECT_FALSE(m_module.form()->isEnabled()) << "call " << failing;
        loadedCandidates += find<QTreeView>("dxTLUp").model()->rowCount() > 0 ? 1 : 0;

        const int calls = m_engine->calls();
        tickAndReturn();
        EXPECT_EQ(m_engine->calls(), calls) << "call " << failing;

        find<QPushButton>("retryButton").click();
        EXPECT_TRUE(m_module.form()->isEnabled()) << "call " << failing;
        EXPECT_TRUE(find<QPushButton>("btnSave").isEnabled());
        EXPECT_FALSE(find<QPushButton>("btnBack").isEnabled());
        EXPECT_EQ(find<QTreeView>("dxTLUp").model()->rowCount(), 4);
        m_window.closeFunction();
    }
    EXPECT_GE(loadedCandidates, 3) << "failures after the candidates, which are what can be returned";
}

// The file that says how to work is missing: nothing is loaded until it is there.
TEST_F(FailedLoading, AfterTheSetupFileIsPutRightASecondTryLoads)
{
    layBesideTheExecutable(QStringLiteral("setup.ini"), "[system]\r\nconnStyle=\r\n");
    m_window.openFunction();
    EXPECT_EQ(m_errors.size(), 1);
    EXPECT_FALSE(m_module.form()->isEnabled());
    layBesideTheExecutable(QStringLiteral("setup.ini"), "[system]\r\nconnStyle=1\r\n");
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(m_module.form()->isEnabled());
    EXPECT_EQ(m_errors.size(), 1);
}

} // namespace vortaq::test
