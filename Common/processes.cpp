// SPDX-License-Identifier: MIT
// Running processes, found by the file names of their executables.
#include "Common/processes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <unistd.h>

extern "C" { // glibc 2.36 forgot it in this header
#include <sys/pidfd.h>
}

namespace common {

namespace {

/// A process that keeps its identity while it is looked at: its number may be given to another one meanwhile.
class Process {
public:
    explicit Process(pid_t number)
        : m_number(number)
        , m_descriptor(pidfd_open(number, 0))
    {
    }

    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;

    ~Process()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    /// Empty for a process of the system itself and for one that may not be looked at.
    [[nodiscard]] QString executableName() const
    {
        const QString path = QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(m_number));
        QString name = path.sliced(path.lastIndexOf(u'/') + 1);
        const QString replaced = QStringLiteral(" (deleted)"); // how an executable that was replaced is shown
        if (name.endsWith(replaced) && !QFile::exists(path))
            name.chop(replaced.size());
        return name;
    }

    [[nodiscard]] bool end() const
    {
        return m_descriptor >= 0 && pidfd_send_signal(m_descriptor, SIGKILL, nullptr, 0) == 0;
    }

private:
    pid_t m_number;
    int m_descriptor;
};

} // namespace

int killProcesses(const QString &fileName)
{
    const QString wanted = fileName.toUpper();
    if (wanted.isEmpty())
        return 0;
    int ended = 0;
    bool itself = false;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &entry : entries) {
        bool isNumber = false;
        const pid_t number = entry.toInt(&isNumber);
        if (!isNumber)
            continue;
        const Process process(number);
        if (process.executableName().toUpper() != wanted)
            continue;
        if (number == ::getpid())
            itself = true;
        else if (process.end())
            ++ended;
    }
    if (itself)
        (void)::raise(SIGKILL);
    return ended;
}

} // namespace common
