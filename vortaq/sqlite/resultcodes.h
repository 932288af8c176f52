// SPDX-License-Identifier: MIT
// From SQLite's result codes to the failures that a clerk is told of.
#pragma once

struct sqlite3;

namespace vortaq::sqlite {

/// Throws what the connection's last call failed with; `code` is the value that the call returned.
[[noreturn]] void throwFailure(sqlite3 *database, int code);

} // namespace vortaq::sqlite
