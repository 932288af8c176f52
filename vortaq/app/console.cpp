// SPDX-License-Identifier: MIT
// Writes lines to the standard outputs.
#include "vortaq/app/console.h"

#include "vortaq/app/naming.h"

#include <cstdio>

namespace vortaq {

void writeLine(const QString &text)
{
    const std::string line = text.toStdString() + '\n';
    std::fputs(line.c_str(), stdout);
    std::fflush(stdout);
}

void writeError(const QString &message)
{
    const std::string line = programName().toStdString() + ": " + message.toStdString() + '\n';
    std::fputs(line.c_str(), stderr);
}

} // namespace vortaq
