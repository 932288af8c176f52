// SPDX-License-Identifier: MIT
// Columns as components of their list.
#include "toolkit/TdxTreeListColumn.h"

#include "toolkit/TdxTreeList.h"
#include "toolkit/treelist/listprivate.h"

TdxTreeListColumn::TdxTreeListColumn(const toolkit::ColumnDefinition &definition, int position, TdxTreeList *list)
    : QObject(list)
    , m_definition(definition)
    , m_position(position)
    , m_list(list)
{
    setObjectName(QString::fromUtf8(definition.name));
}

QString TdxTreeListColumn::caption() const
{
    return QString::fromUtf8(m_definition.caption);
}

QString TdxTreeListColumn::field() const
{
    return QString::fromUtf8(m_definition.field);
}

Qt::Alignment TdxTreeListColumn::alignment() const noexcept
{
    switch (m_definition.kind) {
    case toolkit::ColumnKind::Currency:
        return Qt::AlignRight;
    case toolkit::ColumnKind::Check:
        return Qt::AlignHCenter;
    case toolkit::ColumnKind::Text:
        break;
    }
    return m_definition.alignment;
}

bool TdxTreeListColumn::isVisible() const noexcept
{
    return !m_list->isColumnHidden(m_position);
}

void TdxTreeListColumn::setVisible(bool visible)
{
    m_list->setColumnHidden(m_position, !visible);
    if (visible)
        m_list->d->columnLookChanged(m_position); // hidden columns are not measured
}

void TdxTreeListColumn::setCustomDrawCell(toolkit::CellDrawing drawing)
{
    m_drawing = std::move(drawing);
    m_list->d->columnLookChanged(m_position);
}

TdxTreeListCurrencyColumn::TdxTreeListCurrencyColumn(const toolkit::ColumnDefinition &definition, int position,
                                                     TdxTreeList *list)
    : TdxTreeListColumn(definition, position, list)
    , m_displayFormat(QString::fromUtf8(definition.displayFormat))
{
}

void TdxTreeListCurrencyColumn::setDisplayFormat(const QString &format)
{
    if (m_displayFormat == format)
        return;
    m_displayFormat = format;
    list()->d->columnLookChanged(position());
}

QString TdxTreeListCheckColumn::valueChecked() const
{
    return QString::fromUtf8(definition().checked);
}

QString TdxTreeListCheckColumn::valueUnchecked() const
{
    return QString::fromUtf8(definition().unchecked);
}
