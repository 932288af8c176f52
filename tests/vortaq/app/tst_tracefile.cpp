// SPDX-License-Identifier: MIT
// Tests of the trace, byte for byte.
#include "tests/vortaq/app/support/hostfixture.h"
#include "vortaq/app/exitcode.h"
#include "vortaq/app/safewriting.h"
#include "vortaq/app/tracefile.h"

#include "automation/errordisplay.h"
#include "automation/latebound.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace vortaq::test {

using automation::CallRecord;
using automation::Kind;

struct TracedCall {
    const char *name;
    CallRecord call;
    const char *line;
};

void PrintTo(const TracedCall &call, std::ostream *out)
{
    *out << call.name;
}

class TraceLine : public testing::TestWithParam<TracedCall> { };

TEST_P(TraceLine, HasThisText)
{
    EXPECT_EQ(traceLine(GetParam().call).toStdString(), std::string(GetParam().line) + '\n');
}

CallRecord record(const char *object, const char *operation, Kind kind, const QVariantList &arguments,
                  const QVariant &result = {})
{
    return {QString::fromLatin1(object), QString::fromLatin1(operation), kind, arguments, result, {}, true};
}

CallRecord failed(CallRecord call, const QString &error)
{
    call.succeeded = false;
    call.error = error;
    return call;
}

QVariant threeRows()
{
    return QVariant::fromValue(packet({QStringLiteral("a")}, {{QString()}, {QString()}, {QString()}}));
}

INSTANTIATE_TEST_SUITE_P(
    Calls, TraceLine,
    testing::Values(
        TracedCall{"NoArguments", record("DataCtl", "BeginTran", Kind::Method, {}),
                   R"({"object":"DataCtl","operation":"BeginTran","kind":"method","args":[],"ok":true})"},
        TracedCall{
            "Packet", record("DataCtl", "OpenSql", Kind::Method, {QStringLiteral("select 'a\"b'")}, threeRows()),
            R"({"object":"DataCtl","operation":"OpenSql","kind":"method","args":["select 'a\"b'"],"ok":true,"rows":3})"},
        TracedCall{
            "Number", record("DataCtl", "execSql", Kind::Method, {QStringLiteral(" update t ")}, 2),
            R"({"object":"DataCtl","operation":"execSql","kind":"method","args":[" update t "],"ok":true,"result":2})"},
        TracedCall{
            "Read",
            record("FuncStorage", "CustomParam", Kind::Read, {QStringLiteral("Color-1")}, QStringLiteral("255")),
            R"({"object":"FuncStorage","operation":"CustomParam","kind":"read","args":["Color-1"],"ok":true,"result":"255"})"},
        TracedCall{"UnknownParameter", record("FuncStorage", "CustomParam", Kind::Read, {QStringLiteral("x")}),
                   R"({"object":"FuncStorage","operation":"CustomParam","kind":"read","args":["x"],"ok":true})"},
        TracedCall{
            "Chinese", record("FuncStorage", "ShowHint", Kind::Method, {QStringLiteral("制单成功！")}),
            R"({"object":"FuncStorage","operation":"ShowHint","kind":"method","args":["制单成功！"],"ok":true})"},
        TracedCall{"LineBreak", record("FuncStorage", "Alert", Kind::Method, {QStringLiteral("a\r\nb\\c")}),
                   R"({"object":"FuncStorage","operation":"Alert","kind":"method","args":["a\r\nb\\c"],"ok":true})"},
        TracedCall{"Write", record("CodeSearch", "Code", Kind::Write, {QString(QChar(u'\0'))}),
                   R"({"object":"CodeSearch","operation":"Code","kind":"write","args":["\u0000"],"ok":true})"},
        TracedCall{
            "Map", record("CodeSearch", "CodeType", Kind::Write, {QVariantMap{{QStringLiteral("byCode"), true}}}),
            R"({"object":"CodeSearch","operation":"CodeType","kind":"write","args":[{"byCode":true}],"ok":true})"},
        TracedCall{"SeveralArguments", record("CodeSearch", "SetPosition", Kind::Method, {0, -2, 18}),
                   R"({"object":"CodeSearch","operation":"SetPosition","kind":"method","args":[0,-2,18],"ok":true})"},
        TracedCall{
            "Failure",
            failed(record("DataCtl", "execSql", Kind::Method, {QStringLiteral("x")}), QStringLiteral("第1行")),
            R"({"object":"DataCtl","operation":"execSql","kind":"method","args":["x"],"ok":false,"error":"第1行"})"}),
    [](const auto &row) { return std::string(row.param.name); });

QByteArray contents(const QString &file)
{
    QFile trace(file);
    EXPECT_TRUE(trace.open(QIODevice::ReadOnly));
    return trace.readAll();
}

TEST(TraceFile, KeepsACallOnceItHasEndedAndInItsSpelling)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("trace.jsonl"));
    const HostFixture host;
    const automation::LateBound data(QStringLiteral("VortaqCore.DataCtl"));
    {
        const TraceFile trace(file);
        data.invoke(QStringLiteral("begintran"), Kind::Method);
        EXPECT_EQ(contents(file),
                  "{\"object\":\"DataCtl\",\"operation\":\"begintran\",\"kind\":\"method\",\"args\":[],\"ok\":true}\n");
        host.engine->failWith(QStringLiteral("不行"));
        EXPECT_THROW(data.invoke(QStringLiteral("CommitTran"), Kind::Method), SqlError);
        host.engine->failWith({});
    }
    data.invoke(QStringLiteral("RollbackTran"), Kind::Method);
    EXPECT_EQ(contents(file),
              "{\"object\":\"DataCtl\",\"operation\":\"begintran\",\"kind\":\"method\",\"args\":[],\"ok\":true}\n"
              "{\"object\":\"DataCtl\",\"operation\":\"CommitTran\",\"kind\":\"method\",\"args\":[],\"ok\":false,"
              "\"error\":\"不行\"}\n");
}

void write(const QString &file, const QByteArray &text)
{
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    ASSERT_EQ(out.write(text), text.size());
}

/// Why a file is not taken as a trace; empty when it is.
std::string refusal(const QString &file)
{
    try {
        const TraceFile trace(file);
        return {};
    } catch (const StartupError &error) {
        EXPECT_EQ(error.exitCode(), ExitCode::TraceFile);
        return error.what();
    }
}

const QByteArray earlierLine = R"({"object":"DataCtl","operation":"BeginTran","kind":"method","args":[],"ok":true})"
                               "\n";

TEST(TraceFile, AnEarlierTraceIsReplacedEvenWhenItIsEmptyOrCutShort)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("trace.jsonl"));
    const QByteArray query =
        traceLine(record("DataCtl", "OpenSql", Kind::Method, {QString(100'000, QLatin1Char('x'))}, threeRows()));
    for (const QByteArray &earlier : {QByteArray(), earlierLine, earlierLine + query, earlierLine + query.left(5000),
                                      earlierLine + R"({"object":"Fun)", QByteArray(R"({"object":"D)")}) {
        write(file, earlier);
        EXPECT_EQ(refusal(file), std::string());
        EXPECT_EQ(contents(file), QByteArray());
    }
}

TEST(TraceFile, WhatIsNotWhollyATraceStays)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("other"));
    for (const QByteArray &other :
         {QByteArray("x"), QByteArray("\n"), QByteArray(1, '\0'), QByteArray(R"({"obj)"), earlierLine + "a note\n",
          earlierLine + "a note", "a note\n" + earlierLine, earlierLine + "\n",
          QByteArray(R"({"object":"invoice","operation":"pay","amount":1})"
                     "\n"),
          QByteArray("SQLite format 3\0", 16)}) {
        write(file, other);
        EXPECT_NE(refusal(file).find("不是跟踪文件"), std::string::npos) << other.toStdString();
        EXPECT_EQ(contents(file), other);
    }
}

TEST(TraceFile, ANameLikeThatOfALogIsFreeWhereThereIsNoDatabase)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("call-journal"));
    EXPECT_EQ(refusal(file), std::string());
    write(folder.filePath(QStringLiteral("call")), "a database");
    EXPECT_NE(refusal(file).find("属于数据库"), std::string::npos);
    EXPECT_TRUE(QFile::exists(file)) << "it was there before";
}

TEST(TraceFile, WhatTakesItsNameLaterIsNotWrittenTo)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("trace.jsonl"));
    const QString moved = folder.filePath(QStringLiteral("moved.jsonl"));
    const HostFixture host;
    const automation::LateBound data(QStringLiteral("VortaqCore.DataCtl"));
    const TraceFile trace(file);
    ASSERT_TRUE(QFile::rename(file, moved));
    write(file, "a letter");
    data.invoke(QStringLiteral("BeginTran"), Kind::Method);
    EXPECT_EQ(contents(file), "a letter");
    EXPECT_EQ(contents(moved), earlierLine);
}

/// The error display during two calls.
QStringList errorsOfTwoCalls()
{
    QStringList errors;
    automation::setErrorDisplay([&errors](const QString &message) { errors.append(message); });
    const HostFixture host;
    const automation::LateBound data(QStringLiteral("VortaqCore.DataCtl"));
    data.invoke(QStringLiteral("BeginTran"), Kind::Method);
    data.invoke(QStringLiteral("CommitTran"), Kind::Method);
    automation::setErrorDisplay({});
    return errors;
}

TEST(TraceFile, AFullDiskIsReportedOnceAndEndsTheTrace)
{
    const TraceFile trace(QStringLiteral("/dev/full"));
    EXPECT_EQ(errorsOfTwoCalls(), QStringList(QStringLiteral("无法写入跟踪文件“/dev/full”：磁盘空间不足。")));
}

TEST(TraceFile, APipeIsWrittenToUntilNobodyReads)
{
    makeWritingSafe();
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(file.toUtf8().constData(), 0600), 0);
    const int reader = ::open(file.toUtf8().constData(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    const TraceFile trace(file);
    EXPECT_EQ(errorsOfTwoCalls(), QStringList());
    QByteArray read(1000, '\0');
    read.truncate(::read(reader, read.data(), static_cast<std::size_t>(read.size())));
    EXPECT_TRUE(read.startsWith(earlierLine)) << read.toStdString();
    ::close(reader);
    EXPECT_EQ(errorsOfTwoCalls(),
              QStringList(QStringLiteral("无法写入跟踪文件“%1”：管道的另一端已经关闭。").arg(file)));
}

TEST(TraceFile, AFolderIsNoTraceFile)
{
    const QTemporaryDir folder;
    try {
        const TraceFile trace(folder.path());
        FAIL() << "a folder was taken";
    } catch (const StartupError &error) {
        EXPECT_EQ(error.exitCode(), ExitCode::TraceFile);
        EXPECT_NE(std::string(error.what()).find("无法写入跟踪文件"), std::string::npos);
    }
}

} // namespace vortaq::test
