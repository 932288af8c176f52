// SPDX-License-Identifier: MIT
#include "uMain/BillMakingPage.h"

#include "data/captions.h"
#include "data/codes.h"
#include "data/statements/candidates.h"
#include "forms/hostformats.h"
#include "forms/keycheck.h"
#include "forms/recordcolumns.h"
#include "forms/rowdrawing.h"
#include "host/clientdataset.h"
#include "host/rightsscope.h"
#include "toolkit/TreeListUpdate.h"
#include "toolkit/clock.h"
#include "toolkit/guard.h"
#include "uDjDetail/TfrmDjDetail.h"
#include "uMain/InstitutionSearch.h"
#include "uMain/ReturningRecords.h"
#include "uMain/SavingBill.h"
#include "uMain/columns.h"
#include "uMain/menus.h"
#include "uMain/workbench.h"
#include "ui_BillMakingPage.h"
#include "values/dateformat.h"

#include <QMenu>

BillMakingPage::BillMakingPage(Workbench &workbench, TClientDataSet &scratch, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::BillMakingPage>())
    , m_workbench(workbench)
    , m_scratch(scratch)
    , CDSUp(new TClientDataSet(this))
{
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("TabSheet3"));
    CDSUp->setObjectName(QStringLiteral("CDSUp"));
    m_ui->dxTLUp->setColumns(candidateColumns());
    m_ui->dxTLUp->setFixedBand(CandidateFixedBand);
    m_checkColumn = forms::columnPosition(*m_ui->dxTLUp, "Check");
    m_ui->dxTLUp->setPopupMenu(createMenu(
        this, *m_ui->dxTLUp, "pMUp", {{"mCheck", "全部选定"}, {"mUnCheck", "全部取消"}, {"mFeeInfo", "查看费用信息"}}));
    setFocusProxy(m_ui->dxTLUp);
    connectHandlers();
    m_workbench.reload.candidates = [this] { LoadUpCandidates(); };
}

BillMakingPage::~BillMakingPage() = default;

void BillMakingPage::connectHandlers()
{
    using toolkit::connectGuarded;
    connectGuarded(m_ui->dxTLUp, &TdxTreeList::toggleClick, this, QStringLiteral("勾选记录"),
                   [this](TdxTreeListColumn *, const QString &newState) { dxTLUpCheckToggleClick(newState); });
    connectGuarded(findChild<QAction *>(QStringLiteral("mCheck")), &QAction::triggered, this,
                   QStringLiteral("全部选定"), [this] { SetAllChecked(m_checkColumn, true); });
    connectGuarded(findChild<QAction *>(QStringLiteral("mUnCheck")), &QAction::triggered, this,
                   QStringLiteral("全部取消"), [this] { SetAllChecked(m_checkColumn, false); });
    connectGuarded(m_ui->edtOrgCode, &CodeSearchEdit::keyDown, this, QStringLiteral("代码查询"),
                   [this](int key) { edtOrgCodeKeyDown(key); });
    connectGuarded(m_ui->btnSave, &QPushButton::clicked, this, QStringLiteral("保存制单"), [this] { btnSaveClick(); });
    connectGuarded(m_ui->btnBack, &QPushButton::clicked, this, QStringLiteral("退单"), [this] { btnBackClick(); });
    connectGuarded(m_ui->dxTLUp, &TdxTreeList::dblClick, this, QStringLiteral("查看费用信息"),
                   [this] { showFeeDetail(*m_ui->dxTLUp); });
    connectGuarded(findChild<QAction *>(QStringLiteral("mFeeInfo")), &QAction::triggered, this,
                   QStringLiteral("查看费用信息"), [this] { showFeeDetail(*m_ui->dxTLUp); });
    constexpr int currentTables = 1;
    connectGuarded(m_ui->btnOutFee, &QPushButton::clicked, this, QStringLiteral("打印出院结算单"),
                   [this] { m_workbench.print.settlementSheet(*m_ui->dxTLUp, currentTables); });
    connectGuarded(m_ui->btnFeeGs, &QPushButton::clicked, this, QStringLiteral("打印医药费补偿审批表"),
                   [this] { m_workbench.print.approvalForm(*m_ui->dxTLUp, currentTables); });
    connectGuarded(m_ui->btnFeeInfo, &QPushButton::clicked, this, QStringLiteral("打印费用清单"),
                   [this] { m_workbench.print.feeList(*m_ui->dxTLUp, currentTables); });
    connectGuarded(m_ui->btnExit, &QPushButton::clicked, this, QStringLiteral("退出"),
                   [this] { Q_EMIT exitRequested(); });
}

void BillMakingPage::start()
{
    LoadUpCandidates();
    m_ui->Panel13->setCaption(m_ui->LbUp, data::reimbursementTitle());
    applyBackground(*m_ui->dxTLUp);
    m_ui->dxTLUp->setCustomDrawCell(forms::billListDrawing());
    m_ui->edtPrincipal->setText(m_workbench.host().FuncStorage.UserName());
    m_ui->edtOrgCode->setText(m_workbench.session.OrgCode);
    m_ui->edtOrgName->setText(m_workbench.session.OrgName);
    m_ui->dxTLUp->columnByName(QStringLiteral("dxTLUpID"))->setCustomDrawCell(forms::rowNumberDrawing());
    m_ui->dxDEWirte->setDate(toolkit::today());
    ApplyMoneyFormat(*m_ui->dxTLUp);
}

void BillMakingPage::LoadUpCandidates()
{
    // Only rights narrow this list: the user's type of institution, and which one it is, do not.
    m_workbench.LoadDataSet(data::billCandidates(host::recordGrant(m_workbench.host().FuncStorage)), *CDSUp);
    {
        const TreeListUpdate update(*m_ui->dxTLUp);
        m_ui->dxTLUp->clearNodes();
        m_ui->dxTLUp->addRows(CDSUp->packet());
    }
    m_ui->edtUpNum->clear();
    m_ui->dxCEUpTotal->setValue(0);
    m_ui->dxCEUpCanFee->setValue(0);
}

void BillMakingPage::CalcUpTotals()
{
    if (m_ui->dxTLUp->count() == 0)
        return;
    const forms::TickedTotals totals = forms::sumTicked(*m_ui->dxTLUp, m_checkColumn);
    m_ui->edtUpNum->setText(QString::number(totals.count));
    m_ui->dxCEUpTotal->setValue(totals.totalFee);
    m_ui->dxCEUpCanFee->setValue(totals.canFreeFee);
    m_ui->dxCEUpFreeFee->setValue(totals.freeFee);
}

bool BillMakingPage::hasTicks() const
{
    for (int i = 0; i < m_ui->dxTLUp->count(); ++i) {
        if (forms::isTicked(m_ui->dxTLUp->node(i), m_checkColumn))
            return true;
    }
    return false;
}

void BillMakingPage::dxTLUpCheckToggleClick(const QString &newState)
{
    TdxTreeListNode row = m_ui->dxTLUp->focusedNode();
    if (!row)
        return;
    // A click unticks with the number 2 where "全部取消" writes the text; both count as unticked.
    row.setValue(m_checkColumn, newState == data::Checked ? QVariant(newState) : QVariant(2));
    CalcUpTotals();
}

void BillMakingPage::SetAllChecked(int position, bool checked)
{
    if (m_ui->dxTLUp->count() == 0)
        return;
    m_ui->dxTLUp->setValueOfAll(position, (checked ? data::Checked : data::Unchecked).toString());
    CalcUpTotals();
}

void BillMakingPage::edtOrgCodeKeyDown(int virtualKey)
{
    if (!opensCodeSearch(virtualKey, m_ui->edtOrgCode->text().isEmpty()))
        return;
    const Institution chosen = searchInstitution(m_workbench, virtualKey);
    m_ui->edtOrgCode->setText(chosen.code);
    m_ui->edtOrgName->setText(chosen.name);
    m_ui->edtOrgCode->setFocus();
}

bool BillMakingPage::headerIsComplete()
{
    const auto refuse = [this](const QString &message, QWidget *field) {
        m_workbench.host().FuncStorage.Alert(message);
        field->setFocus();
        return false;
    };
    if (!values::parseDate(m_ui->dxDEWirte->text()))
        return refuse(QStringLiteral("填表日期有误，请重新输入！"), m_ui->dxDEWirte);
    if (m_ui->edtPrincipal->text().trimmed().isEmpty())
        return refuse(QStringLiteral("责任签名不能为空，请重新输入！"), m_ui->edtPrincipal);
    if (m_ui->edtOrgCode->text().trimmed().isEmpty())
        return refuse(QStringLiteral("制单医疗机构不能为空，请重新输入！"), m_ui->edtOrgCode);
    return true;
}

bool BillMakingPage::keysAreRefused()
{
    const QString refusal = forms::refusalOfTicked(*m_ui->dxTLUp, m_checkColumn);
    if (!refusal.isEmpty())
        m_workbench.host().FuncStorage.Alert(refusal);
    return !refusal.isEmpty();
}

void BillMakingPage::btnSaveClick()
{
    if (m_ui->dxTLUp->count() == 0)
        return;
    const std::vector<data::RecordKey> records = forms::tickedRecords(*m_ui->dxTLUp, m_checkColumn);
    if (records.empty()) {
        m_workbench.host().FuncStorage.Alert(QStringLiteral("没有要制单的记录，请打勾选择！"));
        return;
    }
    if (!headerIsComplete() || keysAreRefused())
        return;

    const QString writeDate = m_ui->dxDEWirte->text();
    SavingBill saving(m_workbench, m_scratch, this);
    switch (saving.check(records, writeDate)) {
    case SavingBill::Check::Declined:
        return;
    case SavingBill::Check::DischargedLater:
        m_workbench.host().FuncStorage.Alert(QStringLiteral("制单信息内有出院日期大于填表日期！"));
        m_ui->dxDEWirte->setFocus();
        return;
    case SavingBill::Check::Passed:
        saving.write(
            {{m_ui->edtOrgCode->text(), QString()}, m_ui->edtOrgName->text(), writeDate, m_ui->edtPrincipal->text()});
    }
}

void BillMakingPage::btnBackClick()
{
    if (m_ui->dxTLUp->count() == 0)
        return;
    const std::vector<data::RecordKey> records = forms::tickedRecords(*m_ui->dxTLUp, m_checkColumn);
    if (records.empty())
        m_workbench.host().FuncStorage.Alert(QStringLiteral("没有要退单的记录，请打勾选择！"));
    else if (!keysAreRefused())
        returnRecords(m_workbench, records, this);
}
