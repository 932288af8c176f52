// SPDX-License-Identifier: MIT
// From SQLite's result codes to messages for a clerk.
#pragma once

#include "vortaq/SqlError.h"

#include <optional>

struct sqlite3;

namespace vortaq::sqlite {

/// Where the SQL functions of a connection leave their error while SQLite unwinds the statement: SQLite itself would
/// carry the message only and lose the reason.
class FunctionFailure {
public:
    void set(const SqlError &error) { m_error = error; }
    void clear() { m_error.reset(); }
    [[nodiscard]] const std::optional<SqlError> &error() const { return m_error; }

private:
    std::optional<SqlError> m_error;
};

/// Throws what the connection's last call failed with; `code` is the value that the call returned.
[[noreturn]] void throwFailure(sqlite3 *database, int code);

} // namespace vortaq::sqlite
