// SPDX-License-Identifier: MIT
// Where the SQL functions of a connection leave their error.
#pragma once

#include "vortaq/sqlite/ValueError.h"

#include <optional>

namespace vortaq::sqlite {

/// Kept while SQLite unwinds the statement: SQLite itself would carry the message only and lose the reason.
class FunctionFailure {
public:
    void set(const SqlError &error, const std::optional<FailedValue> &value)
    {
        m_error = error;
        m_value = value;
    }
    [[nodiscard]] bool isSet() const noexcept { return m_error.has_value(); }
    /// Throws the error, as a ValueError where its value is known, and forgets it.
    [[noreturn]] void raise()
    {
        const SqlError error = *m_error;
        m_error.reset();
        if (m_value)
            throw ValueError(error, *m_value);
        throw SqlError(error);
    }

private:
    std::optional<SqlError> m_error;
    std::optional<FailedValue> m_value;
};

} // namespace vortaq::sqlite
