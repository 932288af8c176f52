// SPDX-License-Identifier: MIT
// Messages with line and column.
#include "vortaq/sql/diagnostic.h"

#include "vortaq/sql/excerpt.h"

#include <algorithm>

namespace vortaq::sql {

namespace {

std::string placeText(std::string_view text, std::size_t offset)
{
    const Place place = placeOf(text, offset);
    return "（第" + std::to_string(place.line) + "行第" + std::to_string(place.column) + "列）";
}

[[noreturn]] void fail(SqlError::Reason reason, std::string message, std::string_view text, std::size_t offset)
{
    const std::string shown = excerpt(text, offset);
    throw SqlError(reason, shown.empty() ? message : message + "\n" + shown);
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
    fail(SqlError::Reason::Syntax, "语法错误" + placeText(text, offset) + "：" + std::string(detail), text, offset);
}

void failAt(SqlError::Reason reason, std::string_view text, std::size_t offset, std::string_view message)
{
    fail(reason, std::string(message) + placeText(text, offset), text, offset);
}

void failWhole(std::string_view text, std::string_view message)
{
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    fail(SqlError::Reason::Syntax, std::string(message), text, std::min(first, text.size()));
}

std::string quoted(std::string_view word)
{
    return "“" + std::string(word) + "”";
}

} // namespace vortaq::sql
