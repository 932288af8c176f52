// SPDX-License-Identifier: MIT
#include "uMain/HistoryPage.h"

#include "data/captions.h"
#include "host/clientdataset.h"
#include "toolkit/rowdrawing.h"
#include "uMain/columns.h"
#include "uMain/formats.h"
#include "uMain/menus.h"
#include "uMain/trees.h"
#include "ui_HistoryPage.h"

#include <QMenu>

HistoryPage::HistoryPage(Workbench &workbench, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::HistoryPage>())
    , m_workbench(workbench)
    , CDSOld(new TClientDataSet(this))
{
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("TabSheet2"));
    CDSOld->setObjectName(QStringLiteral("CDSOld"));
    setUpTree(*m_ui->dxTLOldOrg, "dxTLOldOrgInfo");
    m_ui->dxTLOldBill->setColumns(historyColumns());
    m_ui->dxTLOldBill->setFixedBand(BillFixedBand);
    m_ui->splitterOld->setStretchFactor(1, 1);
    m_ui->dxTLOldBill->setPopupMenu(createMenu(
        this, "pMPrint", {{"mJxP", "补打出院结算表"}, {"mCheckP", "补打审批表"}, {"mFeeDetail", "补打费用清单"}}));
}

HistoryPage::~HistoryPage() = default;

void HistoryPage::start()
{
    m_ui->Panel31->setCaption(m_ui->LbOld, data::reimbursementTitle());
    applyBackground(*m_ui->dxTLOldOrg);
    m_ui->dxTLOldOrg->setCustomDrawCell(toolkit::organisationTreeDrawing());
    applyBackground(*m_ui->dxTLOldBill);
    m_ui->dxTLOldBill->setCustomDrawCell(toolkit::billListDrawing());
    m_ui->dxTLOldBill->columnByName(QStringLiteral("dxTLOldBillID"))->setCustomDrawCell(toolkit::rowNumberDrawing());
    ApplyMoneyFormat(*m_ui->dxTLOldBill);
}
