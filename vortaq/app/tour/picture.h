// SPDX-License-Identifier: MIT
// A picture of the program as a clerk sees it.
#pragma once

#include <QPixmap>

class QWidget;

namespace vortaq {

/// The main window with every open dialog and menu over it, each dialog under a title bar.
[[nodiscard]] QPixmap pictureOf(QWidget &mainWindow);

} // namespace vortaq
