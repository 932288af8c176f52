// SPDX-License-Identifier: MIT
#include "uMain/TfrmMain.h"

#include "Common/TCtrlFunc.h"
#include "Common/executablefolder.h"
#include "data/statements/startup.h"
#include "forms/hostformats.h"
#include "host/clientdataset.h"
#include "host/parameters.h"
#include "print/PrintedDocuments.h"
#include "toolkit/guard.h"
#include "uMain/BillMakingPage.h"
#include "uMain/BillPage.h"
#include "uMain/HistoryPage.h"
#include "uMain/PageControl.h"
#include "uMain/UnbilledPage.h"
#include "uMain/rights.h"
#include "uPrint/TfrmPrint.h"
#include "values/displayformat.h"

#include <QFileInfo>
#include <QShowEvent>
#include <QVBoxLayout>

#include <stdexcept>

namespace {

constexpr int AreaPrefixLength = 6;

const QString SetupFile = QStringLiteral("setup.ini");
const QString SetupSection = QStringLiteral("system");
const QString SetupKey = QStringLiteral("connStyle");

/// What is wrong with the setup file, and what whoever looks after the program writes into it.
QString setupFault(const QString &value)
{
    const QString file = common::executableFolder() + SetupFile;
    QString fault;
    if (!QFileInfo::exists(file))
        fault = QStringLiteral("找不到设置文件“%1”。").arg(file);
    else if (value.isEmpty())
        fault = QStringLiteral("设置文件“%1”的 [%2] 一节里没有写 %3。").arg(file, SetupSection, SetupKey);
    else
        fault = QStringLiteral("设置文件“%1”的 [%2] 一节里，%3 写的是“%4”，不是整数。")
                    .arg(file, SetupSection, SetupKey, value);
    return fault
        + QStringLiteral("\n请用文本编辑器在该文件中写上：\n[%1]\n%2=1\n（1：保存、上报前到数据库再核对；0：不核对。）")
              .arg(SetupSection, SetupKey);
}

} // namespace

TfrmMain::TfrmMain(QWidget *parent)
    : QWidget(parent)
    , CDSTmp(new TClientDataSet(this))
    , PageControl1(new PageControl(this))
    , m_unbilled(new UnbilledPage(m_workbench))
    , m_billMaking(new BillMakingPage(m_workbench, *CDSTmp))
    , m_reported(new BillPage(m_workbench, *CDSTmp, ReportedBills))
    , m_returned(new BillPage(m_workbench, *CDSTmp, ReturnedBills))
    , m_history(new HistoryPage(m_workbench))
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("参合住院报销制单"));
    CDSTmp->setObjectName(QStringLiteral("CDSTmp"));
    PageControl1->setObjectName(QStringLiteral("PageControl1"));
    PageControl1->addTab(m_unbilled, QStringLiteral("未制单病人查询"));
    PageControl1->addTab(m_billMaking, QStringLiteral("报销制单"));
    PageControl1->addTab(m_reported, QStringLiteral("上报制单"));
    PageControl1->addTab(m_returned, QStringLiteral("退单制单"));
    PageControl1->addTab(m_history, QStringLiteral("历史制单查询"));
    PageControl1->setCurrentWidget(m_billMaking);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(PageControl1);

    m_workbench.activeBillTree = [this] {
        const auto *page = qobject_cast<const BillPage *>(PageControl1->currentWidget());
        return page != nullptr ? &page->tree() : nullptr;
    };
    connectPrinting();
    connect(m_billMaking, &BillMakingPage::exitRequested, this, &QWidget::close);
    connect(m_reported, &BillPage::exitRequested, this, &QWidget::close);
    connect(m_returned, &BillPage::exitRequested, this, &QWidget::close);
}

TfrmMain::~TfrmMain() = default;

bool TfrmMain::hasUnsavedInput() const
{
    return m_billMaking->hasTicks();
}

void TfrmMain::connectPrinting()
{
    auto *documents = new print::PrintedDocuments(m_workbench, *CDSTmp, this);
    const auto settings = [this] {
        const Session &session = m_workbench.session;
        return print::PrintSettings{session.connStyle, static_cast<print::SettlementRoute>(session.FeeInterfaceMode)};
    };
    m_workbench.print.settlementSheet = [=](const TdxTreeList &grid, int billType) {
        documents->PrintSettlementSheet(grid, billType, settings());
    };
    m_workbench.print.approvalForm = [=](const TdxTreeList &grid, int billType) {
        documents->PrintApprovalForm(grid, billType, settings());
    };
    m_workbench.print.feeList = [](const TdxTreeList &grid, int billType) { PrintFeeList(grid, billType); };
}

void TfrmMain::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    PageControl1->focusPage();
    toolkit::guarded(QStringLiteral("载入窗口"), [this] { FormShow(); });
}

void TfrmMain::FormShow()
{
    m_workbench.host().create();
    readConnStyle();
    readParameters();
    m_unbilled->start();
    m_billMaking->start();
    m_reported->start();
    m_returned->start();
    ApplyEditFormat(*this);
    applyRights(*this);
    m_history->start();
    testSettlementRoute();
}

void TfrmMain::readConnStyle()
{
    const QString value = TCtrlFunc().ReadIniStr(SetupFile, SetupSection, SetupKey);
    try {
        m_workbench.session.connStyle = values::parseInteger(value);
    } catch (const std::invalid_argument &) {
        throw std::runtime_error(setupFault(value).toStdString());
    }
}

void TfrmMain::readParameters()
{
    const auto read = [this](const QString &name) {
        return m_workbench.host().FuncStorage.CustomParam(name).toString();
    };
    Session &session = m_workbench.session;
    session.AreaCode = read(host::parameter::AreaCode);
    session.areaPrefix = session.AreaCode.left(AreaPrefixLength);
    session.OrgCode = read(host::parameter::OrgCode);
    session.OrgName = read(host::parameter::OrgName);
    session.OrgType = read(host::parameter::OrgType);
    session.OrgGrade = read(host::parameter::OrgGrade);
}

void TfrmMain::testSettlementRoute()
{
    m_workbench.statement = data::settlementProcedureLookup();
    CDSTmp->setData(m_workbench.host().DataCtl.OpenSql(m_workbench.statement)); // no CloseSql for this one query
    m_workbench.session.FeeInterfaceMode = CDSTmp->isEmpty() ? 2 : 1;
}
