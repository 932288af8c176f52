// SPDX-License-Identifier: MIT
#include "bench/uMain/bareloop.h"

#include "bench/vortaq/hospital.h"

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

Arena stepAndCopy(sqlite3 *database, const char *sql)
{
    Arena arena;
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(database, sql, -1, &statement, nullptr) != SQLITE_OK) {
        std::fprintf(stderr, "%s\n", sqlite3_errmsg(database));
        std::exit(1);
    }
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

void tuneAsTheEngineDoes(sqlite3 *database)
{
    vortaq::bench::run(database, "pragma temp_store = memory; pragma cache_size = -65536");
}

} // namespace bench
