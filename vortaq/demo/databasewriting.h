// SPDX-License-Identifier: MIT
// The file that a demo database is written into.
#pragma once

#include <QString>

#include <memory>
#include <string>

struct sqlite3;

namespace vortaq::demo {

struct CloseConnection {
    void operator()(sqlite3 *database) const;
};
using Connection = std::unique_ptr<sqlite3, CloseConnection>;

/// Opens a new file for one long write. Throws SqlError.
[[nodiscard]] Connection createFile(const QString &file);

/// Runs one statement. Throws SqlError.
void execute(sqlite3 *database, const std::string &statement);

/// Throws SqlError for what the library last reported.
[[noreturn]] void throwLastError(sqlite3 *database);

} // namespace vortaq::demo
