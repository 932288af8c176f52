// SPDX-License-Identifier: MIT
// Turns calls into JSON lines. The keys keep their order, which QJsonObject would not do.
#include "vortaq/app/tracefile.h"

#include "vortaq/app/exitcode.h"

#include "automation/datapacket.h"
#include "automation/errordisplay.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

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

QString cannotWrite(const QFile &file)
{
    return QStringLiteral("无法写入跟踪文件“%1”：%2")
        .arg(QDir::toNativeSeparators(file.fileName()), file.errorString());
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
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        throw StartupError(ExitCode::TraceFile, cannotWrite(m_file));
    automation::addCallObserver(this);
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
    if (m_file.write(line) == line.size())
        return;
    const QString reason = cannotWrite(m_file);
    m_file.close();
    automation::displayError(reason);
}

} // namespace vortaq
