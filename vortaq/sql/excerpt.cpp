// SPDX-License-Identifier: MIT
// A window on one line.
#include "vortaq/sql/excerpt.h"

#include "vortaq/sql/character.h"

#include <algorithm>
#include <span>
#include <vector>

namespace vortaq::sql {

namespace {

constexpr std::size_t charactersEitherSide = 40;

constexpr std::string_view blanks = " \t\r\n";

/// The characters of a piece of a line, each fit to be shown.
std::vector<std::string_view> shown(std::string_view piece)
{
    std::vector<std::string_view> result;
    for (std::size_t at = 0; at < piece.size();) {
        const Character character = characterAt(piece, at);
        const bool control = character.code < 0x20 || character.code == 0x7F;
        const std::size_t length = std::max<std::size_t>(character.length, 1);
        result.push_back(character.length == 0 ? "�" : control ? " " : piece.substr(at, length));
        at += length;
    }
    return result;
}

std::string joined(std::span<const std::string_view> characters)
{
    std::string result;
    for (const std::string_view character : characters)
        result += character;
    return result;
}

struct Line {
    std::size_t begin = 0;
    std::size_t end = 0;
};

Line lineAround(std::string_view text, std::size_t offset)
{
    const std::size_t before = offset == 0 ? std::string_view::npos : text.rfind('\n', offset - 1);
    return {before == std::string_view::npos ? 0 : before + 1, std::min(text.find('\n', offset), text.size())};
}

} // namespace

std::string excerpt(std::string_view text, std::size_t offset)
{
    offset = std::min(offset, text.size());
    Line line = lineAround(text, offset);
    const auto isBlank = [text](const Line &tested) {
        return text.substr(tested.begin, tested.end - tested.begin).find_first_not_of(blanks) == std::string_view::npos;
    };
    if (isBlank(line)) {
        const std::size_t last = text.substr(0, line.begin).find_last_not_of(blanks);
        if (last == std::string_view::npos)
            return {};
        offset = last + 1;
        line = lineAround(text, offset);
    }
    const std::string_view all = text.substr(line.begin, line.end - line.begin);
    const std::size_t begin = line.begin + std::min(all.find_first_not_of(blanks), offset - line.begin);
    const std::size_t end = line.begin + std::max(all.find_last_not_of(blanks) + 1, offset - line.begin);
    const auto before = shown(text.substr(begin, offset - begin));
    const auto behind = shown(text.substr(offset, end - offset));
    const std::size_t first = before.size() - std::min(before.size(), charactersEitherSide);
    const std::size_t last = std::min(behind.size(), charactersEitherSide);
    return (first == 0 ? "" : "…") + joined(std::span(before).subspan(first)) + "▶"
        + joined(std::span(behind).first(last)) + (last == behind.size() ? "" : "…");
}

} // namespace vortaq::sql
