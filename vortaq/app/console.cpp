// SPDX-License-Identifier: MIT
// Writes lines to the standard outputs.
#include "vortaq/app/console.h"

#include "vortaq/app/exitcode.h"
#include "vortaq/app/naming.h"
#include "vortaq/app/safewriting.h"

#include <cerrno>
#include <cstdio>

namespace vortaq {

void writeLine(const QString &text)
{
    const std::string line = text.toStdString() + '\n';
    if (std::fputs(line.c_str(), stdout) < 0 || std::fflush(stdout) != 0)
        throw StartupError(ExitCode::Output, QStringLiteral("无法写到标准输出：") + writeFailure(errno));
}

void writeError(const QString &message)
{
    const std::string line = programName().toStdString() + ": " + message.toStdString() + '\n';
    std::fputs(line.c_str(), stderr);
}

} // namespace vortaq
