// SPDX-License-Identifier: MIT
// Paths are written as Windows spells them; here they become this platform's.
#include "Common/platformpath.h"

namespace common {

QString platformPath(const QString &windowsPath)
{
    // Qt takes the slash on every platform.
    QString path = windowsPath;
    return path.replace(u'\\', u'/');
}

} // namespace common
