// SPDX-License-Identifier: MIT
#include "report/output/paint.h"

#include "report/layout/fonts.h"
#include "report/layout/page.h"

#include <QPainter>

namespace report {

void paintPage(QPainter &painter, const Page &page, const Fonts &fonts)
{
    for (const Fill &fill : page.fills) {
        const Rect &area = fill.area;
        painter.fillRect(QRectF(area.left, area.top, area.width, area.height), QColor::fromRgb(fill.colour));
    }
    QPen pen(Qt::black);
    pen.setCapStyle(Qt::SquareCap);
    for (const Stroke &stroke : page.strokes) {
        pen.setWidth(stroke.width);
        painter.setPen(pen);
        painter.drawLine(stroke.left, stroke.top, stroke.right, stroke.bottom);
    }
    painter.setPen(Qt::black);
    FontStyle current{-1, 0, false};
    for (const TextBox &text : page.texts) {
        if (text.lines.empty())
            continue;
        if (!(text.font == current)) {
            current = text.font;
            painter.setFont(fonts.font(current));
        }
        for (const TextLine &line : text.lines)
            painter.drawText(line.left, line.baseline, line.text);
    }
}

} // namespace report
