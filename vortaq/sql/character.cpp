// SPDX-License-Identifier: MIT
// UTF-8 decoding and the characters of names.
#include "vortaq/sql/character.h"

#include <algorithm>
#include <array>

namespace vortaq::sql {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

// Letters beyond ASCII; full-width punctuation and blanks lie between and are no letters.
constexpr auto letters = std::to_array<Range>({
    {0x00C0, 0x00D6},
    {0x00D8, 0x00F6},
    {0x00F8, 0x02FF},
    {0x0370, 0x1FFF},
    {0x3005, 0x3007},
    {0x3040, 0x318F},
    {0x3400, 0x4DBF},
    {0x4E00, 0x9FFF},
    {0xA000, 0xD7AF},
    {0xF900, 0xFAFF},
    {0xFF10, 0xFF19},
    {0xFF21, 0xFF3A},
    {0xFF41, 0xFF5A},
    {0x20000, 0x3FFFF},
});

/// Bytes of the character that begins with this byte; 0 for a byte that begins none.
std::size_t announcedLength(unsigned char first)
{
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return 2;
    if (first >= 0xE0 && first <= 0xEF)
        return 3;
    if (first >= 0xF0 && first <= 0xF4)
        return 4;
    return 0;
}

bool isOverlongOrSurrogate(char32_t code, std::size_t length)
{
    return (length == 3 && code < 0x800) || (length == 4 && code < 0x10000) || (code >= 0xD800 && code <= 0xDFFF)
        || code > 0x10FFFF;
}

} // namespace

Character characterAt(std::string_view text, std::size_t at)
{
    const auto first = static_cast<unsigned char>(text[at]);
    const std::size_t length = announcedLength(first);
    if (length == 0 || at + length > text.size())
        return {};
    if (length == 1)
        return {first, 1};
    char32_t code = first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[at + i]);
        if ((byte & 0xC0U) != 0x80U)
            return {};
        code = (code << 6U) | (byte & 0x3FU);
    }
    if (isOverlongOrSurrogate(code, length))
        return {};
    return {code, length};
}

bool isNamePart(char32_t code)
{
    if (code < 0x80) {
        return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9')
            || code == '_';
    }
    return std::any_of(letters.begin(), letters.end(),
                       [code](const Range &range) { return code >= range.first && code <= range.last; });
}

std::size_t characterCount(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

} // namespace vortaq::sql
