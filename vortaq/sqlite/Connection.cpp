// SPDX-License-Identifier: MIT
// Opening and setting up.
#include "vortaq/sqlite/Connection.h"

#include "vortaq/sqlite/PreparedStatement.h"
#include "vortaq/sqlite/collation.h"
#include "vortaq/sqlite/functions.h"
#include "vortaq/sqlite/resultcodes.h"

#include <QFileInfo>

#include <sqlite3.h>

#include <algorithm>
#include <limits>
#include <string>

namespace vortaq::sqlite {

namespace {

/// The message tells which file; an operator reads it while he sets a workplace up.
SqlError withFile(const SqlError &error, const QString &file)
{
    return SqlError(error.reason(), std::string(error.what()) + "\n" + file.toStdString());
}

} // namespace

void Connection::Closer::operator()(sqlite3 *database) const noexcept
{
    sqlite3_close_v2(database);
}

Connection::Connection(const QString &file, const Settings &settings)
{
    if (QFileInfo(file).isDir())
        throw SqlError(SqlError::Reason::Other, "这是目录，不是数据库文件：\n" + file.toStdString());
    if (!QFileInfo(file).isFile())
        throw SqlError(SqlError::Reason::Other, "找不到数据库文件：\n" + file.toStdString());
    const int mode = settings.readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    sqlite3 *database = nullptr;
    const int code = sqlite3_open_v2(file.toUtf8().constData(), &database,
                                     mode | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    m_database.reset(database);
    try {
        if (code != SQLITE_OK)
            fail(code);
        configure(settings);
    } catch (const SqlError &error) {
        throw withFile(error, file);
    }
}

void Connection::configure(const Settings &settings)
{
    sqlite3_busy_timeout(handle(), static_cast<int>(settings.busyTimeout.count()));
    installCollation(handle());
    installScalarFunctions(handle(), m_functionFailure);
    installAggregates(handle(), m_functionFailure);
    // The first reading of the file; here it turns out whether it is a database.
    PreparedStatement(*this, "pragma schema_version").step();
    if (sqlite3_db_readonly(handle(), "main") == 0)
        PreparedStatement(*this, "pragma journal_mode = wal").step();
    run("pragma synchronous = full");
    run("pragma foreign_keys = on");
    run("pragma temp_store = memory");
    run("pragma cache_size = -65536"); // KiB
}

void Connection::run(std::string_view text)
{
    PreparedStatement(*this, text).step();
}

bool Connection::isWriting() const
{
    return sqlite3_get_autocommit(handle()) == 0;
}

int Connection::changedRows() const noexcept
{
    return static_cast<int>(std::min<sqlite3_int64>(sqlite3_changes64(handle()), std::numeric_limits<int>::max()));
}

void Connection::fail(int code)
{
    if (m_functionFailure.isSet() && (code & 0xFF) == SQLITE_ERROR)
        m_functionFailure.raise();
    throwFailure(handle(), code);
}

} // namespace vortaq::sqlite
