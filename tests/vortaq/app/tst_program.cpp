// SPDX-License-Identifier: MIT
// Tests of the program as a process: its tasks, and clear messages and exit codes for bad input.
#include "tests/vortaq/app/support/program.h"
#include "vortaq/app/exitcode.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <gtest/gtest.h>

namespace vortaq::test {

int code(ExitCode exitCode)
{
    return static_cast<int>(exitCode);
}

void write(const QString &file, const QByteArray &contents)
{
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    ASSERT_EQ(out.write(contents), contents.size());
}

QByteArray contents(const QString &file)
{
    QFile in(file);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << file.toStdString();
    return in.readAll();
}

class ProgramTest : public testing::Test {
protected:
    /// A small demo database.
    QString demo()
    {
        QString file = m_program.path(QStringLiteral("demo.db"));
        const Outcome outcome = m_program.run({QStringLiteral("--create-demo"), file, QStringLiteral("--records"),
                                               QStringLiteral("300"), QStringLiteral("--archived=20")});
        EXPECT_EQ(outcome.exitCode, 0) << outcome.errors.toStdString();
        return file;
    }

    Program m_program;
};

TEST_F(ProgramTest, HelpAndVersionNeedNoDisplay)
{
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        m_program.removeEnvironment(QString::fromLatin1(name));
    const Outcome help = m_program.run({QStringLiteral("--help")});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.output.contains(QStringLiteral("--create-demo <文件>")));
    const Outcome version = m_program.run({QStringLiteral("--version")});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_TRUE(version.output.startsWith(QStringLiteral("tarnwell-host ")));
}

TEST_F(ProgramTest, WithoutADisplayItSaysSo)
{
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        m_program.removeEnvironment(QString::fromLatin1(name));
    const Outcome outcome = m_program.run({});
    EXPECT_EQ(outcome.exitCode, code(ExitCode::Usage));
    EXPECT_EQ(outcome.errors, QStringLiteral("没有可用的显示器，不能打开窗口。可以使用 --tour 在没有显示器时演示。\n"));
}

TEST_F(ProgramTest, ABadOptionIsNamed)
{
    const Outcome outcome = m_program.run({QStringLiteral("--databse"), QStringLiteral("x")});
    EXPECT_EQ(outcome.exitCode, code(ExitCode::Usage));
    EXPECT_EQ(outcome.errors, QStringLiteral("没有选项“databse”。使用 --help 查看全部选项。\n"));
}

TEST_F(ProgramTest, ADemoIsMadeOnceAndNeverReplaced)
{
    const QString file = demo();
    const QByteArray before = contents(file);
    const Outcome again = m_program.run({QStringLiteral("--create-demo"), file});
    EXPECT_NE(again.exitCode, 0);
    EXPECT_FALSE(again.errors.isEmpty());
    EXPECT_EQ(contents(file), before);
}

struct BadStart {
    const char *name;
    QStringList arguments; ///< "%h" stands for the home directory
    ExitCode exitCode;
    const char *message; ///< the beginning
};

void PrintTo(const BadStart &start, std::ostream *out)
{
    *out << start.name;
}

class BadStartTest : public ProgramTest, public testing::WithParamInterface<BadStart> { };

TEST_P(BadStartTest, IsRefusedWithAMessage)
{
    demo();
    write(m_program.path(QStringLiteral("text.db")), "This is a letter, not a database. It is long enough to look at.");
    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(m_program.path(QStringLiteral("other.db")).toUtf8().constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "create table t(a)", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(other);

    const auto expanded = [this](QString text) { return text.replace(QStringLiteral("%h"), m_program.path({})); };
    QStringList arguments;
    for (const QString &argument : GetParam().arguments)
        arguments.append(expanded(argument));
    const Outcome outcome = m_program.run(arguments);
    EXPECT_EQ(outcome.exitCode, code(GetParam().exitCode));
    const QString message = expanded(QString::fromUtf8(GetParam().message));
    EXPECT_TRUE(outcome.errors.startsWith(message)) << outcome.errors.toStdString();
}

QStringList withDemo(const QStringList &more)
{
    return QStringList{QStringLiteral("--database"), QStringLiteral("%h/demo.db")} + more;
}

INSTANTIATE_TEST_SUITE_P(
    Inputs, BadStartTest,
    testing::Values(BadStart{"MissingDatabase",
                             {QStringLiteral("--database"), QStringLiteral("%h/no.db")},
                             ExitCode::Database,
                             "无法打开数据库。\n找不到数据库文件：\n%h/no.db\n"},
                    BadStart{"NotADatabase",
                             {QStringLiteral("--database"), QStringLiteral("%h/text.db")},
                             ExitCode::Database,
                             "无法打开数据库。\n文件不是数据库。\n%h/text.db\n"},
                    BadStart{"FolderAsDatabase",
                             {QStringLiteral("--database"), QStringLiteral("%h")},
                             ExitCode::Database,
                             "无法打开数据库。\n这是目录，不是数据库文件：\n%h\n"},
                    BadStart{"SomebodyElsesDatabase",
                             {QStringLiteral("--database"), QStringLiteral("%h/other.db")},
                             ExitCode::Database,
                             "不能从数据库读取操作员和参数。\n"},
                    BadStart{"ServerAddress",
                             {QStringLiteral("--database"), QStringLiteral("postgresql://server/db")},
                             ExitCode::Database,
                             "无法打开数据库。\n只支持数据库文件，不支持数据库服务器地址：\npostgresql://server/db\n"},
                    BadStart{"UnknownUser", withDemo({QStringLiteral("--user"), QStringLiteral("99")}), ExitCode::User,
                             "数据库中没有用户“99”。"},
                    BadStart{"MissingModule", withDemo({QStringLiteral("--module"), QStringLiteral("%h/No.so")}),
                             ExitCode::Module, "找不到模块“%h/No.so”。"},
                    BadStart{"TextAsModule", withDemo({QStringLiteral("--module"), QStringLiteral("%h/text.db")}),
                             ExitCode::Module, "无法装入模块“%h/text.db”："},
                    BadStart{"HalfAModule", withDemo({QStringLiteral("--module"), QStringLiteral(TEST_HALF_MODULE)}),
                             ExitCode::Module, "模块“"},
                    BadStart{"TraceIntoAFolder", withDemo({QStringLiteral("--trace"), QStringLiteral("%h")}),
                             ExitCode::TraceFile, "无法写入跟踪文件“%h”："},
                    BadStart{"TraceIntoNoFolder",
                             withDemo({QStringLiteral("--trace"), QStringLiteral("%h/no/t.jsonl")}),
                             ExitCode::TraceFile, "无法写入跟踪文件“%h/no/t.jsonl”："},
                    BadStart{"DemoIntoNoFolder",
                             {QStringLiteral("--create-demo"), QStringLiteral("%h/no/demo.db")},
                             ExitCode::Database,
                             "演示数据库没有生成：%h/no/demo.db\n"},
                    BadStart{"TourIntoAFile",
                             {QStringLiteral("--tour"), QStringLiteral("%h/text.db")},
                             ExitCode::Usage,
                             "不能建立目录“%h/text.db”。"}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(ProgramTest, TheDefaultDatabaseIsMadeWhenThereIsNone)
{
    // A module that is missing ends the program once the database stands.
    const QStringList arguments{QStringLiteral("--module"), m_program.path(QStringLiteral("No.so"))};
    EXPECT_EQ(m_program.run(arguments).exitCode, code(ExitCode::Module));
    const QString file = m_program.path(QStringLiteral("data/Tarnwell/tarnwell-host/hospital.db"));
    ASSERT_TRUE(QFileInfo::exists(file));
    const QDateTime made = QFileInfo(file).birthTime();
    EXPECT_EQ(m_program.run(arguments).exitCode, code(ExitCode::Module));
    EXPECT_EQ(QFileInfo(file).birthTime(), made);
}

TEST_F(ProgramTest, ATraceOfAnEarlierRunIsReplacedOnlyWhenTheProgramStarts)
{
    const QString trace = m_program.path(QStringLiteral("trace.jsonl"));
    const QByteArray old = R"({"object":"DataCtl","operation":"BeginTran","kind":"method","args":[],"ok":true})"
                           "\n";
    write(trace, old);
    EXPECT_EQ(m_program
                  .run({QStringLiteral("--database"), demo(), QStringLiteral("--user"), QStringLiteral("99"),
                        QStringLiteral("--trace"), trace})
                  .exitCode,
              code(ExitCode::User));
    EXPECT_EQ(contents(trace), old);
}

} // namespace vortaq::test
