// SPDX-License-Identifier: MIT
// What the desktop does with a double-clicked file, an address or a command.
#pragma once

#include <QString>

namespace common {

/// Opens a document or a folder with its program, an address with a scheme ("http://…") in the browser; starts an
/// executable file, or a program of that name on the search path, without arguments. Paths may be spelt as Windows
/// does. False when there is nothing to open or nobody to open it; nothing passes through a command interpreter.
[[nodiscard]] bool openByShell(const QString &text);

} // namespace common
