// SPDX-License-Identifier: MIT
// Opens, closes and embeds the module's form.
#include "vortaq/app/mainwindow.h"

#include "vortaq/app/elidedlabel.h"
#include "vortaq/app/errorwatch.h"
#include "vortaq/app/formrefresh.h"
#include "vortaq/app/loadingnotice.h"
#include "vortaq/app/menucaption.h"
#include "vortaq/app/menukeys.h"
#include "vortaq/app/modulelibrary.h"
#include "vortaq/app/naming.h"
#include "vortaq/app/pagearea.h"
#include "vortaq/app/session.h"
#include "vortaq/app/startpage.h"
#include "vortaq/app/windowplace.h"

#include "automation/error.h"
#include "automation/errordisplay.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>

namespace vortaq {

namespace {

constexpr QSize FirstSize(1200, 760);
constexpr int MostWidth = 16; // of a text in the status bar, in heights of its line; the rest is for the tip

QString geometryKey()
{
    return QStringLiteral("mainWindow/geometry");
}

/// An exception may not travel through Qt's signals.
template <typename Function> void guarded(Function function)
{
    try {
        function();
    } catch (const std::exception &error) {
        automation::displayError(automation::messageOf(error));
    }
}

/// To the first component of the form, unless the form has put the focus somewhere itself.
void focusInto(QWidget &form)
{
    if (form.isAncestorOf(form.window()->focusWidget()))
        return;
    for (QWidget *next = form.nextInFocusChain(); next != &form; next = next->nextInFocusChain()) {
        const bool takesFocus = (next->focusPolicy() & Qt::TabFocus) != 0 && next->isEnabled() && next->isVisible();
        if (takesFocus && form.isAncestorOf(next)) {
            next->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

} // namespace

MainWindow::MainWindow(std::shared_ptr<Session> session, ModuleLibrary &module, const QString &database,
                       Geometry geometry)
    : m_session(std::move(session))
    , m_module(module)
    , m_geometry(geometry)
    , m_pages(new QStackedWidget(this))
    , m_startPage(new StartPage(*m_session, module.info(), m_pages))
{
    setObjectName(QStringLiteral("hostWindow"));
    m_pages->addWidget(m_startPage);
    auto *area = new PageArea(m_pages, this);
    connect(area, &PageArea::tipOffered, this, &MainWindow::showTip);
    setCentralWidget(area);
    connect(m_startPage, &StartPage::functionWanted, this, &MainWindow::openFunction);
    buildMenus();
    new MenuKeys(*this);
    buildStatusBar(database);
    updateState();
    placeOnScreen(*this, FirstSize);
    if (m_geometry == Geometry::Remembered)
        restorePlace(*this, QSettings().value(geometryKey()).toByteArray());
}

MainWindow::~MainWindow()
{
    if (QWidget *form = m_module.form())
        form->removeEventFilter(this);
    guarded([this] { m_module.freeForm(); });
}

void MainWindow::buildMenus()
{
    menuBar()->setNativeMenuBar(false); // hints stand in its row
    QMenu *category = menuBar()->addMenu(menuCaption(m_module.info().category.caption));
    category->setObjectName(QStringLiteral("categoryMenu"));
    QAction *open = category->addAction(menuCaption(m_module.info().function.caption), this, &MainWindow::openFunction);
    open->setObjectName(QStringLiteral("openFunctionAction"));

    QMenu *system = menuBar()->addMenu(QStringLiteral("系统"));
    m_refresh =
        system->addAction(QStringLiteral("刷新(&R)"), QKeySequence(Qt::Key_F5), this, &MainWindow::refreshFunction);
    m_refresh->setObjectName(QStringLiteral("refreshAction"));
    m_closeFunction = system->addAction(QStringLiteral("关闭功能(&C)"), this, &MainWindow::closeFunction);
    m_closeFunction->setObjectName(QStringLiteral("closeFunctionAction"));
    system->addSeparator();
    QAction *quit =
        system->addAction(QStringLiteral("退出系统(&X)"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);
    quit->setObjectName(QStringLiteral("quitAction"));

    QMenu *help = menuBar()->addMenu(QStringLiteral("帮助"));
    help->addAction(QStringLiteral("关于(&A)"), this, &MainWindow::about)->setObjectName(QStringLiteral("aboutAction"));
}

void MainWindow::buildStatusBar(const QString &database)
{
    statusBar()->setContentsMargins(6, 0, 6, 0);
    statusBar()->setMinimumWidth(1); // where room is short the texts give way, the tip last
    m_tip = new ElidedLabel(Qt::ElideRight, this);
    m_tip->setObjectName(QStringLiteral("statusTip"));
    statusBar()->addWidget(m_tip, 1);

    const User &user = m_session->user();
    const auto add = [this](const QString &name, const QString &text) {
        auto *label = new ElidedLabel(Qt::ElideMiddle, this);
        label->setText(text);
        label->setObjectName(name);
        label->setMaximumWidth(label->fontMetrics().height() * MostWidth);
        statusBar()->addPermanentWidget(label);
    };
    add(QStringLiteral("statusUser"), QStringLiteral("操作员：%1（%2）").arg(user.name, user.code));
    add(QStringLiteral("statusInstitution"),
        QStringLiteral("机构：%1（%2）")
            .arg(m_session->parameter(QStringLiteral("OrgName")).toString(),
                 m_session->parameter(QStringLiteral("OrgCode")).toString()));
    add(QStringLiteral("statusDatabase"), QStringLiteral("数据库：%1").arg(database));
    m_loadingNotice = new LoadingNotice(this);
    statusBar()->addPermanentWidget(m_loadingNotice);
    connect(m_loadingNotice, &LoadingNotice::retryWanted, this, &MainWindow::openFunction);
}

void MainWindow::showTip(const QString &tip)
{
    m_tip->setText(tip);
    m_tip->setMinimumWidth(m_tip->sizeHint().width());
}

void MainWindow::openFunction()
{
    guarded([this] {
        QWidget &form = m_module.createForm();
        if (m_pages->indexOf(&form) < 0) {
            m_pages->addWidget(&form);
            form.installEventFilter(this);
        }
        const bool isUnloaded = !form.isEnabledTo(m_pages);
        if (isUnloaded)
            form.hide();
        showForm(form);
    });
    updateState();
}

void MainWindow::showForm(QWidget &form)
{
    const ErrorWatch watch;
    m_pages->setCurrentWidget(&form);
    form.show(); // a form that closed itself is still the current page until the event loop runs
    acceptLoaded(form, watch);
}

void MainWindow::acceptLoaded(QWidget &form, const ErrorWatch &watch)
{
    form.setEnabled(!watch.hasSeenError());
    focusInto(form);
}

void MainWindow::closeFunction()
{
    guarded([this] { m_module.freeForm(); });
    if (m_module.form() == nullptr) // a module that is busy keeps it
        showStartPage();
    updateState();
}

void MainWindow::refreshFunction()
{
    const bool isOpen = m_module.form() && m_module.form()->isVisible();
    if (isOpen && !mayDiscardInput(*m_module.form()))
        return;
    guarded([this, isOpen] {
        m_module.refresh();
        if (!isOpen)
            return;
        showTip({});
        const ErrorWatch watch;
        showAnew(*m_module.form());
        acceptLoaded(*m_module.form(), watch);
    });
    updateState();
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    // The form closes itself (its own exit button) by hiding.
    if (watched == m_module.form() && event->type() == QEvent::Hide && m_module.form()->isHidden())
        QMetaObject::invokeMethod(this, &MainWindow::updateState, Qt::QueuedConnection);
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::showStartPage()
{
    m_pages->setCurrentWidget(m_startPage);
    m_startPage->setFocus();
}

void MainWindow::updateState()
{
    const QWidget *form = m_module.form();
    const bool open = form && m_pages->currentWidget() == form && !form->isHidden();
    if (!open) {
        showTip({});
        if (m_pages->currentWidget() != m_startPage)
            showStartPage();
    }
    const bool isUnloaded = open && !form->isEnabledTo(m_pages);
    m_loadingNotice->setVisible(isUnloaded);
    if (isUnloaded)
        m_loadingNotice->setFocus();
    m_refresh->setEnabled(form != nullptr);
    m_closeFunction->setEnabled(form != nullptr);
    setWindowTitle(open ? QStringLiteral("%1 - %2").arg(m_module.info().function.caption, programTitle())
                        : programTitle());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_geometry == Geometry::Remembered)
        QSettings().setValue(geometryKey(), saveGeometry());
    QMainWindow::closeEvent(event);
}

void MainWindow::about()
{
    QMessageBox::about(this, QStringLiteral("关于"),
                       QStringLiteral("<b>%1</b><br>版本 %2<br><br>装入并运行医院业务模块，为其提供数据库、"
                                      "操作员信息和代码查询。<br>当前模块：%3（%4）")
                           .arg(programTitle(), QCoreApplication::applicationVersion(),
                                m_module.info().function.caption.toHtmlEscaped(),
                                m_module.info().library.toHtmlEscaped()));
}

} // namespace vortaq
