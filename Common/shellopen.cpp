// SPDX-License-Identifier: MIT
// What the desktop does with a double-clicked file, an address or a command.
#include "Common/shellopen.h"

#include "Common/blanks.h"
#include "Common/platformpath.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace common {

bool openByShell(const QString &text)
{
    const QString wanted = trimmed(text).toString();
    if (wanted.isEmpty())
        return false;
    const QFileInfo file(platformPath(wanted));
    if (file.exists()) {
        if (file.isFile() && file.isExecutable())
            return QProcess::startDetached(file.absoluteFilePath(), {});
        return QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
    }
    const QUrl address(wanted, QUrl::StrictMode);
    if (address.isValid() && address.scheme().size() > 1) // a scheme of one letter is a drive
        return QDesktopServices::openUrl(address);
    const QString program = QStandardPaths::findExecutable(wanted);
    return !program.isEmpty() && QProcess::startDetached(program, {});
}

} // namespace common
