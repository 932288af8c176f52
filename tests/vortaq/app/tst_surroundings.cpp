// SPDX-License-Identifier: MIT
// Tests of the program where its surroundings are against it: outputs that take nothing, several first starts at once,
// other files in the place of the trace, no home.
#include "tests/vortaq/app/support/program.h"
#include "vortaq/app/exitcode.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <linux/capability.h>
#include <sqlite3.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <array>

namespace vortaq::test {

namespace {

int code(ExitCode exitCode)
{
    return static_cast<int>(exitCode);
}

QByteArray contents(const QString &file)
{
    QFile in(file);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << file.toStdString();
    return in.readAll();
}

void write(const QString &file, const QByteArray &text)
{
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    ASSERT_EQ(out.write(text), text.size());
}

/// How many stays the database holds; -1 when it cannot be read.
int stays(const QString &file)
{
    sqlite3 *database = nullptr;
    sqlite3_stmt *query = nullptr;
    int count = -1;
    if (sqlite3_open_v2(file.toUtf8().constData(), &database, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK
        && sqlite3_prepare_v2(database, "select count(*) from o_CbZyBxDj", -1, &query, nullptr) == SQLITE_OK
        && sqlite3_step(query) == SQLITE_ROW)
        count = sqlite3_column_int(query, 0);
    sqlite3_finalize(query);
    sqlite3_close(database);
    return count;
}

/// Makes the standard output a pipe that nobody reads.
void readNothing()
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        ::_exit(99);
    ::close(ends[0]);
    ::dup2(ends[1], STDOUT_FILENO);
}

void limitFiles()
{
    const rlimit small{100'000, 100'000};
    ::setrlimit(RLIMIT_FSIZE, &small);
}

} // namespace

class SurroundingsTest : public testing::Test {
protected:
    [[nodiscard]] QString defaultFile() const
    {
        return m_program.path(QStringLiteral("data/Tarnwell/tarnwell-host/hospital.db"));
    }
    [[nodiscard]] QStringList besideTheDefaultFile() const
    {
        return QFileInfo(defaultFile()).dir().entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    /// A start that ends once the database stands, for want of a module.
    [[nodiscard]] QStringList startWithoutModule() const
    {
        return {QStringLiteral("--module"), m_program.path(QStringLiteral("No.so"))};
    }
    [[nodiscard]] QString withoutModule() const
    {
        return QStringLiteral("找不到模块“%1”。\n").arg(m_program.path(QStringLiteral("No.so")));
    }

    Program m_program;
};

TEST_F(SurroundingsTest, APipeThatNobodyReadsIsAnError)
{
    m_program.prepareProcess(&readNothing);
    for (const char *option : {"--help", "--version"}) {
        const Outcome outcome = m_program.run({QString::fromLatin1(option)});
        EXPECT_EQ(outcome.exitCode, code(ExitCode::Output));
        EXPECT_EQ(outcome.errors, QStringLiteral("无法写到标准输出：管道的另一端已经关闭。\n"));
    }
}

TEST_F(SurroundingsTest, AClosedOutputIsAnErrorAndReachesNoFile)
{
    m_program.prepareProcess([] { ::close(STDOUT_FILENO); });
    const Outcome outcome = m_program.run({QStringLiteral("--help")});
    EXPECT_EQ(outcome.exitCode, code(ExitCode::Output));
    EXPECT_EQ(outcome.errors, QStringLiteral("无法写到标准输出：输出已经关闭。\n"));
}

TEST_F(SurroundingsTest, ALimitOnTheSizeOfFilesIsAnErrorAndLeavesNothing)
{
    m_program.prepareProcess(&limitFiles);
    const QString file = m_program.path(QStringLiteral("demo.db"));
    const Outcome outcome = m_program.run({QStringLiteral("--create-demo"), file});
    EXPECT_EQ(outcome.exitCode, code(ExitCode::Database));
    EXPECT_EQ(outcome.errors.toStdString(),
              "演示数据库没有生成：" + file.toStdString()
                  + "\n数据库文件不能再写入，数据没有保存。请检查磁盘、配额和文件大小的限制。\n");
    EXPECT_EQ(QDir(m_program.path({})).entryList({QStringLiteral("demo*")}), QStringList());
}

TEST_F(SurroundingsTest, FirstStartsAtOnceShareOneDatabase)
{
    for (const Outcome &outcome : m_program.runTogether(4, startWithoutModule())) {
        EXPECT_EQ(outcome.exitCode, code(ExitCode::Module));
        EXPECT_EQ(outcome.errors, withoutModule());
    }
    EXPECT_EQ(stays(defaultFile()), 600);
    EXPECT_EQ(besideTheDefaultFile(), QStringList(QStringLiteral("hospital.db")));
}

TEST_F(SurroundingsTest, WhatAKilledFirstStartLeftIsRemovedByTheNextOne)
{
    ASSERT_TRUE(QFileInfo(defaultFile()).dir().mkpath(QStringLiteral(".")));
    const QStringList other{QStringLiteral("hospital.db.part"), QStringLiteral("hospital.dbx.12.part"),
                            QStringLiteral("other.db.12.part")};
    for (const QString &name : other)
        write(QFileInfo(defaultFile()).dir().filePath(name), "somebody else's");
    for (const bool isThere : {false, true}) {
        EXPECT_EQ(QFileInfo::exists(defaultFile()), isThere);
        write(defaultFile() + QStringLiteral(".4711.part"), "half a database");
        EXPECT_EQ(m_program.run(startWithoutModule()).errors, withoutModule());
        EXPECT_EQ(besideTheDefaultFile(), QStringList(QStringLiteral("hospital.db")) + other);
    }
    EXPECT_EQ(stays(defaultFile()), 600);
}

TEST_F(SurroundingsTest, WithoutAHomeItAsksForAFile)
{
    m_program.removeEnvironment(QStringLiteral("HOME"));
    m_program.removeEnvironment(QStringLiteral("XDG_DATA_HOME"));
    const Outcome outcome = m_program.run({});
    EXPECT_EQ(outcome.exitCode, code(ExitCode::Database));
    EXPECT_EQ(outcome.errors,
              QStringLiteral("无法打开数据库。\n"
                             "环境变量 HOME 没有设置，不知道用户数据目录在哪里。请用 --database 指定文件。\n"));
}

TEST_F(SurroundingsTest, AHomeThatTakesNoFolderIsAnError)
{
    write(m_program.path(QStringLiteral("data")), "a file where the folder should be");
    const Outcome outcome = m_program.run({});
    EXPECT_EQ(outcome.exitCode, code(ExitCode::Database));
    EXPECT_EQ(outcome.errors,
              QStringLiteral("无法打开数据库。\n不能建立目录“%1”。可以用 --database 指定别处的文件。\n")
                  .arg(QFileInfo(defaultFile()).path()));
}

TEST_F(SurroundingsTest, AProtectedDatabaseIsToldAtTheStart)
{
    const QString file = m_program.path(QStringLiteral("demo.db"));
    ASSERT_EQ(m_program.run({QStringLiteral("--create-demo"), file}).exitCode, 0);
    // Permissions bind a clerk; here they are to bind the machine's master as well.
    m_program.prepareProcess([] { ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE); });
    for (const QFile::Permissions permissions : {QFile::Permissions(QFile::ReadOwner), QFile::Permissions()}) {
        ASSERT_TRUE(QFile::setPermissions(file, permissions));
        const Outcome outcome = m_program.run({QStringLiteral("--database"), file});
        EXPECT_EQ(outcome.exitCode, code(ExitCode::Database));
        EXPECT_EQ(outcome.errors, QStringLiteral("无法打开数据库。\n没有读写此文件的权限：\n%1\n").arg(file));
    }
    EXPECT_EQ(QDir(m_program.path({})).entryList({QStringLiteral("demo*")}), QStringList(QStringLiteral("demo.db")));
}

TEST_F(SurroundingsTest, ChineseNamesNeedNoChineseLocale)
{
    for (const char *locale : {"C", "POSIX", "zh_CN.GBK", "nonsense"}) {
        m_program.setEnvironment(QStringLiteral("LC_ALL"), QString::fromLatin1(locale));
        const QString file = m_program.path(QStringLiteral("医院-%1.db").arg(QLatin1String(locale)));
        const Outcome made = m_program.run({QStringLiteral("--create-demo"), file});
        EXPECT_EQ(made.exitCode, 0) << locale << made.errors.toStdString();
        EXPECT_TRUE(QFileInfo::exists(file)) << locale;
        EXPECT_TRUE(m_program.run({QStringLiteral("--help")}).output.contains(QStringLiteral("演示数据"))) << locale;
    }
}

TEST_F(SurroundingsTest, TheHelpCallsTheProgramAsItWasCalled)
{
    m_program.setEnvironment(QStringLiteral("TARNWELL_COMMAND"), QStringLiteral("./run"));
    const QString help = m_program.run({QStringLiteral("--help")}).output;
    EXPECT_EQ(help.section(QLatin1Char('\n'), 0, 0), QStringLiteral("用法：./run [选项]")) << help.toStdString();
    EXPECT_FALSE(help.contains(QStringLiteral("tarnwell-host"))) << help.toStdString();
    EXPECT_TRUE(m_program.run({QStringLiteral("--version")}).output.startsWith(QStringLiteral("tarnwell-host ")));
}

struct TracePlace {
    const char *name;
    const char *file; ///< in the home directory
    const char *reason;
};

void PrintTo(const TracePlace &place, std::ostream *out)
{
    *out << place.name;
}

class TracePlaceTest : public SurroundingsTest, public testing::WithParamInterface<TracePlace> { };

TEST_P(TracePlaceTest, IsRefusedAndStaysAsItIs)
{
    const QString database = m_program.path(QStringLiteral("demo.db"));
    ASSERT_EQ(m_program.run({QStringLiteral("--create-demo"), database}).exitCode, 0);
    ASSERT_EQ(stays(database), 600);
    const QByteArray letter = "{\"object\":\"a letter\"}\n";
    write(m_program.path(QStringLiteral("letter.txt")), letter);
    ASSERT_TRUE(QFile::link(database, m_program.path(QStringLiteral("symbolic"))));
    ASSERT_EQ(::link(database.toUtf8().constData(), m_program.path(QStringLiteral("hard")).toUtf8().constData()), 0);
    ASSERT_TRUE(QFile::link(database + QStringLiteral("-wal"), m_program.path(QStringLiteral("wal"))));
    const QString file = QDir::current().relativeFilePath(m_program.path(QString::fromLatin1(GetParam().file)));

    const Outcome outcome = m_program.run({QStringLiteral("--database"), database, QStringLiteral("--trace"), file});
    EXPECT_EQ(outcome.exitCode, code(ExitCode::TraceFile));
    EXPECT_EQ(outcome.errors,
              QStringLiteral("无法写入跟踪文件“%1”：%2\n").arg(file, QString::fromUtf8(GetParam().reason)));
    EXPECT_EQ(stays(database), 600);
    EXPECT_EQ(contents(m_program.path(QStringLiteral("letter.txt"))), letter);
    for (const char *beside : {"-wal", "-shm", "-journal"})
        EXPECT_FALSE(QFileInfo::exists(database + QString::fromLatin1(beside))) << beside;
}

constexpr const char *otherFile = "那里已经有一个文件，它不是跟踪文件，不会被替换。请另取一个名称。";
constexpr const char *databaseName = "这个名称属于数据库。";

INSTANTIATE_TEST_SUITE_P(Places, TracePlaceTest,
                         testing::Values(TracePlace{"Database", "demo.db", otherFile},
                                         TracePlace{"LinkToTheDatabase", "symbolic", otherFile},
                                         TracePlace{"HardLinkToTheDatabase", "hard", otherFile},
                                         TracePlace{"WriteAheadLog", "demo.db-wal", databaseName},
                                         TracePlace{"LinkToTheWriteAheadLog", "wal", databaseName},
                                         TracePlace{"SharedMemory", "demo.db-shm", databaseName},
                                         TracePlace{"Journal", "demo.db-journal", databaseName},
                                         TracePlace{"Text", "letter.txt", otherFile}),
                         [](const auto &row) { return std::string(row.param.name); });

} // namespace vortaq::test
