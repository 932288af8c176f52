// SPDX-License-Identifier: MIT
// Lines on the standard outputs, in UTF-8 whatever the locale says.
#pragma once

#include <QString>

namespace vortaq {

/// Throws StartupError when the standard output does not take the line.
void writeLine(const QString &text);
/// Begins with the program's name, as messages of commands do.
void writeError(const QString &message);

} // namespace vortaq
