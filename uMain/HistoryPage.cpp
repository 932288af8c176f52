// SPDX-License-Identifier: MIT
#include "uMain/HistoryPage.h"

#include "data/captions.h"
#include "data/statements/history.h"
#include "forms/hostformats.h"
#include "forms/recordcolumns.h"
#include "forms/rowdrawing.h"
#include "host/clientdataset.h"
#include "host/parameters.h"
#include "toolkit/TreeListUpdate.h"
#include "toolkit/guard.h"
#include "uDjOld/TfrmDjOld.h"
#include "uMain/BillNotes.h"
#include "uMain/billtrees.h"
#include "uMain/columns.h"
#include "uMain/menus.h"
#include "uMain/workbench.h"
#include "ui_HistoryPage.h"
#include "values/displayformat.h"

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
    setUpBillTree(*m_ui->dxTLOldOrg, "dxTLOldOrgInfo",
                  {QStringLiteral("Fee"), QStringLiteral("CanFreeFee"), QStringLiteral("CheckFee1"),
                   QStringLiteral("CheckFee"), QStringLiteral("Type"), QStringLiteral("CheckStatus")});
    m_ui->dxTLOldBill->setColumns(historyColumns());
    m_ui->dxTLOldBill->setFixedBand(BillFixedBand);
    m_ui->splitterOld->setStretchFactor(1, 1);
    m_ui->dxTLOldBill->setPopupMenu(
        createMenu(this, *m_ui->dxTLOldBill, "pMPrint",
                   {{"mJxP", "补打出院结算表"}, {"mCheckP", "补打审批表"}, {"mFeeDetail", "补打费用清单"}}));
    m_notes = new BillNotes(*m_ui->dxTLOldOrg, *this, *m_ui->dxCEOldTotal,
                            {{"总费用", billnode::Fee},
                             {"可报销费用", billnode::CanFreeFee},
                             {"一审费用", billnode::CheckFee1},
                             {"二审费用", billnode::CheckFee}});
    setFocusProxy(m_ui->dxTLOldOrg);
    toolkit::connectGuarded(m_ui->dxTLOldOrg, &TdxTreeList::changeNode, this, QStringLiteral("载入制单记录"),
                            [this](const TdxTreeListNode &node) { dxTLOldOrgChangeNode(node); });
    toolkit::connectGuarded(m_ui->dxTLOldBill, &TdxTreeList::dblClick, this, QStringLiteral("查看历史明细"),
                            [this] { dxTLOldBillDblClick(); });
    connectReprint("mJxP", m_workbench.print.settlementSheet);
    connectReprint("mCheckP", m_workbench.print.approvalForm);
    connectReprint("mFeeDetail", m_workbench.print.feeList);
    m_workbench.reload.history = [this] { LoadOldBills(); };
}

HistoryPage::~HistoryPage() = default;

void HistoryPage::connectReprint(const char *item, const std::function<void(const TdxTreeList &, int)> &document)
{
    const auto *action = findChild<QAction *>(QString::fromUtf8(item));
    toolkit::connectGuarded(action, &QAction::triggered, this, action->text(), [this, &document] {
        document(*m_ui->dxTLOldBill, values::parseInteger(m_ui->dxTLOldOrg->focusedNode().text(billnode::Type)));
    });
}

void HistoryPage::LoadOldBills()
{
    const auto readOrgCode = [this] {
        return m_workbench.host().FuncStorage.CustomParam(host::parameter::OrgCode).toString();
    };
    const QString ofBillsInUse = readOrgCode();
    const QString ofArchivedBills = readOrgCode();
    m_workbench.LoadDataSet(data::historyBills(ofBillsInUse, ofArchivedBills), *CDSOld);
    rebuildBillTree(*m_ui->dxTLOldOrg, *CDSOld, [this](TdxTreeListNode &bill) {
        bill.setValue(
            billnode::Text,
            data::historyBillCaption(CDSOld->text(QStringLiteral("WriteDate")), bill.text(billnode::CheckStatus)));
    });
    dxTLOldOrgChangeNode(m_ui->dxTLOldOrg->topNode());
}

void HistoryPage::dxTLOldOrgChangeNode(const TdxTreeListNode &node)
{
    TdxTreeList &grid = *m_ui->dxTLOldBill;
    m_notes->setChosen({});
    m_ui->edtOldNum->clear();
    for (TdxCurrencyEdit *edit : {m_ui->dxCEOldTotal, m_ui->dxCEOldCan, m_ui->dxCEOldOne, m_ui->dxCEOldTwo})
        edit->setValue(0);
    const TreeListUpdate update(grid);
    grid.clearNodes();
    if (!node) {
        grid.setPopupMenu(nullptr); // for as long as the form lives: nothing attaches it again
        return;
    }
    if (!isBillNode(node))
        return;
    m_workbench.LoadDataSet(data::historyRecords(node.text(billnode::Type), billKeyOf(node)), *CDSOld);
    grid.addRows(CDSOld->packet());
    m_ui->edtOldNum->setText(QString::number(grid.count()));
    // The bill's stored amounts, even where its records would sum differently.
    m_ui->dxCEOldTotal->setValue(node.text(billnode::Fee));
    m_ui->dxCEOldCan->setValue(node.text(billnode::CanFreeFee));
    m_ui->dxCEOldOne->setValue(node.text(billnode::CheckFee1));
    m_ui->dxCEOldTwo->setValue(node.text(billnode::CheckFee));
    node.setValue(billnode::Records, grid.count());
    m_notes->setChosen(node);
}

void HistoryPage::dxTLOldBillDblClick()
{
    const TdxTreeListNode row = m_ui->dxTLOldBill->focusedNode();
    const TdxTreeListNode bill = m_ui->dxTLOldOrg->focusedNode();
    if (!row || !bill)
        return;
    showHistoryDetail({forms::RecordColumns(*m_ui->dxTLOldBill).key(row), bill.text(billnode::Type),
                       bill.text(billnode::CheckStatus)},
                      window());
}

void HistoryPage::start()
{
    LoadOldBills();
    m_ui->Panel31->setCaption(m_ui->LbOld, data::reimbursementTitle());
    applyBackground(*m_ui->dxTLOldOrg);
    m_ui->dxTLOldOrg->setCustomDrawCell(forms::organisationTreeDrawing());
    applyBackground(*m_ui->dxTLOldBill);
    m_ui->dxTLOldBill->setCustomDrawCell(forms::billListDrawing());
    m_ui->dxTLOldBill->columnByName(QStringLiteral("dxTLOldBillID"))->setCustomDrawCell(forms::rowNumberDrawing());
    ApplyMoneyFormat(*m_ui->dxTLOldBill);
}
