// SPDX-License-Identifier: MIT
// The program as a process of its own, with a home directory that is thrown away.
#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <vector>

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
    /// Runs several at once, each to its end.
    [[nodiscard]] std::vector<Outcome> runTogether(int count, const QStringList &arguments);
    /// Runs until `enough` says so of the error output, then ends the program.
    [[nodiscard]] QString errorsUntil(const QStringList &arguments, const std::function<bool(const QString &)> &enough);

    void setEnvironment(const QString &name, const QString &value);
    void removeEnvironment(const QString &name);
    /// Runs in the new process before the program begins there.
    void prepareProcess(std::function<void()> preparation) { m_preparation = std::move(preparation); }
    /// A path in the throw-away home directory.
    [[nodiscard]] QString path(const QString &name) const;

private:
    void start(QProcess &process, const QStringList &arguments) const;

    QString m_executable;
    std::unique_ptr<QTemporaryDir> m_home;
    QProcessEnvironment m_environment;
    std::function<void()> m_preparation;
};

} // namespace vortaq::test
