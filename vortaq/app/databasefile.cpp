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

/// Throws where the surroundings do not say whose data directory it would be.
void checkHome()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (qEnvironmentVariableIsEmpty("HOME") && qEnvironmentVariableIsEmpty("XDG_DATA_HOME"))
        throw cannotOpen(
            QStringLiteral("环境变量 HOME 没有设置，不知道用户数据目录在哪里。请用 --database 指定文件。"));
#endif
}

/// Also when several clerks start the program for the first time at once.
void makeDefaultDatabase(const QString &file)
{
    const QString folder = QFileInfo(file).absolutePath();
    if (!QDir().mkpath(folder)) {
        throw cannotOpen(QStringLiteral("不能建立目录“%1”。可以用 --database 指定别处的文件。")
                             .arg(QDir::toNativeSeparators(folder)));
    }
    createDemo(file, {}, Existing::Taken);
}

QString defaultDatabase()
{
    checkHome();
    QString file = defaultDatabaseFile();
    if (QFileInfo::exists(file))
        removeUnfinishedDemos(file);
    else
        makeDefaultDatabase(file);
    return file;
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
    return location.isEmpty() ? defaultDatabase() : QFileInfo(location).absoluteFilePath();
}

std::shared_ptr<Engine> openDatabase(const QString &file)
{
    // The engine would open a protected file, and a clerk would learn of it when he saves.
    const QFileInfo info(file);
    if (info.isFile() && !(info.isReadable() && info.isWritable()))
        throw cannotOpen(QStringLiteral("没有读写此文件的权限：\n") + file);
    try {
        return openSqlite(file);
    } catch (const SqlError &error) {
        throw cannotOpen(QString::fromUtf8(error.what())); // which names the file
    }
}

} // namespace vortaq
