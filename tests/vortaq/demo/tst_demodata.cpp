// SPDX-License-Identifier: MIT
// The file itself: complete or absent, and the same for the same options.
#include "tests/vortaq/demo/demodatabase.h"

#include "vortaq/SqlError.h"
#include "vortaq/schema/schema.h"

#include <QDir>
#include <QFile>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

namespace vortaq::demo {
namespace {

QStringList entries(const QTemporaryDir &folder)
{
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

TEST(DemoFile, IsMarkedCompleteAndAlone)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("县医院.db"));
    createDemo(file, optionsOf(50, 20));
    EXPECT_EQ(entries(folder), QStringList{QStringLiteral("县医院.db")});
    const TestDatabase database(file);
    EXPECT_EQ(database.value("pragma application_id"), std::to_string(databaseApplicationId));
    EXPECT_EQ(database.value("pragma user_version"), std::to_string(databaseSchemaVersion));
    EXPECT_EQ(database.value("pragma integrity_check"), "ok");
    EXPECT_EQ(database.rows("select name from sqlite_master where type='index' and sql is not null").size(),
              schemaIndexStatements().size());
}

TEST(DemoFile, HoldsAsManyStaysAsAskedFor)
{
    for (const auto &[records, archived] :
         std::to_array<std::pair<int, int>>({{0, 0}, {1, 0}, {0, 1}, {3, 2}, {123, 45}, {2'000, 3'001}})) {
        const Demo demo(optionsOf(records, archived));
        EXPECT_EQ(demo->value("select count(*) from o_CbZyBxDj"), std::to_string(records));
        EXPECT_EQ(demo->value("select count(*) from s_CbZyBxDj"), std::to_string(archived));
    }
}

TEST(DemoFile, IsTheSameForTheSameOptions)
{
    const std::string dump = Demo(optionsOf(300, 200, 5))->dump();
    EXPECT_EQ(Demo(optionsOf(300, 200, 5))->dump(), dump);
    EXPECT_NE(Demo(optionsOf(300, 200, 6))->dump(), dump);
    EXPECT_NE(Demo(optionsOf(300, 201, 5))->dump(), dump);
}

TEST(DemoFile, HasTheFeeLinesAskedFor)
{
    const Demo one(optionsOf(200, 0, 1, 1));
    EXPECT_EQ(one->value("select count(*) from o_CbZyBxDjZb"), "200");
    const Demo many(optionsOf(200, 0, 1, 20));
    EXPECT_NEAR(std::stod(many->value("select avg(n) from (select count(*) n from o_CbZyBxDjZb"
                                      " group by OrgCode,CoopMedCode,IDNo,DiagNo)")),
                20.0, 2.5);
}

TEST(DemoFile, NeverReplacesAFile)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("real.db"));
    QFile existing(file);
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    existing.write("the hospital's own");
    existing.close();
    EXPECT_THROW(createDemo(file, optionsOf(1, 0)), SqlError);
    ASSERT_TRUE(existing.open(QIODevice::ReadOnly));
    EXPECT_EQ(existing.readAll(), "the hospital's own");
    EXPECT_EQ(entries(folder), QStringList{QStringLiteral("real.db")});
}

TEST(DemoFile, SaysWhatFailedWhereTheFolderIsMissing)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("missing/demo.db"));
    try {
        createDemo(file, optionsOf(1, 0));
        FAIL() << "made a file without a folder";
    } catch (const SqlError &error) {
        EXPECT_EQ(error.what(), "演示数据库没有生成：" + file.toStdString() + "\n无法打开数据库文件。");
    }
    EXPECT_EQ(entries(folder), QStringList{});
}

TEST(DemoFile, VanishesWhenTheDiskIsFull)
{
    const QTemporaryDir folder;
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = before;
    small.rlim_cur = 300'000;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_THROW(createDemo(folder.filePath(QStringLiteral("demo.db")), optionsOf(600, 400)), SqlError);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(entries(folder), QStringList{});
}

TEST(DemoFile, SomebodyElsesIsTakenWhereThatWasAskedFor)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("demo.db"));
    createDemo(file, optionsOf(5, 0), Existing::Taken);
    createDemo(file, optionsOf(7, 0), Existing::Taken);
    EXPECT_EQ(TestDatabase(file).value("select count(*) from o_CbZyBxDj"), "5");
    EXPECT_EQ(entries(folder), QStringList{QStringLiteral("demo.db")});
}

/// A program in the middle of making a large demo.
class Maker {
public:
    explicit Maker(const QString &file)
        : m_process(::fork())
    {
        if (m_process == 0) {
            createDemo(file, optionsOf(1'000'000, 0));
            ::_exit(0);
        }
    }
    ~Maker() { kill(); }
    Maker(const Maker &) = delete;
    Maker &operator=(const Maker &) = delete;

    [[nodiscard]] bool isAtWork() const { return ::waitpid(m_process, nullptr, WNOHANG) == 0; }
    void kill()
    {
        if (m_process > 0) {
            ::kill(m_process, SIGKILL);
            ::waitpid(m_process, nullptr, 0);
        }
        m_process = -1;
    }

private:
    pid_t m_process;
};

TEST(DemoFile, UnfinishedStaysAsLongAsItsMakerLives)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("demo.db"));
    const QStringList part{QStringLiteral("demo.db.*.part")};
    Maker maker(file);
    while (QDir(folder.path()).entryList(part).isEmpty() && maker.isAtWork())
        ::usleep(1000);
    removeUnfinishedDemos(file);
    EXPECT_EQ(QDir(folder.path()).entryList(part).size(), 1);
    ASSERT_TRUE(maker.isAtWork());

    maker.kill();
    EXPECT_EQ(QDir(folder.path()).entryList(part).size(), 1);
    removeUnfinishedDemos(file);
    EXPECT_EQ(entries(folder), QStringList());
}

TEST(DemoFile, IsMadeAfterAnotherMakerWasKilled)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("demo.db"));
    Maker maker(file);
    while (entries(folder).size() < 2 && maker.isAtWork())
        ::usleep(1000);
    maker.kill();
    createDemo(file, optionsOf(5, 0));
    EXPECT_EQ(entries(folder), QStringList{QStringLiteral("demo.db")});
}

struct BadOptions {
    const char *name;
    DemoOptions options;
};

class DemoOptionsOutOfRange : public testing::TestWithParam<BadOptions> { };

TEST_P(DemoOptionsOutOfRange, AreRefused)
{
    const QTemporaryDir folder;
    EXPECT_THROW(createDemo(folder.filePath(QStringLiteral("demo.db")), GetParam().options), std::invalid_argument);
    EXPECT_EQ(entries(folder), QStringList{});
}

INSTANTIATE_TEST_SUITE_P(DemoFile, DemoOptionsOutOfRange,
                         testing::Values(BadOptions{"NegativeRecords", optionsOf(-1, 0)},
                                         BadOptions{"NegativeArchive", optionsOf(0, -1)},
                                         BadOptions{"TooManyRecords", optionsOf(10'000'001, 0)},
                                         BadOptions{"NegativeLines", optionsOf(1, 0, 1, -1)},
                                         BadOptions{"TooManyLines", optionsOf(1, 0, 1, 1001)},
                                         BadOptions{"NoDate", DemoOptions{1, 0, 1, QDate(), 0}}),
                         [](const auto &test) { return test.param.name; });

} // namespace
} // namespace vortaq::demo
