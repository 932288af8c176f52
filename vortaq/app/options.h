// SPDX-License-Identifier: MIT
// The command line.
#pragma once

#include "vortaq/app/session.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace vortaq {

struct Options {
    enum class Task { Work, CreateDemo, Tour, ShowHelp, ShowVersion };

    Task task = Task::Work;
    QString database; ///< file; empty: the default database
    QString user; ///< empty: the first user
    std::vector<ParameterOverride> parameters;
    QString traceFile; ///< empty: no trace
    QString moduleFile; ///< empty: Module/Tarnwell.so beside the executable
    QString demoFile;
    std::optional<int> records;
    std::optional<int> archived;
    std::optional<quint64> seed;
    QString tourDirectory;
};

struct ParsedOptions {
    Options options;
    QString mistake; ///< empty when the command line makes sense
};

/// `arguments` begins with the program's name. Needs no application object.
[[nodiscard]] ParsedOptions parseOptions(const QStringList &arguments);

/// The text of --help. Needs an application object, with Qt's translations installed.
[[nodiscard]] QString helpText();

} // namespace vortaq
