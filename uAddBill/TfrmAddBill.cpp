// SPDX-License-Identifier: MIT
#include "uAddBill/TfrmAddBill.h"

#include "data/captions.h"
#include "data/codes.h"
#include "data/statements/addbill.h"
#include "data/statements/candidates.h"
#include "data/statements/savingbill.h"
#include "forms/hostformats.h"
#include "forms/keycheck.h"
#include "forms/recordcolumns.h"
#include "forms/rowdrawing.h"
#include "host/change.h"
#include "host/clientdataset.h"
#include "host/loaddataset.h"
#include "host/references.h"
#include "host/rightsscope.h"
#include "toolkit/TreeListUpdate.h"
#include "toolkit/dialogsize.h"
#include "toolkit/guard.h"
#include "toolkit/readabletext.h"
#include "uAddBill/columns.h"
#include "ui_TfrmAddBill.h"

#include <QScreen>

#include <algorithm>

TfrmAddBill::TfrmAddBill(data::BillKey bill, QWidget *parent)
    : QDialog(parent,
              Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                  | Qt::WindowCloseButtonHint)
    , m_ui(std::make_unique<Ui::TfrmAddBill>())
    , m_bill(std::move(bill))
    , CDSAdd(new TClientDataSet(this))
{
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("frmAddBill"));
    CDSAdd->setObjectName(QStringLiteral("CDSAdd"));
    m_ui->dxTLUp->setColumns(addBillColumns());
    m_ui->dxTLUp->setFixedBand(AddBillFixedBand);
    m_ui->dxTLUp->setEditTriggers(QAbstractItemView::AllEditTriggers); // an editor opens wherever the focus comes
    m_ui->dxTLUp->setCustomDrawCell(forms::billListDrawing());
    m_ui->dxTLUp->columnByName(QStringLiteral("dxTLUpID"))->setCustomDrawCell(forms::rowNumberDrawing());
    m_checkColumn = forms::columnPosition(*m_ui->dxTLUp, "Check");
    toolkit::keepReadable(*m_ui->edtUpNum);

    using toolkit::connectGuarded;
    connectGuarded(m_ui->dxTLUp, &TdxTreeList::toggleClick, this, QStringLiteral("勾选记录"),
                   [this](TdxTreeListColumn *, const QString &newState) { dxTLUpCheckToggleClick(newState); });
    connectGuarded(m_ui->btnSave, &QPushButton::clicked, this, QStringLiteral("添加制单"), [this] { btnSaveClick(); });
    connectGuarded(m_ui->btnCancel, &QPushButton::clicked, this, QStringLiteral("关闭窗口"), [this] { close(); });
}

TfrmAddBill::~TfrmAddBill() = default;

void TfrmAddBill::ShowModal()
{
    FormShow();
    toolkit::fitToScreen(*this, parentWidget() != nullptr ? parentWidget()->window()->size() * 9 / 10 : sizeHint());
    setFixedSize(size()); // its border is not for dragging
    QSize frame(0, 0); // before it is shown: that of the window behind it
    if (parentWidget() != nullptr)
        frame = parentWidget()->window()->frameSize() - parentWidget()->window()->size();
    const QRect place = screen()->availableGeometry();
    const QPoint corner = place.center() - QRect(QPoint(0, 0), size() + frame).center();
    move(std::max(corner.x(), place.left()), std::max(corner.y(), place.top())); // its title stays in reach
    exec();
}

void TfrmAddBill::FormShow()
{
    m_ui->pnlAdd->setCaption(m_ui->LbAdd, data::reimbursementTitle());
    applyBackground(*m_ui->dxTLUp);
    ApplyMoneyFormat(*m_ui->dxTLUp);
    // The totals are money like the list above them; the host has just told its format.
    const auto *money = m_ui->dxTLUp->findChild<TdxTreeListCurrencyColumn *>(QStringLiteral("dxTLUpTotalFee"));
    for (TdxCurrencyEdit *edit : {m_ui->dxCEUpTotal, m_ui->dxCEUpCanFee, m_ui->dxCEUpFreeFee})
        edit->setDisplayFormat(money->displayFormat());
    LoadAddCandidates();
}

void TfrmAddBill::LoadAddCandidates()
{
    host::References &host = host::shared();
    host::loadDataSet(host.DataCtl, data::addBillCandidates(host::recordGrant(host.FuncStorage)), *CDSAdd);
    const TreeListUpdate update(*m_ui->dxTLUp);
    m_ui->dxTLUp->clearNodes();
    m_ui->dxTLUp->addRows(CDSAdd->packet());
}

void TfrmAddBill::CountAddTotals()
{
    if (m_ui->dxTLUp->count() == 0)
        return;
    const forms::TickedTotals totals = forms::sumTicked(*m_ui->dxTLUp, m_checkColumn);
    m_ui->edtUpNum->setText(QString::number(totals.count));
    m_ui->dxCEUpTotal->setValue(totals.totalFee);
    m_ui->dxCEUpCanFee->setValue(totals.canFreeFee);
    m_ui->dxCEUpFreeFee->setValue(totals.freeFee);
}

void TfrmAddBill::dxTLUpCheckToggleClick(const QString &newState)
{
    TdxTreeListNode row = m_ui->dxTLUp->focusedNode();
    if (!row)
        return;
    row.setValue(m_checkColumn, newState == data::Checked ? QVariant(newState) : QVariant(2));
    CountAddTotals();
}

void TfrmAddBill::btnSaveClick()
{
    if (m_ui->dxTLUp->count() == 0)
        return;
    host::References &host = host::shared();
    const std::vector<data::RecordKey> records = forms::tickedRecords(*m_ui->dxTLUp, m_checkColumn);
    if (records.empty()) {
        host.FuncStorage.Alert(QStringLiteral("没有要制单的记录，请打勾选择！"));
        return;
    }
    if (const QString refusal = forms::refusalOfTicked(*m_ui->dxTLUp, m_checkColumn); !refusal.isEmpty()) {
        host.FuncStorage.Alert(refusal);
        return;
    }
    host::runChange(host, QStringLiteral("添加制单失败！"), host::FailingBegin::IsAlerted, [&] {
        host.DataCtl.execSql(data::assignRecords(m_bill, data::anyOfRecords(records)));
        host.DataCtl.execSql(data::recomputeAfterAdding(m_bill));
        host.DataCtl.CommitTran();
        host.FuncStorage.ShowHint(QStringLiteral("添加制单成功！"));
        close();
    });
}
