// SPDX-License-Identifier: MIT
// LIKE as T-SQL has it.
#pragma once

#include <string_view>

namespace vortaq::sqlite {

/// `%` any text, `_` one character, `[a-z]` one of a set, `[^a-z]` one outside it; ASCII letter case does not count.
/// Both texts are UTF-8. Work is bounded by the product of their lengths.
[[nodiscard]] bool matchesLike(std::string_view text, std::string_view pattern);

} // namespace vortaq::sqlite
