// SPDX-License-Identifier: MIT
// Geometry and painting of a tree list: one view that paints its fixed band over the scrolled columns.
#include "toolkit/TdxTreeList.h"

#include "toolkit/treelist/listprivate.h"

#include <QAccessible>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

using namespace toolkit::treelist;

QRect TdxTreeList::visualRect(const QModelIndex &index) const
{
    QRect cell = QTreeView::visualRect(index);
    if (cell.isValid() && d->header->isInBand(index.column()))
        cell.translate(d->header->offset(), 0);
    return cell;
}

QModelIndex TdxTreeList::indexAt(const QPoint &point) const
{
    return QTreeView::indexAt({d->header->unscrolled(point.x()), point.y()});
}

void TdxTreeList::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    QScrollBar &bar = *horizontalScrollBar();
    const int before = bar.value();
    QTreeView::scrollTo(index, hint);
    if (!index.isValid())
        return;
    if (d->header->isInBand(index.column()) || d->header->isPlain()) {
        bar.setValue(before); // a cell of the band is never out of sight, nor is the one of a tree
        return;
    }
    const int hiddenByBand = d->header->bandWidth() - visualRect(index).left();
    if (hiddenByBand > 0)
        bar.setValue(bar.value() - hiddenByBand);
}

QModelIndex TdxTreeList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex current = currentIndex();
    const bool sideways = action == MoveLeft || action == MoveRight;
    if (!sideways || !current.isValid() || d->store.hasLevels())
        return QTreeView::moveCursor(action, modifiers);
    const int column = d->header->shownColumnBeside(current.column(), action == MoveLeft ? -1 : 1);
    return column < 0 ? current : current.siblingAtColumn(column);
}

void TdxTreeList::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    setAttribute(Qt::WA_InputMethodEnabled); // type-ahead takes Chinese text in cells without an editor, too
    for (const QModelIndex &index : {previous, current}) {
        if (index.isValid())
            viewport()->update(d->rowRect(index));
    }
    d->focusMoved(current);
}

void TdxTreeList::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles)
{
    // For a range Qt looks for the rectangle of each row in it, which takes longer than painting those in sight.
    const bool range = topLeft.row() != bottomRight.row();
    if (range && state() != EditingState && !QAccessible::isActive())
        viewport()->update();
    else
        QTreeView::dataChanged(topLeft, bottomRight, roles);
}

void TdxTreeList::updateGeometries()
{
    // QTreeView sets the margins for its header alone; each setting resizes the viewport, which comes back to here
    // until header and footer both have their place, and the scroll bars are reckoned for what is left.
    QTreeView::updateGeometries();
    const int footerHeight = d->footer->isHidden() ? 0 : d->footer->sizeHint().height();
    QMargins margins = viewportMargins();
    margins.setBottom(footerHeight);
    setViewportMargins(margins);
    const QRect view = viewport()->geometry();
    d->footer->setGeometry(view.left(), view.bottom() + 1, view.width(), footerHeight);
    d->fit.fillWidth();
}

void TdxTreeList::drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const Header &header = *d->header;
    const int band = header.bandWidth();
    const int right = viewport()->width();
    QStyleOptionViewItem cell(option);
    const auto paintColumn = [&](int column) {
        if (header.isSectionHidden(column))
            return;
        const QModelIndex at = index.siblingAtColumn(column);
        cell.rect = QRect(header.cellLeft(column), option.rect.top(), header.sectionSize(column), option.rect.height());
        if (column == 0 && d->store.hasLevels()) {
            const QRect text = visualRect(at);
            drawBranches(painter, QRect(cell.rect.topLeft(), QPoint(text.left() - 1, cell.rect.bottom())), at);
            cell.rect.setLeft(text.left());
        }
        itemDelegate()->paint(painter, cell, at);
    };

    for (int column = header.bandColumns(); column < header.count() && header.cellLeft(column) < right; ++column) {
        if (header.cellLeft(column) + header.sectionSize(column) > band)
            paintColumn(column);
    }
    // Over whatever of the others reaches below the band.
    for (int column = 0; column < header.bandColumns(); ++column)
        paintColumn(column);
}

void TdxTreeList::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    const int band = d->header->bandWidth();
    if (band == 0)
        return;
    QPainter painter(viewport());
    painter.fillRect(band - 1, 0, 1, viewport()->height(), palette().color(QPalette::Dark));
}
