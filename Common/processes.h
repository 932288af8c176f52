// SPDX-License-Identifier: MIT
// Running processes, found by the file names of their executables.
#pragma once

#include <QString>

namespace common {

/// Ends, at once, every process whose executable's file name equals `fileName` without regard to letter case, this
/// program last if it is among them. A text with a folder in it, and an empty one, equal no file name. Processes that
/// may not be ended are skipped. Returns how many were ended.
int killProcesses(const QString &fileName);

} // namespace common
