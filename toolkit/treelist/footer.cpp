// SPDX-License-Identifier: MIT
// Painting of the footer.
#include "toolkit/treelist/footer.h"

#include "toolkit/TdxTreeListColumn.h"
#include "toolkit/datatip.h"
#include "toolkit/treelist/celllayout.h"
#include "toolkit/treelist/header.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>

namespace toolkit::treelist {

Footer::Footer(QWidget *parent, const Header &header, ColumnAt columnAt)
    : QWidget(parent)
    , m_header(header)
    , m_columnAt(std::move(columnAt))
{
}

void Footer::setText(int column, const QString &text)
{
    const auto at = static_cast<std::size_t>(column);
    if (at >= m_texts.size())
        m_texts.resize(at + 1);
    m_texts[at] = text;
    update();
}

QString Footer::text(int column) const
{
    const auto at = static_cast<std::size_t>(column);
    return at < m_texts.size() ? m_texts[at] : QString();
}

void Footer::clear()
{
    m_texts.clear();
    update();
}

QSize Footer::sizeHint() const
{
    return {0, rowHeight(*this)};
}

QRect Footer::cellRect(int column) const
{
    return {m_header.cellLeft(column), 0, m_header.sectionSize(column), height()};
}

void Footer::paintCell(QPainter &painter, int column) const
{
    const QRect cell = cellRect(column);
    painter.fillRect(cell.right(), 0, 1, cell.height(), palette().color(QPalette::Mid));
    const QString shown = text(column);
    if (shown.isEmpty())
        return;
    painter.setPen(palette().color(QPalette::ButtonText));
    const TdxTreeListColumn &about = m_columnAt(column);
    const bool amount = about.definition().kind == ColumnKind::Currency;
    drawCellText(painter, cell, shown, about.alignment(), amount ? WhenTooWide::Crosses : WhenTooWide::Cut, *this);
}

int Footer::columnSeenAt(int x) const
{
    for (int column = 0; column < m_header.count(); ++column) { // those of the band stand before the others
        const QRect cell = cellRect(column);
        if (!m_header.isSectionHidden(column) && x >= cell.left() && x <= cell.right())
            return column;
    }
    return -1;
}

bool Footer::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto &help = static_cast<const QHelpEvent &>(*event);
    const int column = columnSeenAt(help.pos().x());
    const QString shown = column < 0 ? QString() : text(column);
    if (fontMetrics().horizontalAdvance(shown) <= cellRect(column).width() - 2 * textMargin(*this))
        return QWidget::event(event);
    showDataTip(help.globalPos(), shown, this, cellRect(column));
    return true;
}

void Footer::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().button());
    const QRect band(0, 0, m_header.bandWidth(), height());
    painter.setClipRect(rect().adjusted(band.width(), 0, 0, 0));
    for (int column = m_header.bandColumns(); column < m_header.count(); ++column) {
        if (!m_header.isSectionHidden(column))
            paintCell(painter, column);
    }
    painter.setClipRect(band);
    for (int column = 0; column < m_header.bandColumns(); ++column) {
        if (!m_header.isSectionHidden(column))
            paintCell(painter, column);
    }
    painter.setClipping(false);
    painter.fillRect(0, 0, width(), 1, palette().color(QPalette::Mid));
    if (band.width() > 0)
        painter.fillRect(band.right(), 0, 1, height(), palette().color(QPalette::Dark));
}

} // namespace toolkit::treelist
