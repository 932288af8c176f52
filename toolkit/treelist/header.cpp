// SPDX-License-Identifier: MIT
// Painting and mouse of the header's fixed band.
#include "toolkit/treelist/header.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace toolkit::treelist {

Header::Header(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setSectionsMovable(false);
    setHighlightSections(false);
    setStretchLastSection(false);
    setDefaultAlignment(Qt::AlignCenter);
    setTextElideMode(Qt::ElideRight);
    // The third click on a header goes back to the order in which the rows came.
    setSortIndicatorClearable(true);
    setSortIndicator(-1, Qt::AscendingOrder);
    // QHeaderView tells of a change of width, but not of whose; a pressed button means the user's.
    connect(this, &QHeaderView::sectionResized, this, [this](int column, int before, int now) {
        if (m_pressed && before != 0 && now != 0)
            emit resizedByUser(column);
    });
}

void Header::setBand(int columns)
{
    m_band = columns;
    viewport()->update();
}

int Header::bandColumns() const
{
    const int most = viewport()->width() * 3 / 4;
    int width = 0;
    for (int column = 0; column < std::min(m_band, count()); ++column) {
        width += sectionSize(column);
        if (width > most)
            return column;
    }
    return std::min(m_band, count());
}

int Header::bandWidth() const
{
    const int columns = bandColumns();
    return columns == 0 ? 0 : sectionPosition(columns - 1) + sectionSize(columns - 1);
}

int Header::cellLeft(int column) const
{
    return isInBand(column) ? sectionPosition(column) : sectionViewportPosition(column);
}

int Header::shownColumnBeside(int column, int step) const
{
    for (column += step; column >= 0 && column < count(); column += step) {
        if (!isSectionHidden(column))
            return column;
    }
    return -1;
}

QSize Header::sizeHint() const
{
    QSize size = QHeaderView::sizeHint();
    size.setHeight(std::max(size.height(), fontMetrics().height() * 3 / 2));
    return size;
}

void Header::paintEvent(QPaintEvent *event)
{
    QHeaderView::paintEvent(event);
    const QRect band(0, 0, bandWidth(), height());
    if (!band.intersects(event->rect()))
        return;
    QPainter painter(viewport());
    painter.setClipRect(band);
    painter.eraseRect(band);
    for (int column = 0; column < bandColumns(); ++column) {
        if (isSectionHidden(column))
            continue;
        painter.save();
        paintSection(&painter, QRect(sectionPosition(column), 0, sectionSize(column), height()), column);
        painter.restore();
    }
    painter.fillRect(band.right(), 0, 1, band.height(), palette().color(QPalette::Dark));
}

int Header::bandEdgeAt(int x) const
{
    const int grip = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    if (x > bandWidth() + grip)
        return -1;
    for (int column = bandColumns() - 1; column >= 0; --column) {
        const int edge = sectionPosition(column) + sectionSize(column);
        if (!isSectionHidden(column) && x >= edge - grip && x <= edge + grip)
            return column;
    }
    return -1;
}

QMouseEvent Header::mapped(const QMouseEvent &event) const
{
    QPointF position = event.position();
    if (m_pressed ? m_pressedInBand : position.x() < bandWidth())
        position.rx() -= offset();
    return {event.type(),    position,          event.globalPosition(), event.button(),
            event.buttons(), event.modifiers(), event.pointingDevice()};
}

void Header::mousePressEvent(QMouseEvent *event)
{
    const int x = event->position().toPoint().x();
    const int edge = bandEdgeAt(x);
    m_pressed = true;
    m_pressedInBand = x < bandWidth();
    if (edge >= 0 && event->button() == Qt::LeftButton) {
        // QHeaderView ignores a drag at negative positions, where the band stands once the rest is scrolled.
        m_resized = edge;
        m_grabOffset = sectionPosition(edge) + sectionSize(edge) - x;
        return;
    }
    QMouseEvent moved = mapped(*event);
    QHeaderView::mousePressEvent(&moved);
    viewport()->update();
}

void Header::mouseMoveEvent(QMouseEvent *event)
{
    const int x = event->position().toPoint().x();
    if (m_resized >= 0) {
        resizeSection(m_resized, std::max(minimumSectionSize(), x + m_grabOffset - sectionPosition(m_resized)));
        return;
    }
    if (event->buttons() == Qt::NoButton && bandEdgeAt(x) >= 0) {
        setCursor(Qt::SplitHCursor);
        return;
    }
    QMouseEvent moved = mapped(*event);
    QHeaderView::mouseMoveEvent(&moved);
    if (event->buttons() == Qt::NoButton && x < bandWidth())
        unsetCursor();
    viewport()->update();
}

void Header::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_resized >= 0) {
        m_resized = -1;
    } else {
        QMouseEvent moved = mapped(*event);
        QHeaderView::mouseReleaseEvent(&moved);
    }
    m_pressed = false;
    viewport()->update();
}

void Header::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int edge = bandEdgeAt(event->position().toPoint().x());
    if (edge >= 0) {
        emit sectionHandleDoubleClicked(edge);
        return;
    }
    QMouseEvent moved = mapped(*event);
    QHeaderView::mouseDoubleClickEvent(&moved);
}

} // namespace toolkit::treelist
