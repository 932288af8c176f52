// SPDX-License-Identifier: MIT
#include "report/layout/fonts.h"

#include <algorithm>
#include <tuple>

namespace report {

namespace {

struct CharacterRange {
    char16_t first;
    char16_t last;
};

/// Characters that stand beside each other without changing: no marks, no joining, no surrogates.
constexpr CharacterRange SimpleRanges[] = {{0x20, 0x65},     {0x67, 0x7E},     {0xA1, 0xAC},     {0xAE, 0x17F},
                                           {0x391, 0x3C9},   {0x2010, 0x2027}, {0x2030, 0x205E}, {0x2100, 0x2312},
                                           {0x2460, 0x27BF}, {0x3000, 0x3029}, {0x3041, 0x3096}, {0x30A0, 0x30FF},
                                           {0x3400, 0x9FFF}, {0xFF01, 0xFF5E}, {0xFFE0, 0xFFE6}};

bool isSimple(QChar character)
{
    const char16_t code = character.unicode();
    return std::any_of(std::begin(SimpleRanges), std::end(SimpleRanges),
                       [code](const CharacterRange &range) { return code >= range.first && code <= range.last; });
}

} // namespace

Fonts::Fonts(const TemplatePtr &source)
    : m_template(source)
{
}

Unit Fonts::em(const FontStyle &style) noexcept
{
    constexpr int TenthsOfPointPerInch = 720;
    return (style.size * UnitsPerInch + TenthsOfPointPerInch / 2) / TenthsOfPointPerInch;
}

bool Fonts::Order::operator()(const FontStyle &left, const FontStyle &right) const noexcept
{
    return std::tie(left.family, left.size, left.bold) < std::tie(right.family, right.size, right.bold);
}

const Fonts::Entry &Fonts::entry(const FontStyle &style) const
{
    const auto known = m_entries.find(style);
    if (known != m_entries.end())
        return known->second;
    QFont font;
    font.setFamilies(m_template->families[static_cast<std::size_t>(style.family)]);
    font.setPixelSize(em(style));
    font.setBold(style.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Columns of digits stand straight, characters can be measured one by one, and a PDF file knows the meaning of
    // each.
    font.setKerning(false);
    font.setStyleStrategy(QFont::PreferNoShaping);
    return m_entries.emplace(style, Entry{font, QFontMetricsF(font), {}}).first->second;
}

double Fonts::width(const FontStyle &style, QStringView text) const
{
    const Entry &measured = entry(style);
    double sum = 0;
    for (const QChar character : text) {
        auto known = measured.advances.constFind(character.unicode());
        if (known == measured.advances.constEnd()) {
            if (!isSimple(character))
                return measured.metrics.horizontalAdvance(text.toString());
            known = measured.advances.insert(character.unicode(), measured.metrics.horizontalAdvance(character));
        }
        sum += *known;
    }
    return sum;
}

} // namespace report
