// SPDX-License-Identifier: MIT
// What SQLite alone needs for the same rows: step through them and copy their text.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct sqlite3;

namespace bench {

/// All cells of a query, row after row.
struct Arena {
    std::string text;
    std::vector<std::uint32_t> offsets;
};

/// `sql` is SQLite's own. Ends the program when SQLite refuses.
[[nodiscard]] Arena stepAndCopy(sqlite3 *database, const char *sql);

/// The plain connection with the engine's cache settings.
void tuneAsTheEngineDoes(sqlite3 *database);

} // namespace bench
