// SPDX-License-Identifier: MIT
// Statement text in, rows out: prepare, write, run.
#include "vortaq/sqlite/sqliteengine.h"

#include "vortaq/engines/Transaction.h"
#include "vortaq/sql/prepare.h"
#include "vortaq/sqlite/CatalogReader.h"
#include "vortaq/sqlite/Connection.h"
#include "vortaq/sqlite/PreparedStatement.h"
#include "vortaq/sqlite/failedvalue.h"
#include "vortaq/sqlite/keytables.h"
#include "vortaq/sqlite/readrows.h"
#include "vortaq/sqlite/writestatement.h"

#include <QStringView>

#include <string>
#include <utility>

namespace vortaq {

namespace {

class SqliteEngine final : public Engine {
public:
    SqliteEngine(const QString &file, OpenOptions options)
        : m_clock(std::move(options.clock))
        , m_connection(file, {options.readOnly, options.busyTimeout})
        , m_catalog(m_connection)
        , m_transaction(m_connection)
    {
    }

    automation::DataPacketPtr query(const QString &sql) override;
    int execute(const QString &sql) override;
    void begin() override { m_transaction.begin(); }
    void commit() override { m_transaction.commit(); }
    void rollback() override { m_transaction.rollback(); }

private:
    sql::Statement bind(const QString &sql, sql::Due due);
    /// Ready to step; `now` holds the moment as long as the statement lives.
    sqlite::PreparedStatement prepare(const sqlite::WrittenStatement &written, const std::string &now);
    /// Errors tell where the value stands that they are about.
    template <typename Action> auto run(const sqlite::WrittenStatement &written, Action action);
    std::string now() const { return m_clock().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toStdString(); }

    std::function<QDateTime()> m_clock;
    sqlite::Connection m_connection;
    sqlite::CatalogReader m_catalog;
    engines::Transaction m_transaction;
};

sql::Statement SqliteEngine::bind(const QString &sql, sql::Due due)
{
    m_transaction.checkAlive();
    m_catalog.refresh();
    return sql::prepare(sql.toStdString(), m_catalog, due);
}

sqlite::PreparedStatement SqliteEngine::prepare(const sqlite::WrittenStatement &written, const std::string &now)
{
    sqlite::fillKeyTables(m_connection, written.keyTables);
    sqlite::PreparedStatement statement(m_connection, written.text);
    if (written.readsClock)
        statement.bindText(1, now);
    return statement;
}

template <typename Action> auto SqliteEngine::run(const sqlite::WrittenStatement &written, Action action)
{
    const std::string moment = now();
    try {
        sqlite::PreparedStatement statement = prepare(written, moment);
        return action(statement);
    } catch (const sqlite::ValueError &error) {
        throw sqlite::withPlace(error, written, m_connection);
    }
}

automation::DataPacketPtr SqliteEngine::query(const QString &sql)
{
    if (QStringView(sql).trimmed().isEmpty())
        return automation::DataPacketBuilder({}).finish();
    const sql::Statement bound = bind(sql, sql::Due::Query);
    return run(sqlite::writeStatement(bound), [&bound](sqlite::PreparedStatement &statement) {
        return sqlite::readRows(statement, std::get<sql::Query>(bound.node).columns);
    });
}

int SqliteEngine::execute(const QString &sql)
{
    const sql::Statement bound = bind(sql, sql::Due::Change);
    return run(sqlite::writeStatement(bound), [this](sqlite::PreparedStatement &statement) {
        statement.step();
        return m_connection.changedRows();
    });
}

} // namespace

std::unique_ptr<Engine> openSqlite(const QString &file, OpenOptions options)
{
    return std::make_unique<SqliteEngine>(file, std::move(options));
}

} // namespace vortaq
