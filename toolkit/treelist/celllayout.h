// SPDX-License-Identifier: MIT
// Measures and text of one cell, the same in the rows, the footer and the first fit of the widths.
#pragma once

#include <QSize>
#include <QString>

class QPainter;
class QRect;
class QWidget;

namespace toolkit::treelist {

/// Height of a row (pixels): one line of the widget's font and its check box fit with some air.
[[nodiscard]] int rowHeight(const QWidget &widget);
/// Blank space (pixels) on each side of a cell's text.
[[nodiscard]] int textMargin(const QWidget &widget);
/// Size of a check box in the widget's style.
[[nodiscard]] QSize checkBoxSize(const QWidget &widget);
/// One line in the painter's pen, cut short with an ellipsis where it does not fit.
void drawCellText(QPainter &painter, const QRect &cell, const QString &text, Qt::Alignment alignment,
                  const QWidget &widget);

} // namespace toolkit::treelist
