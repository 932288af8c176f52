// SPDX-License-Identifier: MIT
#include "bench/support/plainsqlite.h"

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

void require(bool done, sqlite3 *database)
{
    if (done)
        return;
    std::fprintf(stderr, "%s\n", sqlite3_errmsg(database));
    std::exit(1);
}

} // namespace

void Closer::operator()(sqlite3 *database) const
{
    sqlite3_close(database);
}

Plain openPlain(const QString &file)
{
    sqlite3 *database = nullptr;
    require(sqlite3_open(file.toUtf8().constData(), &database) == SQLITE_OK, database);
    return Plain(database);
}

Plain openTuned(const QString &file)
{
    Plain database = openPlain(file);
    run(database.get(), "pragma temp_store = memory; pragma cache_size = -65536");
    return database;
}

void run(sqlite3 *database, const std::string &statement)
{
    require(sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK, database);
}

Arena stepAndCopy(sqlite3 *database, const char *sql)
{
    Arena arena;
    sqlite3_stmt *statement = nullptr;
    require(sqlite3_prepare_v2(database, sql, -1, &statement, nullptr) == SQLITE_OK, database);
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = 0; column < columns; ++column) {
            arena.offsets.push_back(static_cast<std::uint32_t>(arena.text.size()));
            if (const auto *cell = reinterpret_cast<const char *>(sqlite3_column_text(statement, column)))
                arena.text.append(cell, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
        }
    }
    sqlite3_finalize(statement);
    return arena;
}

} // namespace bench
