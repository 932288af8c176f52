// SPDX-License-Identifier: MIT
// A value that a function refused while a statement ran.
#pragma once

#include "vortaq/SqlError.h"

#include <cstdint>
#include <optional>

namespace vortaq::sqlite {

/// Where the value stood.
struct FailedValue {
    std::size_t place = 0; ///< position in WrittenStatement::places
    std::optional<std::int64_t> row; ///< rowid in the place's table
};

/// Whoever has the statement can say more; see failedvalue.h.
class ValueError : public SqlError {
public:
    ValueError(const SqlError &error, const FailedValue &value)
        : SqlError(error)
        , m_value(value)
    {
    }
    [[nodiscard]] const FailedValue &value() const noexcept { return m_value; }

private:
    FailedValue m_value;
};

} // namespace vortaq::sqlite
