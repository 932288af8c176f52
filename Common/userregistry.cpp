// SPDX-License-Identifier: MIT
// The current user's registry: Windows' own there, a file in the user's configuration folder elsewhere.
#include "Common/userregistry.h"

#include "Common/platformpath.h"

#ifdef Q_OS_WIN
#include <QSettings>
#else
#include "Common/inifile.h"

#include <QStandardPaths>
#endif

namespace common {

QString registryLocation()
{
#ifdef Q_OS_WIN
    return QStringLiteral("HKEY_CURRENT_USER");
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/tarnwell/registry.ini");
#endif
}

QString registryValue(const QString &keyPath, const QString &valueName)
{
#ifdef Q_OS_WIN
    const QSettings key(registryLocation() + u'\\' + keyPath, QSettings::NativeFormat);
    return key.value(valueName).toString();
#else
    return readIniFile(registryLocation(), platformPath(keyPath), valueName);
#endif
}

} // namespace common
