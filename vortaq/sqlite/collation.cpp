// SPDX-License-Identifier: MIT
// The comparison behind NOCASE.
#include "vortaq/sqlite/collation.h"

#include "vortaq/sqlite/resultcodes.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>

namespace vortaq::sqlite {

namespace {

constexpr std::array<unsigned char, 256> folded = [] {
    std::array<unsigned char, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i + ('a' - 'A') : i);
    return table;
}();

unsigned char fold(char c)
{
    return folded[static_cast<unsigned char>(c)];
}

std::string_view withoutTrailingBlanks(std::string_view text)
{
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

int compare(void *, int leftSize, const void *left, int rightSize, const void *right)
{
    return compareText({static_cast<const char *>(left), static_cast<std::size_t>(leftSize)},
                       {static_cast<const char *>(right), static_cast<std::size_t>(rightSize)});
}

} // namespace

int compareText(std::string_view left, std::string_view right) noexcept
{
    left = withoutTrailingBlanks(left);
    right = withoutTrailingBlanks(right);
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (fold(left[i]) != fold(right[i]))
            return fold(left[i]) < fold(right[i]) ? -1 : 1;
    }
    return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

void installCollation(sqlite3 *database)
{
    const int code = sqlite3_create_collation_v2(database, "NOCASE", SQLITE_UTF8, nullptr, compare, nullptr);
    if (code != SQLITE_OK)
        throwFailure(database, code);
}

} // namespace vortaq::sqlite
