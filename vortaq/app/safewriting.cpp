// SPDX-License-Identifier: MIT
// Signals and standard streams.
#include "vortaq/app/safewriting.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#endif

#include <cerrno>
#include <system_error>

namespace vortaq {

void makeWritingSafe()
{
#ifdef Q_OS_UNIX
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        const bool isClosed = ::fcntl(stream, F_GETFD) < 0 && errno == EBADF;
        // Takes the lowest free number, which is this one, for the direction that nobody uses.
        if (isClosed)
            static_cast<void>(::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
    }
#endif
}

QString writeFailure(int error)
{
    switch (error) {
    case EPIPE:
        return QStringLiteral("管道的另一端已经关闭。");
    case EBADF:
        return QStringLiteral("输出已经关闭。");
    case EFBIG:
        return QStringLiteral("文件达到了系统允许的大小。");
    case ENOSPC:
        return QStringLiteral("磁盘空间不足。");
#ifdef EDQUOT
    case EDQUOT:
        return QStringLiteral("磁盘配额已用完。");
#endif
    default:
        return QString::fromStdString(std::system_category().message(error));
    }
}

} // namespace vortaq
