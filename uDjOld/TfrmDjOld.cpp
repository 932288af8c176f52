// SPDX-License-Identifier: MIT
#include "uDjOld/TfrmDjOld.h"

#include "data/codes.h"
#include "data/statements/feedetail.h"
#include "forms/recordcolumns.h"
#include "forms/rowdrawing.h"
#include "host/parameters.h"
#include "host/references.h"
#include "toolkit/TdxTreeList.h"
#include "toolkit/guard.h"
#include "toolkit/singleinstance.h"
#include "uDjOld/columns.h"
#include "ui_TfrmDjOld.h"
#include "values/displayformat.h"

namespace {

std::unique_ptr<TfrmDjOld> frmDjOld;

bool isDeducted(const TdxTreeListNode &row, int position)
{
    const QString amount = row.text(position).trimmed();
    return !amount.isEmpty() && values::parseAmount(amount) > 0;
}

toolkit::CellDrawing itemDrawing(int deductionColumn, int approvedColumn)
{
    return [=, rows = forms::billListDrawing()](const TdxTreeListNode &node, const TdxTreeListColumn &column,
                                                bool focused, toolkit::CellStyle &style) {
        rows(node, column, focused, style);
        if (focused)
            return;
        const auto paint = [&style](const QString &parameter) {
            style.background = host::toColour(host::shared().FuncStorage.CustomParam(parameter));
        };
        if (isDeducted(node, deductionColumn))
            paint(host::parameter::DeductedItemColour);
        if (forms::isTicked(node, approvedColumn))
            paint(host::parameter::ApprovedItemColour);
    };
}

} // namespace

TfrmDjOld::TfrmDjOld(HistoryRecord record, QWidget *parent)
    : FeeDetailDialog(parent)
    , m_ui(std::make_unique<Ui::TfrmDjOld>())
    , m_record(std::move(record))
{
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("frmDjOld"));
    TdxTreeList &items = *m_ui->dxTLFeeInfo;
    items.setColumns(historyItemColumns());
    items.setCustomDrawCell(itemDrawing(forms::columnPosition(items, "TwoFee"), forms::columnPosition(items, "IsTp")));
    takeGrids(*m_ui->splitter, *m_ui->dxTLFeeType, items);
    takeChoice(*m_ui->rbAll);
    takeLocalChoice(*m_ui->rbLocal);
    takeChoice(*m_ui->rbPass);
    takeChoice(*m_ui->rbUPass);
    toolkit::connectGuarded(m_ui->btnExit, &QPushButton::clicked, this, QStringLiteral("退出"), [this] { close(); });
}

TfrmDjOld::~TfrmDjOld() = default;

QString TfrmDjOld::feeTypeStatement() const
{
    return data::historyFeeTypes(m_record.billType, m_record.key);
}

QString TfrmDjOld::feeItemStatement() const
{
    return data::historyFeeItems(m_record.billType, m_record.key);
}

QString TfrmDjOld::itemFilter() const
{
    if (m_ui->rbAll->isChecked())
        return {};
    if (m_ui->rbLocal->isChecked())
        return data::feeTypeFilter(focusedFeeTypeCode());
    return m_ui->rbPass->isChecked() ? data::compensableFilter() : data::notCompensableFilter();
}

void TfrmDjOld::loaded()
{
    const QString &status = m_record.billStatus;
    const bool notReviewed =
        status == data::StatusMade || status == data::StatusReported || status == data::StatusReturned;
    const bool reviewedOnce = status == data::StatusFirstReview;
    const auto column = [this](const char *name) { return m_ui->dxTLFeeInfo->columnByName(QString::fromUtf8(name)); };
    if (notReviewed)
        column("dxTLFeeInfoOneFee")->setVisible(false);
    if (notReviewed || reviewedOnce)
        column("dxTLFeeInfoTwoFee")->setVisible(false);
}

void showHistoryDetail(const HistoryRecord &record, QWidget *parent)
{
    toolkit::showSingleInstance(frmDjOld, record, parent);
}
