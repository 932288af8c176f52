// SPDX-License-Identifier: MIT
// Characters of UTF-8 text.
#pragma once

#include <cstddef>
#include <string_view>

namespace vortaq::sql {

/// One decoded character; length 0 where the bytes are no valid UTF-8.
struct Character {
    char32_t code = 0;
    std::size_t length = 0;
};

/// The character at `at`, which must lie inside the text.
[[nodiscard]] Character characterAt(std::string_view text, std::size_t at);
/// Letters of any script, the underscore, and digits: what a name is made of. A name does not begin with a digit.
[[nodiscard]] bool isNamePart(char32_t code);
/// Characters in valid UTF-8 text.
[[nodiscard]] std::size_t characterCount(std::string_view text);

} // namespace vortaq::sql
