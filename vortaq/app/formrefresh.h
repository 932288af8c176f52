// SPDX-License-Identifier: MIT
// A module's form shown anew, which makes it load itself from the beginning.
#pragma once

class QWidget;

namespace vortaq {

/// Asks the clerk first when the form says, with its property "unsavedInput", that it holds what a new showing would
/// throw away. Returns whether it may be thrown away.
[[nodiscard]] bool mayDiscardInput(const QWidget &form);

/// Hides and shows the form; the focus returns to where it was in it.
void showAnew(QWidget &form);

} // namespace vortaq
