// SPDX-License-Identifier: MIT
// The text of the host's message boxes.
#pragma once

#include <QString>

class QMessageBox;

namespace vortaq {

/// Gives a box its text, which is taken for no markup. A text that would push the buttons off the screen stands in a
/// field that scrolls. May be called again while the box is open.
void setBoxText(QMessageBox &box, const QString &text);

} // namespace vortaq
