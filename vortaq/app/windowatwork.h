// SPDX-License-Identifier: MIT
// The window that messages belong to.
#pragma once

class QWidget;

namespace vortaq {

/// The modal window on top, else the active window, else (the clerk has turned to another program) the first visible
/// window; null when no window is open.
[[nodiscard]] QWidget *windowAtWork();

} // namespace vortaq
