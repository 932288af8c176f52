// SPDX-License-Identifier: MIT
#include "uDjDetail/TfrmDjDetail.h"

#include "data/statements/feedetail.h"
#include "forms/recordcolumns.h"
#include "forms/rowdrawing.h"
#include "host/parameters.h"
#include "host/references.h"
#include "toolkit/TdxTreeList.h"
#include "toolkit/singleinstance.h"
#include "uDjDetail/columns.h"
#include "ui_TfrmDjDetail.h"

namespace {

std::unique_ptr<TfrmDjDetail> frmDjDetail;

toolkit::CellDrawing itemDrawing(int approvedColumn)
{
    return [approvedColumn, rows = forms::billListDrawing()](
               const TdxTreeListNode &node, const TdxTreeListColumn &column, bool focused, toolkit::CellStyle &style) {
        rows(node, column, focused, style);
        // No row fills that column in this dialog, so its colour never shows.
        if (!focused && forms::isTicked(node, approvedColumn))
            style.background =
                host::toColour(host::shared().FuncStorage.CustomParam(host::parameter::ApprovedItemColour));
    };
}

} // namespace

TfrmDjDetail::TfrmDjDetail(data::RecordKey record, QWidget *parent)
    : FeeDetailDialog(parent)
    , m_ui(std::make_unique<Ui::TfrmDjDetail>())
    , m_record(std::move(record))
{
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("frmDjDetail"));
    m_ui->dxTLFeeInfo->setColumns(feeItemColumns());
    m_ui->dxTLFeeInfo->setCustomDrawCell(itemDrawing(forms::columnPosition(*m_ui->dxTLFeeInfo, "IsTp")));
    takeGrids(*m_ui->splitter, *m_ui->dxTLFeeType, *m_ui->dxTLFeeInfo);
    takeChoice(*m_ui->rbAll);
    takeLocalChoice(*m_ui->rbLocal);
}

TfrmDjDetail::~TfrmDjDetail() = default;

QString TfrmDjDetail::feeTypeStatement() const
{
    return data::feeTypes(m_record);
}

QString TfrmDjDetail::feeItemStatement() const
{
    return data::feeItems(m_record);
}

QString TfrmDjDetail::itemFilter() const
{
    return m_ui->rbAll->isChecked() ? QString() : data::feeTypeFilter(focusedFeeTypeCode());
}

void showFeeDetail(const data::RecordKey &record, QWidget *parent)
{
    toolkit::showSingleInstance(frmDjDetail, record, parent);
}

void showFeeDetail(const TdxTreeList &grid)
{
    const TdxTreeListNode row = grid.focusedNode();
    if (row)
        showFeeDetail(forms::RecordColumns(grid).key(row), grid.window());
}
