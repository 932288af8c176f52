// SPDX-License-Identifier: MIT
// Where the SQL functions of a connection leave their error.
#pragma once

#include "vortaq/SqlError.h"

#include <optional>

namespace vortaq::sqlite {

/// Kept while SQLite unwinds the statement: SQLite itself would carry the message only and lose the reason.
class FunctionFailure {
public:
    void set(const SqlError &error) { m_error = error; }
    void clear() { m_error.reset(); }
    [[nodiscard]] const std::optional<SqlError> &error() const { return m_error; }

private:
    std::optional<SqlError> m_error;
};

} // namespace vortaq::sqlite
