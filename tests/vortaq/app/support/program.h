// SPDX-License-Identifier: MIT
// The program as a process of its own, with a home directory that is thrown away.
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace vortaq::test {

struct Outcome {
    int exitCode = -1; ///< -1 when the program crashed or did not end
    QString output;
    QString errors; ///< lines of the program itself; what the window system mutters is left out
};

class Program {
public:
    /// The program where it was built.
    Program();
    /// A copy of the program and its module in a folder that the test may change.
    [[nodiscard]] static Program copied(const QString &folder);

    /// Runs to the end.
    [[nodiscard]] Outcome run(const QStringList &arguments);
    /// Runs until `enough` says so of the error output, then ends the program.
    [[nodiscard]] QString errorsUntil(const QStringList &arguments, const std::function<bool(const QString &)> &enough);

    void setEnvironment(const QString &name, const QString &value);
    void removeEnvironment(const QString &name);
    /// A path in the throw-away home directory.
    [[nodiscard]] QString path(const QString &name) const;

private:
    QString m_executable;
    std::unique_ptr<QTemporaryDir> m_home;
    QProcessEnvironment m_environment;
};

} // namespace vortaq::test
