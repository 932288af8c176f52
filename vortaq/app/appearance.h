// SPDX-License-Identifier: MIT
// Fonts, colours, icon and language of the program.
#pragma once

class QApplication;
class QCoreApplication;

namespace vortaq {

/// Qt's own Chinese texts (buttons, dialogs, command-line messages) and the Chinese locale.
void useChinese(QCoreApplication &application);

/// One style on every desktop, Chinese fonts in a fixed order of preference, calm colours, the program's icon.
void dress(QApplication &application);

} // namespace vortaq
