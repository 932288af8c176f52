// SPDX-License-Identifier: MIT
// Hints that show data.
#pragma once

#include <QString>

class QPoint;
class QRect;
class QWidget;

namespace toolkit {

/// Data as the text of a hint: in lines of a width that an eye can follow, cut behind some twenty of them, and never
/// taken for rich text, whatever stands in it. Control characters show as blanks.
[[nodiscard]] QString dataTip(const QString &data);

/// Shows it at a place on the screen for as long as the mouse stays in `area` of the widget.
void showDataTip(const QPoint &place, const QString &data, QWidget *widget, const QRect &area);

} // namespace toolkit
