// SPDX-License-Identifier: MIT
// Puts a host together.
#include "vortaq/app/runninghost.h"

#include "vortaq/app/databasefile.h"
#include "vortaq/app/exitcode.h"
#include "vortaq/app/screenmessages.h"

#include <QCoreApplication>
#include <QDir>

namespace vortaq {

namespace {

QString moduleFile(const Options &options)
{
    if (!options.moduleFile.isEmpty())
        return options.moduleFile;
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("Module/Tarnwell.so"));
}

std::shared_ptr<Session> openSession(const Options &options, const QString &databaseFile)
{
    const std::shared_ptr<Engine> engine = openDatabase(databaseFile);
    try {
        return signIn(engine, options.user, options.parameters);
    } catch (const SqlError &error) {
        throw StartupError(ExitCode::Database,
                           QStringLiteral("不能从数据库读取操作员和参数。\n%1\n%2")
                               .arg(QString::fromUtf8(error.what()), QDir::toNativeSeparators(databaseFile)));
    }
}

} // namespace

RunningHost::RunningHost(const Options &options, const QString &databaseFile, const QString &databaseName,
                         MainWindow::Geometry geometry)
    : m_session(openSession(options, databaseFile))
    , m_objects(m_session, std::make_shared<ScreenMessages>())
    , m_module(moduleFile(options))
    , m_window(m_session, m_module, databaseName, geometry)
{
    if (!options.traceFile.isEmpty())
        m_trace.emplace(options.traceFile);
}

} // namespace vortaq
