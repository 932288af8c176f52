// SPDX-License-Identifier: MIT
// Starts the program and reads what it says.
#include "tests/vortaq/app/support/program.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <stdexcept>

namespace vortaq::test {

namespace {

constexpr int PatienceMilliseconds = 120000;

QString ownLines(const QByteArray &bytes)
{
    QString own;
    for (const QString &line : QString::fromUtf8(bytes).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (!line.startsWith(QStringLiteral("This plugin does not support")))
            own += line + QLatin1Char('\n');
    }
    return own.remove(QStringLiteral("tarnwell-host: "));
}

void copy(const QString &from, const QString &to)
{
    if (!QFile::copy(from, to))
        throw std::runtime_error("cannot copy " + from.toStdString());
}

} // namespace

Program::Program()
    : m_executable(QStringLiteral(TEST_PROGRAM))
    , m_home(std::make_unique<QTemporaryDir>())
    , m_environment(QProcessEnvironment::systemEnvironment())
{
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    m_environment.insert(QStringLiteral("HOME"), m_home->path());
    m_environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home->filePath(QStringLiteral("data")));
    m_environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_home->path());
    m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home->filePath(QStringLiteral("config")));
}

Program Program::copied(const QString &folder)
{
    Program program;
    const QFileInfo executable(program.m_executable);
    const QDir from = executable.dir();
    const QDir to(folder);
    if (!to.mkpath(QStringLiteral("Module")))
        throw std::runtime_error("cannot make a folder for the module");
    program.m_executable = to.filePath(executable.fileName());
    copy(executable.filePath(), program.m_executable);
    for (const QString &name : {QStringLiteral("libtarnwell-automation.so"), QStringLiteral("Module/Tarnwell.so")})
        copy(from.filePath(name), to.filePath(name));
    return program;
}

void Program::start(QProcess &process, const QStringList &arguments) const
{
    process.setProcessEnvironment(m_environment);
    process.setChildProcessModifier(m_preparation);
    process.start(m_executable, arguments);
}

Outcome Program::run(const QStringList &arguments)
{
    return runTogether(1, arguments).front();
}

std::vector<Outcome> Program::runTogether(int count, const QStringList &arguments)
{
    std::vector<QProcess> processes(static_cast<std::size_t>(count));
    for (QProcess &process : processes)
        start(process, arguments);
    std::vector<Outcome> outcomes;
    for (QProcess &process : processes) {
        const bool ended = (process.state() == QProcess::NotRunning || process.waitForFinished(PatienceMilliseconds))
            && process.exitStatus() == QProcess::NormalExit;
        outcomes.push_back({ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
                            ownLines(process.readAllStandardError())});
    }
    return outcomes;
}

QString Program::errorsUntil(const QStringList &arguments, const std::function<bool(const QString &)> &enough)
{
    QProcess process;
    process.setReadChannel(QProcess::StandardError);
    start(process, arguments);
    const QDeadlineTimer deadline(PatienceMilliseconds);
    QByteArray errors;
    while (!enough(ownLines(errors)) && !deadline.hasExpired() && process.waitForReadyRead(PatienceMilliseconds))
        errors += process.readAllStandardError();
    process.kill();
    process.waitForFinished();
    return ownLines(errors);
}

void Program::setEnvironment(const QString &name, const QString &value)
{
    m_environment.insert(name, value);
}

void Program::removeEnvironment(const QString &name)
{
    m_environment.remove(name);
}

QString Program::path(const QString &name) const
{
    return m_home->filePath(name);
}

} // namespace vortaq::test
