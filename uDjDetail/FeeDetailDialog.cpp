// SPDX-License-Identifier: MIT
#include "uDjDetail/FeeDetailDialog.h"

#include "forms/hostformats.h"
#include "forms/rowdrawing.h"
#include "host/clientdataset.h"
#include "host/loaddataset.h"
#include "host/references.h"
#include "toolkit/TreeListUpdate.h"
#include "toolkit/dialogsize.h"
#include "toolkit/guard.h"
#include "uDjDetail/columns.h"

#include <QHeaderView>
#include <QLayout>
#include <QRadioButton>
#include <QScrollBar>
#include <QSplitter>

#include <algorithm>

namespace {

/// Of one side of the splitter, so that no column of its grid has to be scrolled to.
int neededWidth(const TdxTreeList &grid)
{
    const QWidget &side = *grid.parentWidget();
    const QMargins beside = side.contentsMargins() + side.layout()->contentsMargins();
    return beside.left() + beside.right() + 2 * grid.frameWidth() + grid.header()->length()
        + grid.verticalScrollBar()->sizeHint().width();
}

} // namespace

namespace {

const QString Doing = QStringLiteral("筛选费用项目");

} // namespace

FeeDetailDialog::FeeDetailDialog(QWidget *parent)
    : QDialog(parent)
    , CDSFeeType(new TClientDataSet(this))
    , CDSFeeInfo(new TClientDataSet(this))
{
    CDSFeeType->setObjectName(QStringLiteral("CDSFeeType"));
    CDSFeeInfo->setObjectName(QStringLiteral("CDSFeeInfo"));
}

void FeeDetailDialog::takeGrids(QSplitter &splitter, TdxTreeList &feeTypes, TdxTreeList &feeItems)
{
    m_splitter = &splitter;
    m_splitter->setStretchFactor(1, 1);
    m_feeTypes = &feeTypes;
    m_feeItems = &feeItems;
    m_feeTypes->setColumns(feeTypeColumns());
    m_feeTypes->setCustomDrawCell(forms::billListDrawing());
    toolkit::connectGuarded(m_feeTypes, &TdxTreeList::changeNode, this, Doing, [this] {
        if (m_localChoice->isChecked())
            fillFeeItems();
    });
}

void FeeDetailDialog::takeChoice(QRadioButton &choice)
{
    toolkit::connectGuarded(&choice, &QRadioButton::toggled, this, Doing, [this](bool taken) {
        if (taken)
            fillFeeItems();
    });
}

void FeeDetailDialog::takeLocalChoice(QRadioButton &choice)
{
    m_localChoice = &choice;
    takeChoice(choice);
}

void FeeDetailDialog::ShowModal()
{
    FormShow();
    if (parentWidget() != nullptr)
        toolkit::fitToScreen(*this, parentWidget()->window()->size() * 9 / 10);
    divideRoom();
    exec();
}

void FeeDetailDialog::divideRoom()
{
    layout()->activate(); // it has its size, and nothing in it has
    const int room = m_splitter->width() - m_splitter->handleWidth();
    const int items = neededWidth(*m_feeItems);
    const int types = std::min(neededWidth(*m_feeTypes), std::max(room / 3, room - items));
    m_splitter->setSizes({types, room - types});
}

void FeeDetailDialog::FormShow()
{
    applyBackground(*m_feeTypes);
    applyBackground(*m_feeItems);
    host::loadDataSet(host::shared().DataCtl, feeTypeStatement(), *CDSFeeType);
    fillFeeTypes();
    host::loadDataSet(host::shared().DataCtl, feeItemStatement(), *CDSFeeInfo);
    fillFeeItems();
    loaded();
}

void FeeDetailDialog::fillFeeTypes()
{
    const TreeListUpdate update(*m_feeTypes);
    m_feeTypes->clearNodes();
    for (; !CDSFeeType->eof(); CDSFeeType->next()) {
        TdxTreeListNode row = m_feeTypes->addNode();
        row.setValue(0, CDSFeeType->text(QStringLiteral("FeeTypeName")));
        row.setValue(1, CDSFeeType->number(QStringLiteral("Fee")));
        row.setValue(FeeTypeCodePosition, CDSFeeType->text(QStringLiteral("FeeTypeCode")));
    }
}

void FeeDetailDialog::fillFeeItems()
{
    const TreeListUpdate update(*m_feeItems);
    m_feeItems->clearNodes();
    CDSFeeInfo->setFiltered(false);
    CDSFeeInfo->setFilter(itemFilter());
    CDSFeeInfo->setFiltered(true);
    for (; !CDSFeeInfo->eof(); CDSFeeInfo->next())
        m_feeItems->addRow(CDSFeeInfo->packet(), CDSFeeInfo->packetRow());
}

QString FeeDetailDialog::focusedFeeTypeCode() const
{
    const TdxTreeListNode row = m_feeTypes->focusedNode();
    return row ? row.text(FeeTypeCodePosition) : QString();
}
