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
/// What a text becomes where it does not fit.
enum class WhenTooWide {
    Cut, ///< its beginning with an ellipsis
    Crosses ///< see shownAmount()
};

/// One line in the painter's pen.
void drawCellText(QPainter &painter, const QRect &cell, const QString &text, Qt::Alignment alignment,
                  WhenTooWide whenTooWide, const QWidget &widget);

} // namespace toolkit::treelist
