// SPDX-License-Identifier: MIT
#include "uMain/TfrmMain.h"

#include "Common/TCtrlFunc.h"
#include "data/statements/startup.h"
#include "host/clientdataset.h"
#include "host/parameters.h"
#include "print/PrintedDocuments.h"
#include "toolkit/displayformat.h"
#include "toolkit/guard.h"
#include "toolkit/hostformats.h"
#include "uMain/BillMakingPage.h"
#include "uMain/BillPage.h"
#include "uMain/HistoryPage.h"
#include "uMain/UnbilledPage.h"
#include "uMain/rights.h"
#include "uPrint/TfrmPrint.h"

#include <QShowEvent>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr int AreaPrefixLength = 6;

} // namespace

TfrmMain::TfrmMain(QWidget *parent)
    : QWidget(parent)
    , CDSTmp(new TClientDataSet(this))
    , PageControl1(new QTabWidget(this))
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

    connectPrinting();
    connect(m_billMaking, &BillMakingPage::exitRequested, this, &QWidget::close);
    connect(m_reported, &BillPage::exitRequested, this, &QWidget::close);
    connect(m_returned, &BillPage::exitRequested, this, &QWidget::close);
}

TfrmMain::~TfrmMain() = default;

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
    if (!event->spontaneous())
        toolkit::guarded([this] { FormShow(); });
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
    TCtrlFunc functions;
    const QString value =
        functions.ReadIniStr(QStringLiteral("setup.ini"), QStringLiteral("system"), QStringLiteral("connStyle"));
    m_workbench.session.connStyle = toolkit::parseInteger(value);
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
