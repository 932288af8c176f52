// SPDX-License-Identifier: MIT
// What the database or the SQL engine refuses.
#pragma once

#include <stdexcept>
#include <string>

namespace vortaq {

/// `what()` is a UTF-8 message in Chinese for the clerk: what happened in the first line, and where below it, as far as
/// it is known. Whoever must tell kinds apart asks reason().
class SqlError : public std::runtime_error {
public:
    enum class Reason {
        Syntax, ///< the text is no statement of the subset; the message names line and column
        Binding, ///< unknown or ambiguous names, wrong types, wrong grouping
        Conversion, ///< a value cannot be converted, is too long or out of range
        Constraint, ///< a unique key or another rule of the database
        Transaction, ///< begin inside a transaction, commit outside
        Busy, ///< another program holds the database
        ReadOnly, ///< the database may not be written
        NotADatabase,
        Other
    };

    SqlError(Reason reason, const std::string &message)
        : std::runtime_error(message)
        , m_reason(reason)
    {
    }
    [[nodiscard]] Reason reason() const noexcept { return m_reason; }

private:
    Reason m_reason;
};

} // namespace vortaq
