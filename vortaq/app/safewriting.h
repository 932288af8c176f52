// SPDX-License-Identifier: MIT
// A write that cannot be done is an error for whoever writes: it neither ends the program nor reaches the wrong file.
#pragma once

#include <QString>

namespace vortaq {

/// To be called before any file is opened. A pipe that nobody reads and a file that may not grow no longer end the
/// program, and a standard stream that is closed stays so, rather than become the database or the trace.
void makeWritingSafe();

/// Why a write failed, in Chinese; `error` is the errno of the write.
[[nodiscard]] QString writeFailure(int error);

} // namespace vortaq
