// SPDX-License-Identifier: MIT
// Matching with one point of return: a later % makes all earlier ones irrelevant.
#include "vortaq/sqlite/likepattern.h"

namespace vortaq::sqlite {

namespace {

/// The character that begins at `at`, folded; `at` moves behind it. Broken UTF-8 is taken byte by byte.
char32_t takeCharacter(std::string_view text, std::size_t &at)
{
    const auto lead = static_cast<unsigned char>(text[at++]);
    if (lead < 0x80)
        return lead >= 'A' && lead <= 'Z' ? lead + ('a' - 'A') : lead;
    const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    char32_t value = lead;
    for (int i = 0; i < following && at < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[at]);
        if ((byte & 0xC0U) != 0x80U)
            break;
        value = (value << 8U) | byte;
        ++at;
    }
    return value;
}

/// A set that begins behind its bracket; `at` moves behind the closing one. An unclosed set matches nothing.
bool setContains(std::string_view pattern, std::size_t &at, char32_t character)
{
    const bool negated = at < pattern.size() && pattern[at] == '^';
    if (negated)
        ++at;
    bool found = false;
    while (at < pattern.size() && pattern[at] != ']') {
        const char32_t low = takeCharacter(pattern, at);
        char32_t high = low;
        if (at + 1 < pattern.size() && pattern[at] == '-' && pattern[at + 1] != ']') {
            ++at;
            high = takeCharacter(pattern, at);
        }
        found = found || (character >= low && character <= high);
    }
    if (at == pattern.size())
        return false;
    ++at;
    return found != negated;
}

/// One text character against one pattern element other than %; both positions move when it matches.
bool matchesOne(std::string_view text, std::size_t &textAt, std::string_view pattern, std::size_t &patternAt)
{
    std::size_t nextText = textAt;
    std::size_t nextPattern = patternAt;
    const char32_t character = takeCharacter(text, nextText);
    const char32_t wanted = takeCharacter(pattern, nextPattern);
    const bool matched =
        wanted == U'_' || (wanted == U'[' ? setContains(pattern, nextPattern, character) : wanted == character);
    if (matched) {
        textAt = nextText;
        patternAt = nextPattern;
    }
    return matched;
}

} // namespace

bool matchesLike(std::string_view text, std::string_view pattern)
{
    constexpr std::size_t none = std::string_view::npos;
    std::size_t textAt = 0;
    std::size_t patternAt = 0;
    std::size_t behindPercent = none;
    std::size_t returnTo = 0;
    while (textAt < text.size()) {
        if (patternAt < pattern.size() && pattern[patternAt] == '%') {
            behindPercent = ++patternAt;
            returnTo = textAt;
        } else if (patternAt < pattern.size() && matchesOne(text, textAt, pattern, patternAt)) {
            continue;
        } else if (behindPercent != none) {
            takeCharacter(text, returnTo);
            textAt = returnTo;
            patternAt = behindPercent;
        } else {
            return false;
        }
    }
    while (patternAt < pattern.size() && pattern[patternAt] == '%')
        ++patternAt;
    return patternAt == pattern.size();
}

} // namespace vortaq::sqlite
