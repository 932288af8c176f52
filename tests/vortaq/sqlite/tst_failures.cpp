// SPDX-License-Identifier: MIT
// What the clerk is told when the database does not do as it should.
#include "tests/vortaq/sqlite/testdatabase.h"

#include "vortaq/sqlite/Connection.h"

#include <QFile>

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

namespace {

using namespace vortaq;
using namespace vortaq::test;
using std::chrono::milliseconds;

OpenOptions impatient()
{
    OpenOptions options;
    options.busyTimeout = milliseconds(20);
    return options;
}

std::string openError(const QString &file, const OpenOptions &options = {})
{
    return errorOf([&] { (void)openSqlite(file, options); });
}

void write(const QString &file, const QByteArray &content)
{
    QFile target(file);
    ASSERT_TRUE(target.open(QIODevice::WriteOnly));
    ASSERT_EQ(target.write(content), content.size());
}

TEST(Opening, MissingFile)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("没有.db"));
    EXPECT_EQ(openError(file), "Other: 找不到数据库文件：\n" + file.toStdString());
    EXPECT_FALSE(QFile::exists(file));
}

TEST(Opening, AFolder)
{
    const QTemporaryDir folder;
    EXPECT_EQ(openError(folder.path()), "Other: 这是目录，不是数据库文件：\n" + folder.path().toStdString());
}

TEST(Opening, SomethingElse)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("表格.db"));
    write(file, QByteArray(5000, 'x'));
    EXPECT_EQ(openError(file), "NotADatabase: 文件不是数据库。\n" + file.toStdString());
    OpenOptions options;
    options.readOnly = true;
    EXPECT_EQ(openError(file, options), "NotADatabase: 文件不是数据库。\n" + file.toStdString());
}

TEST(Opening, ADamagedDatabase)
{
    const TestDatabase database;
    database.fill();
    database.run("pragma journal_mode = delete");
    {
        QFile file(database.file());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const qint64 size = file.size();
        ASSERT_TRUE(file.seek(4096));
        file.write(QByteArray(static_cast<int>(size - 4096), '\x55'));
    }
    EXPECT_EQ(openError(database.file()), "NotADatabase: 数据库文件已损坏。\n" + database.file().toStdString());
}

TEST(Opening, ATruncatedDatabase)
{
    const TestDatabase database;
    database.fill();
    database.run("pragma journal_mode = delete");
    {
        QFile file(database.file());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.resize(qint64{3} * 4096));
    }
    EXPECT_EQ(errorOf([&] {
                  const auto engine = database.open();
                  ask(*engine, "select BillNo from o_CbZyZdb");
              }).substr(0, 13),
              "NotADatabase:");
}

TEST(ReadOnly, QueriesWorkAndChangesAreRefused)
{
    const TestDatabase database;
    database.fill();
    OpenOptions options;
    options.readOnly = true;
    const auto engine = openSqlite(database.file(), options);
    EXPECT_EQ(ask(*engine, "select max(BillNo) from o_CbZyZdb"), "13");
    const std::string refused = "ReadOnly: 数据库是只读的，不能更改。";
    EXPECT_EQ(errorOf([&] { change(*engine, "delete from o_CbZyZdb"); }), refused);
    engine->begin();
    EXPECT_EQ(errorOf([&] { change(*engine, "update o_CbZyZdb set BillNo=1"); }), refused);
    engine->rollback();
    EXPECT_EQ(ask(*engine, "select max(BillNo) from o_CbZyZdb"), "13");
}

// The file's permissions bind a clerk, not the machine's master; so the test steps down where it runs as such.
TEST(ReadOnly, AProtectedFile)
{
    constexpr uid_t nobody = 65534;
    QTemporaryDir folder;
    const TestDatabase database;
    database.fill();
    const QString file = folder.filePath(QStringLiteral("只读.db"));
    ASSERT_TRUE(QFile::copy(database.file(), file));
    ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    ASSERT_TRUE(QFile::setPermissions(folder.path(),
                                      QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup
                                          | QFile::ReadOther | QFile::ExeOther));
    const bool master = geteuid() == 0;
    if (master) {
        ASSERT_EQ(seteuid(nobody), 0);
    }
    std::string rows;
    std::string error;
    const std::string opening = errorOf([&] {
        const auto engine = openSqlite(file);
        rows = ask(*engine, "select max(BillNo) from o_CbZyZdb");
        error = errorOf([&] { change(*engine, "delete from o_CbZyZdb"); });
    });
    if (master) {
        ASSERT_EQ(seteuid(0), 0);
    }
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(opening, "no error");
    EXPECT_EQ(rows, "13");
    EXPECT_EQ(error, "ReadOnly: 数据库是只读的，不能更改。");
}

TEST(Busy, AnotherClerkSaves)
{
    const Hospital hospital;
    const auto other = openSqlite(hospital.database.file(), impatient());
    hospital.engine->begin();
    change(*hospital.engine, "delete from o_CbZyZdb where BillNo=11");
    const std::string busy = "Busy: 数据库正被其他程序占用，请稍后再试。";
    EXPECT_EQ(errorOf([&] { other->begin(); }), busy);
    EXPECT_EQ(errorOf([&] { change(*other, "delete from o_CbZyZdb where BillNo=12"); }), busy);
    EXPECT_EQ(ask(*other, "select BillNo from o_CbZyZdb order by BillNo"), "11\n12\n13");
    hospital.engine->commit();
    other->begin();
    EXPECT_EQ(change(*other, "delete from o_CbZyZdb where BillNo=12"), 1);
    other->commit();
    EXPECT_EQ(ask(*hospital.engine, "select BillNo from o_CbZyZdb"), "13");
}

TEST(Busy, AnotherProgramHoldsTheFile)
{
    const TestDatabase database;
    database.run("pragma journal_mode = delete");
    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(database.file().toUtf8().constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(openError(database.file(), impatient()),
              "Busy: 数据库正被其他程序占用，请稍后再试。\n" + database.file().toStdString());
    ASSERT_EQ(sqlite3_close(other), SQLITE_OK);
}

class Refused : public testing::Test {
protected:
    [[nodiscard]] std::string changeError(const std::string &statement) const
    {
        return errorOf([&] { change(*m_hospital.engine, statement); });
    }

    Hospital m_hospital;
};

TEST_F(Refused, DuplicateKey)
{
    EXPECT_EQ(changeError("insert into o_CbZyZdb(BillCode,BillNo) values('4201',12)"),
              "Constraint: 不能写入重复的键（o_CbZyZdb.BillCode, o_CbZyZdb.BillNo）。");
}

TEST_F(Refused, MissingValue)
{
    EXPECT_EQ(changeError("update o_CbZyZdb set BillCode=null where BillNo=11"),
              "Constraint: 该列不允许为空（o_CbZyZdb.BillCode）。");
}

TEST_F(Refused, ACheckOfTheHospital)
{
    m_hospital.database.run(
        "create table t (A int check (A > 0), B int references p(Id)); create table p (Id int primary key)");
    EXPECT_EQ(changeError("insert into t(A) values(0)"), "Constraint: 数据不符合检查约束（A > 0）。");
    EXPECT_EQ(changeError("insert into t(B) values(1)"), "Constraint: 更改与其他表中的数据冲突（外键约束）。");
}

TEST_F(Refused, ATableThatWasDropped)
{
    m_hospital.database.run("drop table o_CbZyJsb");
    const std::string error = changeError("delete from o_CbZyJsb");
    EXPECT_EQ(error.substr(0, 8), "Binding:") << error;
    EXPECT_NE(error.find("o_CbZyJsb"), std::string::npos) << error;
}

TEST_F(Refused, AViewOverADroppedTable)
{
    m_hospital.database.run("create table gone (A int); create view Broken as select A from gone; drop table gone");
    const std::string error = errorOf([&] { ask(*m_hospital.engine, "select A from Broken"); });
    EXPECT_EQ(error, "Binding: 数据库中没有该对象：main.gone");
}

TEST_F(Refused, ATriggersOwnMessage)
{
    m_hospital.database.run(
        "create trigger t before delete on o_CbZyZdb begin select raise(abort, '审核中的制单不能删除'); end");
    EXPECT_EQ(changeError("delete from o_CbZyZdb where BillNo=11"),
              "Constraint: 数据库拒绝了更改：审核中的制单不能删除");
}

TEST(FullDisk, IsNamed)
{
    const TestDatabase database;
    sqlite::Connection connection(database.file(), {false, milliseconds(100)});
    connection.run("pragma max_page_count = 1");
    EXPECT_EQ(errorOf([&] {
                  connection.run(
                      "insert into p_BxXm (ItemCode, Gg) with recursive n(i) as (select 1 union all select i + 1 from n"
                      " where i < 1000) select i, 'x' || hex(zeroblob(500)) from n");
              }),
              "Other: 磁盘空间不足，数据没有保存。");
}

TEST(FailingDisk, LosesOnlyTheTransaction)
{
    const Hospital hospital;
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit narrow{0, before.rlim_max};
    hospital.engine->begin();
    change(*hospital.engine, "delete from o_CbZyZdb where BillNo=11");
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &narrow), 0);
    const std::string error = errorOf([&] { hospital.engine->commit(); });
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(error, "Other: 数据库文件不能再写入，数据没有保存。请检查磁盘、配额和文件大小的限制。");
    hospital.engine->rollback();
    EXPECT_EQ(ask(*hospital.engine, "select BillNo from o_CbZyZdb order by BillNo"), "11\n12\n13");
    EXPECT_EQ(hospital.database.look("pragma integrity_check"), "ok");
}

} // namespace
