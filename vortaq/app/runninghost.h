// SPDX-License-Identifier: MIT
// Everything of a host at work: database, clerk, host objects, trace, module and window, in the order of their lives.
#pragma once

#include "vortaq/app/errorqueue.h"
#include "vortaq/app/hostobjects.h"
#include "vortaq/app/mainwindow.h"
#include "vortaq/app/modulelibrary.h"
#include "vortaq/app/options.h"
#include "vortaq/app/session.h"
#include "vortaq/app/tracefile.h"

#include <memory>
#include <optional>

namespace vortaq {

class RunningHost {
public:
    /// Opens the database file and whatever the options name; the window shows `databaseName`. Throws StartupError, or
    /// what the database throws.
    RunningHost(const Options &options, const QString &databaseFile, const QString &databaseName,
                MainWindow::Geometry geometry);

    [[nodiscard]] Session &session() { return *m_session; }
    [[nodiscard]] MainWindow &window() { return m_window; }

private:
    std::shared_ptr<Session> m_session;
    HostObjects m_objects;
    ModuleLibrary m_module;
    std::optional<TraceFile> m_trace;
    ErrorQueue m_errors;
    MainWindow m_window;
};

} // namespace vortaq
