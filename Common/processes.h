// SPDX-License-Identifier: MIT
// Running processes, found by the file names of their executables.
#pragma once

#include <QString>

namespace common {

/// Ends, at once, every process whose executable's file name equals `fileName` without regard to letter case, this
/// program last if it is among them. The whole name counts, however long; a part of it, a text with a folder in it and
/// an empty one equal no file name. A script is a process of its interpreter, whatever its own name. Processes that may
/// not be looked at or not be ended are skipped. Returns how many were ended.
int killProcesses(const QString &fileName);

} // namespace common
