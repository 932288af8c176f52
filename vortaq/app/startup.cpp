// SPDX-License-Identifier: MIT
// Chooses the task, makes the application object it needs, and says why when it cannot go on.
#include "vortaq/app/startup.h"

#include "vortaq/app/appearance.h"
#include "vortaq/app/console.h"
#include "vortaq/app/databasefile.h"
#include "vortaq/app/exitcode.h"
#include "vortaq/app/hostapplication.h"
#include "vortaq/app/naming.h"
#include "vortaq/app/options.h"
#include "vortaq/app/runninghost.h"
#include "vortaq/app/safewriting.h"
#include "vortaq/app/tour/tour.h"
#include "vortaq/app/tour/tourscreen.h"
#include "vortaq/demo/demodata.h"

#include "automation/error.h"

#include <QCoreApplication>
#include <QDir>
#include <QMessageBox>

namespace vortaq {

namespace {

int number(ExitCode code)
{
    return static_cast<int>(code);
}

void nameProgram()
{
    QCoreApplication::setOrganizationName(organisationFolder());
    QCoreApplication::setApplicationName(programName());
    QCoreApplication::setApplicationVersion(QStringLiteral(TARNWELL_VERSION));
}

/// Qt would end the program with a core dump and an English line.
bool hasDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
    return true;
#endif
}

int refuse(ExitCode code, const QString &message)
{
    writeError(message);
    const bool somebodyLooks =
        qobject_cast<QApplication *>(QCoreApplication::instance()) && QGuiApplication::platformName() != u"offscreen";
    if (somebodyLooks)
        QMessageBox::critical(nullptr, programTitle(), message);
    return number(code);
}

/// Runs a task; what stops it becomes a message and an exit code.
template <typename Task> int carryOut(Task task)
{
    try {
        return task();
    } catch (const StartupError &error) {
        return refuse(error.exitCode(), automation::messageOf(error));
    } catch (const std::invalid_argument &error) {
        return refuse(ExitCode::Usage, automation::messageOf(error));
    } catch (const std::exception &error) {
        return refuse(ExitCode::Database, automation::messageOf(error));
    }
}

int tell(const QString &text)
{
    writeLine(text);
    return number(ExitCode::Success);
}

int makeDemo(const Options &options)
{
    DemoOptions demo;
    demo.records = options.records.value_or(demo.records);
    demo.archived = options.archived.value_or(demo.archived);
    demo.seed = options.seed.value_or(demo.seed);
    createDemo(options.demoFile, demo);
    return number(ExitCode::Success);
}

int work(const Options &options)
{
    const QString file = prepareDatabase(options.database);
    RunningHost host(options, file, QDir::toNativeSeparators(file), MainWindow::Geometry::Remembered);
    host.window().show();
    // From the event loop, so that an error of the form's start finds the window on the screen.
    QMetaObject::invokeMethod(&host.window(), &MainWindow::openFunction, Qt::QueuedConnection);
    return QCoreApplication::exec();
}

int runWithoutWindows(const Options &options, const QString &mistake, int &argc, char **argv)
{
    // A script that stands before the program tells here how it was called itself; the help shows that.
    QByteArray command = qgetenv("TARNWELL_COMMAND");
    if (!command.isEmpty())
        argv[0] = command.data();
    QCoreApplication application(argc, argv);
    useChinese(application);
    if (!mistake.isEmpty()) {
        writeError(mistake + QStringLiteral("使用 --help 查看全部选项。"));
        return number(ExitCode::Usage);
    }
    switch (options.task) {
    case Options::Task::ShowHelp:
        return carryOut([] { return tell(helpText()); });
    case Options::Task::ShowVersion:
        return carryOut([] { return tell(programName() + QLatin1Char(' ') + QCoreApplication::applicationVersion()); });
    case Options::Task::CreateDemo:
        return carryOut([&options] { return makeDemo(options); });
    case Options::Task::Work:
    case Options::Task::Tour:
        break;
    }
    writeError(QStringLiteral("没有可用的显示器，不能打开窗口。可以使用 --tour 在没有显示器时演示。"));
    return number(ExitCode::Usage);
}

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

/// The printed fee list compares dates as texts, in the environment's short format: only yyyy-mm-dd finds the days that
/// are meant, so that is what this program's dates look like, whatever language the desktop is set to.
void useIsoDates()
{
    const QByteArray all = qgetenv("LC_ALL");
    if (!all.isEmpty()) {
        qputenv("LANG", all);
        qunsetenv("LC_ALL");
    }
    qputenv("LC_TIME", "C");
}

} // namespace

int runProgram(int &argc, char **argv)
{
    makeWritingSafe();
    useIsoDates();
    nameProgram();
    const ParsedOptions parsed = parseOptions(argumentsOf(argc, argv));
    const Options &options = parsed.options;
    const bool isTour = options.task == Options::Task::Tour;
    const bool wantsWindows = parsed.mistake.isEmpty() && (isTour || options.task == Options::Task::Work);
    if (!wantsWindows || (!isTour && !hasDisplay()))
        return runWithoutWindows(options, parsed.mistake, argc, argv);

    const TourScreen screen(isTour);
    HostApplication application(argc, argv);
    useChinese(application);
    dress(application);
    return carryOut([&] { return isTour ? number(runTour(options)) : work(options); });
}

} // namespace vortaq
