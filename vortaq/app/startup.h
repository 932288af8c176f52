// SPDX-License-Identifier: MIT
// The program from its command line to its exit code.
#pragma once

namespace vortaq {

/// Exit codes are those of ExitCode.
[[nodiscard]] int runProgram(int &argc, char **argv);

} // namespace vortaq
