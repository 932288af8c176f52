// SPDX-License-Identifier: MIT
// A walk through the main jobs that the program makes by itself.
#pragma once

#include "vortaq/app/exitcode.h"
#include "vortaq/app/options.h"

namespace vortaq {

/// Works on a scratch copy of the demo data and leaves numbered pictures in the directory that the options name, which
/// is made when absent. A step that fails is told on the standard error output and ends the tour with ExitCode::Tour.
/// Throws StartupError for what keeps the tour from starting.
[[nodiscard]] ExitCode runTour(const Options &options);

} // namespace vortaq
