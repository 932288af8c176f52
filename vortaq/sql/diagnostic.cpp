// SPDX-License-Identifier: MIT
// Messages with line and column.
#include "vortaq/sql/diagnostic.h"

#include <algorithm>

namespace vortaq::sql {

namespace {

std::string placeText(std::string_view text, std::size_t offset)
{
    const Place place = placeOf(text, offset);
    return "（第" + std::to_string(place.line) + "行第" + std::to_string(place.column) + "列）";
}

bool startsCharacter(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
}

} // namespace

Place placeOf(std::string_view text, std::size_t offset)
{
    Place place;
    for (const char c : text.substr(0, std::min(offset, text.size()))) {
        if (c == '\n') {
            ++place.line;
            place.column = 1;
        } else if (startsCharacter(c)) {
            ++place.column;
        }
    }
    return place;
}

void failSyntax(std::string_view text, std::size_t offset, std::string_view detail)
{
    throw SqlError(SqlError::Reason::Syntax, "语法错误" + placeText(text, offset) + "：" + std::string(detail));
}

void failAt(SqlError::Reason reason, std::string_view text, std::size_t offset, std::string_view message)
{
    throw SqlError(reason, std::string(message) + placeText(text, offset));
}

std::string quoted(std::string_view word)
{
    return "“" + std::string(word) + "”";
}

} // namespace vortaq::sql
