// SPDX-License-Identifier: MIT
// How the program ends, for scripts that start it.
#pragma once

#include <QString>

#include <stdexcept>

namespace vortaq {

enum class ExitCode {
    Success = 0,
    Usage = 2, ///< options that make no sense, or no display to open a window on
    Database = 3, ///< no database, none of ours, read-only or locked
    Module = 4, ///< the module is missing or lacks an entry point
    User = 5, ///< the user is unknown
    TraceFile = 6, ///< the trace cannot be written, or another file stands in its place
    Tour = 7, ///< a step of the tour went wrong
    Output = 8 ///< the standard output takes nothing
};

/// Why the program cannot start. `what()` is the message for the clerk.
class StartupError : public std::runtime_error {
public:
    StartupError(ExitCode exitCode, const QString &message)
        : std::runtime_error(message.toStdString())
        , m_exitCode(exitCode)
    {
    }
    [[nodiscard]] ExitCode exitCode() const noexcept { return m_exitCode; }

private:
    ExitCode m_exitCode;
};

} // namespace vortaq
