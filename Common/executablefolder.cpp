// SPDX-License-Identifier: MIT
// Where the host's executable stands, behind a seam.
#include "Common/executablefolder.h"

#include <QCoreApplication>

namespace common {

namespace {

QString &replacement()
{
    static QString folder;
    return folder;
}

} // namespace

QString executableFolder()
{
    const QString folder = replacement().isEmpty() ? QCoreApplication::applicationDirPath() : replacement();
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

void setExecutableFolder(const QString &folder)
{
    replacement() = folder;
}

} // namespace common
