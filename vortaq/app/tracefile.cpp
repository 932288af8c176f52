// SPDX-License-Identifier: MIT
// Turns calls into JSON lines. The keys keep their order, which QJsonObject would not do.
#include "vortaq/app/tracefile.h"

#include "vortaq/app/exitcode.h"
#include "vortaq/app/safewriting.h"

#include "automation/datapacket.h"
#include "automation/errordisplay.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>

namespace vortaq {

namespace {

QByteArray json(const QJsonValue &value)
{
    QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

QByteArray json(const QVariant &value)
{
    return json(QJsonValue::fromVariant(value));
}

QByteArray kindName(automation::Kind kind)
{
    switch (kind) {
    case automation::Kind::Method:
        return QByteArrayLiteral("method");
    case automation::Kind::Read:
        return QByteArrayLiteral("read");
    case automation::Kind::Write:
        return QByteArrayLiteral("write");
    }
    return {};
}

QString cannotWrite(const QFile &file, const QString &reason)
{
    return QStringLiteral("无法写入跟踪文件“%1”：%2").arg(QDir::toNativeSeparators(file.fileName()), reason);
}

/// Nothing is lost by writing to a pipe or a terminal.
bool keepsNothing(const QString &file)
{
    std::error_code ignored;
    const auto type = std::filesystem::status(file.toStdString(), ignored).type();
    return type == std::filesystem::file_type::fifo || type == std::filesystem::file_type::character;
}

/// Whether it is one of the files that a database keeps beside itself; they may well be empty.
bool belongsToDatabase(const QString &file)
{
    const QString real = QFileInfo(file).canonicalFilePath();
    const std::array suffixes{QStringLiteral("-wal"), QStringLiteral("-shm"), QStringLiteral("-journal")};
    return std::any_of(suffixes.begin(), suffixes.end(), [&real](const QString &suffix) {
        return real.endsWith(suffix) && QFileInfo::exists(real.chopped(suffix.size()));
    });
}

bool isTraceLine(const QByteArray &line)
{
    constexpr qsizetype LongestBeginning = 256;
    static const QRegularExpression beginning(
        QLatin1String(R"re(^\{"object":"[^"]*","operation":"[^"]*","kind":"(?:method|read|write)","args":\[)re"));
    return line.endsWith("}\n") && beginning.match(QString::fromUtf8(line.left(LongestBeginning))).hasMatch();
}

/// Whether there are no other lines in it than calls; the last one may be cut short.
bool isTraceOrEmpty(QFile &file)
{
    static const QByteArray start = QByteArrayLiteral("{\"object\":\"");
    bool isTrace = true;
    while (isTrace && !file.atEnd()) {
        const QByteArray line = file.readLine();
        const bool isCutShort = file.atEnd() && !line.endsWith('\n');
        isTrace = isCutShort ? line.startsWith(start) : isTraceLine(line);
    }
    return isTrace;
}

} // namespace

QByteArray traceLine(const automation::CallRecord &call)
{
    QByteArray line = "{\"object\":" + json(QJsonValue(call.object))
        + ",\"operation\":" + json(QJsonValue(call.operation)) + ",\"kind\":\"" + kindName(call.kind) + "\",\"args\":[";
    for (qsizetype i = 0; i < call.arguments.size(); ++i) {
        if (i > 0)
            line += ',';
        line += json(call.arguments[i]);
    }
    line += call.succeeded ? "],\"ok\":true" : "],\"ok\":false";
    if (call.result.metaType() == QMetaType::fromType<automation::DataPacketPtr>()) {
        const auto packet = call.result.value<automation::DataPacketPtr>();
        line += ",\"rows\":" + QByteArray::number(packet ? packet->rowCount() : 0);
    } else if (call.result.isValid()) {
        line += ",\"result\":" + json(call.result);
    }
    if (!call.succeeded)
        line += ",\"error\":" + json(QJsonValue(call.error));
    line += "}\n";
    return line;
}

TraceFile::TraceFile(const QString &file)
    : m_file(file)
{
    open();
    automation::addCallObserver(this);
}

void TraceFile::open()
{
    const auto refuse = [this](const QString &reason) {
        throw StartupError(ExitCode::TraceFile, cannotWrite(m_file, reason));
    };
    const bool isNew = !QFileInfo::exists(m_file.fileName());
    const bool isStream = keepsNothing(m_file.fileName());
    // Opened as it is; only what turned out to be a trace is cut.
    const QIODevice::OpenMode mode = isStream ? QIODevice::WriteOnly : QIODevice::ReadWrite;
    if (!m_file.open(mode | QIODevice::Append))
        refuse(m_file.errorString());
    if (isStream != m_file.isSequential())
        refuse(QStringLiteral("那里刚刚换成了别的文件。"));
    if (isStream)
        return;
    if (belongsToDatabase(m_file.fileName())) {
        if (isNew)
            m_file.remove();
        refuse(QStringLiteral("这个名称属于数据库。"));
    }
    m_file.seek(0);
    if (!isTraceOrEmpty(m_file))
        refuse(QStringLiteral("那里已经有一个文件，它不是跟踪文件，不会被替换。请另取一个名称。"));
    if (!m_file.resize(0))
        refuse(m_file.errorString());
}

TraceFile::~TraceFile()
{
    automation::removeCallObserver(this);
}

void TraceFile::called(const automation::CallRecord &call)
{
    if (!m_file.isOpen())
        return;
    const QByteArray line = traceLine(call);
    errno = 0;
    if (m_file.write(line) == line.size() && m_file.flush())
        return;
    const QString reason = errno != 0 ? writeFailure(errno) : m_file.errorString();
    m_file.close();
    automation::displayError(cannotWrite(m_file, reason));
}

} // namespace vortaq
