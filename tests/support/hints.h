// SPDX-License-Identifier: MIT
// Hints as a clerk meets them: the mouse rests on a place, and what is then shown.
#pragma once

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

#include <memory>
#include <string>

namespace hints {

/// Takes the hint off the screen at once; by itself it would fade.
inline void forget()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->inherits("QTipLabel"))
            std::unique_ptr<QWidget>(window).reset();
    }
}

/// What is shown now; empty without a hint.
inline std::string shown()
{
    return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
}

/// What is shown when the mouse rests there.
inline std::string over(QWidget &widget, const QPoint &place)
{
    forget();
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
    return shown();
}

} // namespace hints
