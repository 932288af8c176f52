// SPDX-License-Identifier: MIT
// Finds the window at work.
#include "vortaq/app/windowatwork.h"

#include <QApplication>
#include <QWidget>

namespace vortaq {

QWidget *windowAtWork()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget *active = QApplication::activeWindow())
        return active;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window)
            return window;
    }
    return nullptr;
}

} // namespace vortaq
