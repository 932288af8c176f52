// SPDX-License-Identifier: MIT
// Files, rows, answers.
#include "tests/vortaq/sqlite/testdatabase.h"

#include "vortaq/schema/schema.h"

#include <sqlite3.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace vortaq::test {

namespace {

struct Closer {
    void operator()(sqlite3 *database) const { sqlite3_close(database); }
};
using Plain = std::unique_ptr<sqlite3, Closer>;

Plain openPlain(const QString &file)
{
    sqlite3 *database = nullptr;
    const int code = sqlite3_open(file.toUtf8().constData(), &database);
    Plain plain(database);
    if (code != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database));
    sqlite3_busy_timeout(database, 10000);
    return plain;
}

void runPlain(sqlite3 *database, const std::string &statements)
{
    if (sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database));
}

std::string contentOf(const std::string &path)
{
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

TestDatabase::TestDatabase()
{
    const Plain database = openPlain(file());
    runPlain(database.get(), "pragma synchronous = off; begin");
    for (const std::string &statement : schemaStatements())
        runPlain(database.get(), statement);
    runPlain(database.get(), "commit");
}

QString TestDatabase::file() const
{
    return m_folder.filePath(QStringLiteral("医院.db"));
}

void TestDatabase::run(const std::string &statements) const
{
    runPlain(openPlain(file()).get(), statements);
}

std::string TestDatabase::look(const std::string &query) const
{
    std::string result;
    const Plain database = openPlain(file());
    const auto keepFirst = [](void *kept, int, char **values, char **) {
        *static_cast<std::string *>(kept) = values[0] == nullptr ? "~" : values[0];
        return 1;
    };
    const int code = sqlite3_exec(database.get(), query.c_str(), keepFirst, &result, nullptr);
    if (code != SQLITE_OK && code != SQLITE_ABORT)
        throw std::runtime_error(sqlite3_errmsg(database.get()));
    return result;
}

void TestDatabase::fill() const
{
    run(contentOf(TARNWELL_SQLITE_CORPUS "/hospital.sql"));
}

std::unique_ptr<Engine> TestDatabase::open() const
{
    OpenOptions options;
    options.clock = [] { return QDateTime(QDate(2024, 2, 6), QTime(9, 30, 15, 250)); };
    return openSqlite(file(), options);
}

Hospital::Hospital()
{
    database.fill();
    engine = database.open();
}

std::string rowsOf(const automation::DataPacket &packet)
{
    std::string result;
    for (int row = 0; row < packet.rowCount(); ++row) {
        result += row == 0 ? "" : "\n";
        for (int column = 0; column < packet.columnCount(); ++column) {
            result += column == 0 ? "" : "|";
            result += packet.isNull(row, column) ? "~" : packet.text(row, column);
        }
    }
    return result;
}

std::string namesOf(const automation::DataPacket &packet)
{
    QStringList names;
    for (const QString &name : packet.columnNames())
        names.append(name);
    return names.join(QLatin1Char('|')).toStdString();
}

std::string ask(Engine &engine, const std::string &query)
{
    return rowsOf(*engine.query(QString::fromStdString(query)));
}

int change(Engine &engine, const std::string &statement)
{
    return engine.execute(QString::fromStdString(statement));
}

} // namespace vortaq::test
