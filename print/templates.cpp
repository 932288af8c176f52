// SPDX-License-Identifier: MIT
#include "print/templates.h"

#include "Common/executablefolder.h"
#include "Common/platformpath.h"

namespace print {

QString templatePath(const QString &windowsPath)
{
    return common::executableFolder() + common::platformPath(windowsPath);
}

} // namespace print
