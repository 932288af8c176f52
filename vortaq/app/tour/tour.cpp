// SPDX-License-Identifier: MIT
// Sets the stage, walks the steps and tells what went wrong.
#include "vortaq/app/tour/tour.h"

#include "vortaq/app/console.h"
#include "vortaq/app/runninghost.h"
#include "vortaq/app/tour/steps.h"
#include "vortaq/demo/demodata.h"

#include "automation/error.h"

#include <QCoreApplication>
#include <QDir>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

namespace vortaq {

namespace {

constexpr QSize WindowSize(1400, 860);

void report(const QString &step, const QString &trouble)
{
    writeError(QStringLiteral("演示“%1”：%2").arg(step, trouble));
}

/// Whether the step went well.
bool walk(const TourStep &step, TourScene &scene)
{
    const QString name = QString::fromUtf8(step.name);
    const qsizetype troublesBefore = scene.guide.troubles().size();
    bool isFine = true;
    try {
        step.walk(scene);
        scene.guide.settle();
    } catch (const std::exception &error) {
        report(name, automation::messageOf(error));
        isFine = false;
    }
    for (const QString &trouble : scene.guide.troubles().mid(troublesBefore)) {
        report(name, trouble);
        isFine = false;
    }
    return isFine;
}

ExitCode walkAll(RunningHost &host, const QString &directory)
{
    Guide guide(host.window(), directory);
    TourScene scene{guide, host.session()};
    host.window().openFunction();
    for (const TourStep &step : tourSteps()) {
        if (!walk(step, scene))
            return ExitCode::Tour;
    }
    return ExitCode::Success;
}

} // namespace

ExitCode runTour(const Options &options)
{
    if (!QDir().mkpath(options.tourDirectory)) {
        throw StartupError(ExitCode::Usage,
                           QStringLiteral("不能建立目录“%1”。").arg(QDir::toNativeSeparators(options.tourDirectory)));
    }
    const QTemporaryDir scratch;
    const QString database = scratch.filePath(QStringLiteral("hospital.db"));
    createDemo(database);

    RunningHost host(options, database, QStringLiteral("演示数据"), MainWindow::Geometry::Fresh);
    const QSize room = host.window().screen()->availableSize();
    if (WindowSize.boundedTo(room) == WindowSize) // a smaller screen has its own size of the window
        host.window().resize(WindowSize);
    host.window().show();
    ExitCode code = ExitCode::Success;
    QTimer::singleShot(0, &host.window(), [&] {
        code = walkAll(host, options.tourDirectory);
        QCoreApplication::quit();
    });
    QCoreApplication::exec();
    if (code == ExitCode::Success) {
        writeLine(QStringLiteral("演示完成，画面在“%1”。")
                      .arg(QDir::toNativeSeparators(QDir(options.tourDirectory).absolutePath())));
    }
    return code;
}

} // namespace vortaq
