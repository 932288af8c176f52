// SPDX-License-Identifier: MIT
// What the program calls itself, on the screen and in the file system.
#pragma once

#include <QString>

namespace vortaq {

/// Settings and the default database are kept under these names.
inline QString organisationFolder()
{
    return QStringLiteral("Tarnwell");
}
inline QString programName()
{
    return QStringLiteral("tarnwell-host");
}
/// The title of the window and of every message box.
inline QString programTitle()
{
    return QStringLiteral("农合医院业务平台");
}

} // namespace vortaq
