// SPDX-License-Identifier: MIT
// Lines on the standard outputs, in UTF-8 whatever the locale says.
#pragma once

#include <QString>

namespace vortaq {

void writeLine(const QString &text);
/// Begins with the program's name, as messages of commands do.
void writeError(const QString &message);

} // namespace vortaq
