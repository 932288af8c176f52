// SPDX-License-Identifier: MIT
// Finds, makes and opens the database file.
#include "vortaq/app/databasefile.h"

#include "vortaq/app/exitcode.h"
#include "vortaq/demo/demodata.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace vortaq {

namespace {

StartupError cannotOpen(const QString &reason)
{
    return {ExitCode::Database, QStringLiteral("无法打开数据库。\n") + reason};
}

void makeDefaultDatabase(const QString &file)
{
    const QString folder = QFileInfo(file).absolutePath();
    if (!QDir().mkpath(folder))
        throw cannotOpen(QStringLiteral("不能建立目录“%1”。").arg(QDir::toNativeSeparators(folder)));
    createDemo(file);
}

} // namespace

QString defaultDatabaseFile()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
        .filePath(QStringLiteral("hospital.db"));
}

QString prepareDatabase(const QString &location)
{
    if (location.contains(QStringLiteral("://")))
        throw cannotOpen(QStringLiteral("只支持数据库文件，不支持数据库服务器地址：\n") + location);
    QString file = location.isEmpty() ? defaultDatabaseFile() : QFileInfo(location).absoluteFilePath();
    if (location.isEmpty() && !QFileInfo::exists(file))
        makeDefaultDatabase(file);
    return file;
}

std::shared_ptr<Engine> openDatabase(const QString &file)
{
    try {
        return openSqlite(file);
    } catch (const SqlError &error) {
        throw cannotOpen(QString::fromUtf8(error.what())); // which names the file
    }
}

} // namespace vortaq
