// SPDX-License-Identifier: MIT
// SQLite as the demo generator uses it.
#include "vortaq/demo/databasewriting.h"

#include "vortaq/sqlite/resultcodes.h"

#include <sqlite3.h>

#include <new>

namespace vortaq::demo {

void CloseConnection::operator()(sqlite3 *database) const
{
    sqlite3_close(database);
}

Connection createFile(const QString &file)
{
    sqlite3 *opened = nullptr;
    const int result =
        sqlite3_open_v2(file.toUtf8().constData(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    Connection connection(opened);
    if (opened == nullptr)
        throw std::bad_alloc();
    if (result != SQLITE_OK)
        throwLastError(opened);
    // A broken file is thrown away, so it needs no journal; a complete one must have reached the disk.
    execute(opened, "pragma page_size = 4096");
    execute(opened, "pragma journal_mode = off");
    execute(opened, "pragma synchronous = full");
    execute(opened, "pragma cache_size = -262144"); // KiB
    return connection;
}

void execute(sqlite3 *database, const std::string &statement)
{
    if (sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throwLastError(database);
}

void throwLastError(sqlite3 *database)
{
    sqlite::throwFailure(database, sqlite3_extended_errcode(database));
}

} // namespace vortaq::demo
