// SPDX-License-Identifier: MIT
// Measures from the font and the style, so that they follow every display scale.
#include "toolkit/treelist/celllayout.h"

#include "toolkit/shownamount.h"

#include <QPainter>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace toolkit::treelist {

int rowHeight(const QWidget &widget)
{
    const int line = widget.fontMetrics().height();
    return std::max(line + line / 3, checkBoxSize(widget).height() + line / 4);
}

int textMargin(const QWidget &widget)
{
    return widget.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &widget) + 2;
}

QSize checkBoxSize(const QWidget &widget)
{
    return {widget.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &widget),
            widget.style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &widget)};
}

void drawCellText(QPainter &painter, const QRect &cell, const QString &text, Qt::Alignment alignment,
                  WhenTooWide whenTooWide, const QWidget &widget)
{
    const int margin = textMargin(widget);
    const QRect place = cell.adjusted(margin, 0, -margin, 0);
    const QString shown = whenTooWide == WhenTooWide::Crosses
        ? shownAmount(text, place.width(), painter.fontMetrics())
        : painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width());
    painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

} // namespace toolkit::treelist
