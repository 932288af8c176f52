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

namespace {

QString withoutOuterSlashes(QStringView path)
{
    while (path.startsWith(u'/'))
        path = path.sliced(1);
    while (path.endsWith(u'/'))
        path.chop(1);
    return path.toString();
}

} // namespace

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
    const QString path = withoutOuterSlashes(platformPath(keyPath));
#ifdef Q_OS_WIN
    const QSettings key(registryLocation() + u'\\' + path, QSettings::NativeFormat);
    return key.value(valueName).toString();
#else
    return readIniFile(registryLocation(), path, valueName);
#endif
}

} // namespace common
