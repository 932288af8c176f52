// SPDX-License-Identifier: MIT
// Refusals that name the place in the statement, and show it in a second line (excerpt()).
#pragma once

#include "vortaq/SqlError.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace vortaq::sql {

/// Counted from 1; columns in characters, not bytes.
struct Place {
    int line = 1;
    int column = 1;

    friend bool operator==(const Place &, const Place &) = default;
};

/// Of the byte at `offset` (text.size() is the end).
[[nodiscard]] Place placeOf(std::string_view text, std::size_t offset);

/// “语法错误（第1行第45列）：” and the detail.
[[noreturn]] void failSyntax(std::string_view text, std::size_t offset, std::string_view detail);
/// The message and “（第1行第45列）”.
[[noreturn]] void failAt(SqlError::Reason reason, std::string_view text, std::size_t offset, std::string_view message);
/// A statement that is out of place altogether.
[[noreturn]] void failWhole(std::string_view text, std::string_view message);

/// “word”
[[nodiscard]] std::string quoted(std::string_view word);

} // namespace vortaq::sql
