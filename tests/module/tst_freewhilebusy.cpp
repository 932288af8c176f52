// SPDX-License-Identifier: MIT
// A host that frees the form in the middle of something, as an automatic sign-out does: through the shared object, with
// everything open that the module can open.
#include "automation/errordisplay.h"
#include "module/tarnwell_module.h"
#include "tests/support/modalvisit.h"
#include "tests/support/smallhospital.h"
#include "vortaq/app/hostobjects.h"
#include "vortaq/app/screenmessages.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QLibrary>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

namespace {

/// Errors on the screen as the program shows them; a hint is a chance to free the form in the middle of a change.
class Messages : public vortaq::ScreenMessages {
public:
    void hint(const QString &) override
    {
        if (atHint)
            atHint();
    }
    std::function<void()> atHint;
};

class FreeWhileBusyTest : public testing::Test {
protected:
    FreeWhileBusyTest()
        : m_library(QString::fromUtf8(TARNWELL_SHARED_OBJECT))
    {
        const QString file = m_folder.filePath(QStringLiteral("hospital.db"));
        createSmallHospital(file);
        const std::shared_ptr<vortaq::Engine> engine = vortaq::openSqlite(file, {});
        m_objects = std::make_unique<vortaq::HostObjects>(vortaq::signIn(engine, QStringLiteral("01"), {}), m_messages);
        automation::setErrorDisplay([](const QString &message) { ADD_FAILURE() << message.toStdString(); });
        EXPECT_TRUE(m_library.load()) << m_library.errorString().toStdString();
        m_free = reinterpret_cast<TarnwellFreeModule>(m_library.resolve("FreeModule"));
        makeForm();
    }
    ~FreeWhileBusyTest() override
    {
        EXPECT_EQ(m_free(&m_address), TARNWELL_OK) << "when all is over";
        EXPECT_TRUE(m_form.isNull());
        automation::setErrorDisplay({});
    }

    void makeForm()
    {
        const auto create = reinterpret_cast<TarnwellCreateModule>(m_library.resolve("CreateModule"));
        EXPECT_EQ(create(&m_address, 0, 0, 0, 0, 0, 0), TARNWELL_OK);
        m_form = static_cast<QWidget *>(m_address);
        m_form->resize(1200, 700);
        m_form->show();
        m_form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_form));
    }
    template <typename Component> [[nodiscard]] Component &find(const char *name) const
    {
        auto *component = m_form->findChild<Component *>(QString::fromUtf8(name));
        if (component == nullptr)
            throw std::runtime_error(std::string("no component ") + name);
        return *component;
    }
    void showPage(const char *page) const { find<QTabWidget>("PageControl1").setCurrentWidget(&find<QWidget>(page)); }
    void click(const char *button) const { find<QPushButton>(button).click(); }
    void trigger(const char *item) const { find<QAction>(item).trigger(); }
    /// The bill of the first candidate, chosen on the page "上报制单".
    void makeBill() const
    {
        QTest::keyClick(&find<QTreeView>("dxTLUp"), Qt::Key_Space);
        click("btnSave");
        showPage("tbUp");
        QTest::keyClick(&find<QTreeView>("dxTLUpOrgInfo"), Qt::Key_Down);
    }
    /// Frees the form while a modal window of that name is open, which `open` opens.
    template <typename Open> void freeWithin(const char *window, const Open &open)
    {
        {
            const ModalVisit visit(QString::fromUtf8(window), [this](QWidget &) { isRefused(); });
            open();
        }
        EXPECT_TRUE(m_form != nullptr && m_form->isVisible());
    }
    void isRefused()
    {
        EXPECT_EQ(m_free(&m_address), TARNWELL_BUSY);
        EXPECT_FALSE(m_form.isNull());
        ++m_refusals;
    }

    QTemporaryDir m_folder;
    std::shared_ptr<Messages> m_messages = std::make_shared<Messages>();
    std::unique_ptr<vortaq::HostObjects> m_objects;
    QLibrary m_library;
    TarnwellFreeModule m_free = nullptr;
    void *m_address = nullptr;
    QPointer<QWidget> m_form;
    int m_refusals = 0;
};

} // namespace

TEST_F(FreeWhileBusyTest, withTheFeeDetailOpen)
{
    freeWithin("frmDjDetail", [this] { trigger("mFeeInfo"); });
    freeWithin("frmDjDetail", [this] { QTest::keyClick(&find<QTreeView>("dxTLUp"), Qt::Key_Return); });
}

TEST_F(FreeWhileBusyTest, withTheHistoryDetailOpen)
{
    showPage("TabSheet2");
    QTest::keyClick(&find<QTreeView>("dxTLOldOrg"), Qt::Key_Down);
    freeWithin("frmDjOld", [this] { QTest::keyClick(&find<QTreeView>("dxTLOldBill"), Qt::Key_Return); });
}

TEST_F(FreeWhileBusyTest, withAQuestionOpen)
{
    freeWithin("", [this] { trigger("mUpSave"); });
    freeWithin("", [this] { trigger("mBackDelete"); });
    freeWithin("", [this] { click("btnUpCancel"); });
}

TEST_F(FreeWhileBusyTest, withTheAddDialogOpen)
{
    makeBill();
    freeWithin("frmAddBill", [this] { click("btnUpAdd"); });
}

TEST_F(FreeWhileBusyTest, withTheFeeListAndItsPreviewOpen)
{
    freeWithin("frmPrint", [this] { click("btnFeeInfo"); });
    const ModalVisit visit(QStringLiteral("frmPrint"), [this](QWidget &dialog) {
        freeWithin("PreviewWindow",
                   [&dialog] { dialog.findChild<QPushButton *>(QStringLiteral("btnPrint"))->click(); });
    });
    click("btnFeeInfo");
}

TEST_F(FreeWhileBusyTest, withAMessageOfTheHostOpen)
{
    freeWithin("alertBox", [this] { click("btnBack"); });
}

TEST_F(FreeWhileBusyTest, withTheHostsLookUpOpen)
{
    freeWithin("codeSearchDialog", [this] { QTest::keyClick(&find<QWidget>("edtOrgCode"), Qt::Key_4); });
}

TEST_F(FreeWhileBusyTest, amongTheEventsThatAChangeLetsRun)
{
    makeBill();
    m_messages->atHint = [this] {
        QMetaObject::invokeMethod(
            m_form, [this] { isRefused(); }, Qt::QueuedConnection);
    };
    const ModalVisit visit(
        QString(), [](QWidget &question) { question.findChild<QPushButton *>(QStringLiteral("btnYes"))->click(); });
    trigger("mUpCancel");
    EXPECT_EQ(m_refusals, 1);
    EXPECT_EQ(find<QTreeView>("dxTLUpOrgInfo").model()->rowCount(), 0) << "the bill is cancelled";
}

TEST_F(FreeWhileBusyTest, aHostThatClosesWhatIsOpenIsFreeOfTheFormInTheEnd)
{
    QStringList closed;
    QTimer signOut;
    QObject::connect(&signOut, &QTimer::timeout, &signOut, [&] {
        QWidget *open = QApplication::activeModalWidget();
        if (closed.isEmpty() && (open == nullptr || open->objectName() != QStringLiteral("frmPrint")))
            return; // not yet
        if (m_free(&m_address) != TARNWELL_BUSY) {
            signOut.stop();
        } else if (open != nullptr) {
            closed.append(open->objectName());
            open->close();
        }
    });
    signOut.start(0);
    click("btnFeeInfo");
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_form.isNull(); }));
    EXPECT_EQ(closed, QStringList(QStringLiteral("frmPrint")));
    makeForm();
}

TEST_F(FreeWhileBusyTest, menusAndCalendarsGoWithTheForm)
{
    QContextMenuEvent request(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&find<QTreeView>("dxTLUp"), &request);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(m_free(&m_address), TARNWELL_OK);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);

    makeForm();
    QTest::keyClick(&find<QWidget>("dxDEWirte"), Qt::Key_F4);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
}
