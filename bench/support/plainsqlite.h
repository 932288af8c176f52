// SPDX-License-Identifier: MIT
// SQLite as it is, without anything of the engine: what the engine is measured against.
#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;

namespace bench {

struct Closer {
    void operator()(sqlite3 *database) const;
};
using Plain = std::unique_ptr<sqlite3, Closer>;

/// Everything here ends the program when SQLite refuses.
[[nodiscard]] Plain openPlain(const QString &file);
/// With the engine's cache settings.
[[nodiscard]] Plain openTuned(const QString &file);
void run(sqlite3 *database, const std::string &statement);

/// All cells of a query, row after row.
struct Arena {
    std::string text;
    std::vector<std::uint32_t> offsets;
};

/// The least that reading rows takes: step through them and copy their text. `sql` is SQLite's own.
[[nodiscard]] Arena stepAndCopy(sqlite3 *database, const char *sql);

} // namespace bench
