// SPDX-License-Identifier: MIT
// Makes the file and fills it in one transaction.
#include "vortaq/demo/demodata.h"

#include "vortaq/SqlError.h"
#include "vortaq/demo/databasewriting.h"
#include "vortaq/demo/procedures.h"
#include "vortaq/demo/random.h"
#include "vortaq/demo/recordwriter.h"
#include "vortaq/demo/referencetables.h"
#include "vortaq/schema/schema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>

#include <algorithm>
#include <chrono>
#include <stdexcept>

namespace vortaq {
namespace {

using namespace demo;

constexpr int mostRecords = 10'000'000;
constexpr int mostDetailLines = 1000;

void checkOptions(const DemoOptions &options)
{
    if (options.records < 0 || options.records > mostRecords || options.archived < 0 || options.archived > mostRecords)
        throw std::invalid_argument("演示数据的记录数必须在0到10000000之间");
    if (options.detailLines < 0 || options.detailLines > mostDetailLines)
        throw std::invalid_argument("每条记录的平均费用明细数必须在0到1000之间");
    if (!options.today.isValid() || options.today.year() < 1990 || options.today.year() > 9999)
        throw std::invalid_argument("演示数据的日期无效");
}

int averageLines(const DemoOptions &options)
{
    if (options.detailLines > 0)
        return options.detailLines;
    const int stays = options.records + options.archived;
    if (stays <= 5'000)
        return 12;
    if (stays <= 50'000)
        return 6;
    return stays <= 200'000 ? 3 : 2;
}

void fill(sqlite3 *database, const DemoOptions &options)
{
    Random random(options.seed);
    const Calendar calendar(static_cast<Day>(QDate(1970, 1, 1).daysTo(options.today)));
    Plan plan = makePlan(options.records, options.archived, calendar.today(), random);

    execute(database, "begin exclusive");
    for (const std::string &statement : schemaTableStatements())
        execute(database, statement);
    writeReferenceTables(database);
    writeProcedures(database);
    RecordWriter writer(database, calendar, plan, averageLines(options), random);
    HouseholdMaker maker(plan, calendar.today(), random);
    std::span<const StayPlan> left = plan.stays;
    while (!left.empty()) {
        const std::size_t stays = std::min(left.size(), static_cast<std::size_t>(random.between(1, 3)));
        writer.write(maker.make(left.first(stays)));
        left = left.subspan(stays);
    }
    writer.writeBills();
    for (const std::string &statement : schemaIndexStatements())
        execute(database, statement);
    execute(database, "analyze");
    execute(database, "commit");
}

QFileInfoList unfinishedFiles(const QString &file)
{
    const QFileInfo made(file);
    const QRegularExpression name(QRegularExpression::anchoredPattern(QRegularExpression::escape(made.fileName())
                                                                      + QStringLiteral("\\.[0-9]+\\.part")));
    QFileInfoList found = made.absoluteDir().entryInfoList(QDir::Files | QDir::Hidden);
    erase_if(found, [&name](const QFileInfo &info) { return !name.match(info.fileName()).hasMatch(); });
    return found;
}

/// One program at a time makes a file. The system knows whether the program that holds the lock still lives.
class MakingLock {
public:
    MakingLock(const QString &file, std::chrono::milliseconds patience)
        : m_file(file)
        , m_lock(file + QStringLiteral(".lock"))
        , m_isHeld(m_lock.tryLock(patience))
    {
        if (m_isHeld)
            removeLeftovers();
    }

    [[nodiscard]] bool isHeldElsewhere() const { return !m_isHeld && m_lock.error() == QLockFile::LockFailedError; }

private:
    void removeLeftovers() const
    {
        for (const QFileInfo &left : unfinishedFiles(m_file))
            QFile::remove(left.filePath());
    }

    QString m_file;
    QLockFile m_lock;
    bool m_isHeld;
};

/// A file that vanishes unless it gets its final name.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const QString &file)
        : m_file(file)
        , m_name(QStringLiteral("%1.%2.part").arg(file).arg(QCoreApplication::applicationPid()))
    {
    }
    ~UnfinishedFile() { QFile::remove(m_name); }
    UnfinishedFile(const UnfinishedFile &) = delete;
    UnfinishedFile &operator=(const UnfinishedFile &) = delete;

    [[nodiscard]] const QString &name() const { return m_name; }

    void finish()
    {
        if (!QFile::rename(m_name, m_file))
            throw SqlError(SqlError::Reason::Other, "演示数据库无法改名为：" + m_file.toStdString());
    }

private:
    QString m_file;
    QString m_name;
};

} // namespace

void createDemo(const QString &file, const DemoOptions &options, Existing existing)
{
    constexpr std::chrono::minutes Patience(1);
    checkOptions(options);
    const MakingLock lock(file, Patience);
    if (QFile::exists(file)) {
        if (existing == Existing::Taken)
            return;
        throw SqlError(SqlError::Reason::Other, "文件已经存在，不会被覆盖：" + file.toStdString());
    }
    if (lock.isHeldElsewhere())
        throw SqlError(SqlError::Reason::Busy, "另一个程序正在建立数据库，请稍后再试：" + file.toStdString());
    UnfinishedFile unfinished(file);
    try {
        const Connection connection = createFile(unfinished.name());
        fill(connection.get(), options);
    } catch (const SqlError &error) {
        throw SqlError(error.reason(), "演示数据库没有生成：" + file.toStdString() + "\n" + error.what());
    }
    unfinished.finish();
}

void removeUnfinishedDemos(const QString &file)
{
    if (unfinishedFiles(file).isEmpty())
        return;
    const MakingLock lock(file, std::chrono::milliseconds(0));
}

} // namespace vortaq
