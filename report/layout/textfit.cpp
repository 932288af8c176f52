// SPDX-License-Identifier: MIT
#include "report/layout/textfit.h"

#include "report/layout/fonts.h"

#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace report {

namespace {

/// Room above and below the lines of a box that grows with its text.
constexpr Unit VerticalPadding = 60;
/// In ems: lines follow each other at this distance, and a Chinese character reaches so far above its baseline.
constexpr double LineSpacing = 1.3;
constexpr double Ascent = 0.88;
/// Amounts get as small as this (tenths of a point) before they are given up.
constexpr int SmallestAmount = 50;
/// A text this much too wide still counts as fitting: measures are rounded.
constexpr double Tolerance = 1;

constexpr QChar Ellipsis = u'…';

struct Lines {
    QStringList texts;
    bool splitDigits = false; ///< a number too wide for the box goes on in the next line
};

bool belongsToNumber(QChar character)
{
    return (character >= u'0' && character <= u'9') || character == u',' || character == u'.';
}

void appendBroken(const Fonts &fonts, const FontStyle &style, const QString &paragraph, Unit width, Lines &lines)
{
    QTextLayout layout(paragraph, fonts.font(style));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width + Tolerance);
        const int end = line.textStart() + line.textLength();
        if (end < paragraph.size() && end > 0)
            lines.splitDigits |= belongsToNumber(paragraph[end - 1]) && belongsToNumber(paragraph[end]);
        QString text = paragraph.mid(line.textStart(), line.textLength());
        while (text.endsWith(u' '))
            text.chop(1);
        lines.texts.append(text);
    }
    layout.endLayout();
}

bool isWider(const Fonts &fonts, const FontStyle &style, const QString &text, Unit width)
{
    return fonts.width(style, text) > width + Tolerance;
}

int roomForLines(const FontStyle &font, Unit height)
{
    // A single line may be taller than a low box: there is nothing to gain by leaving it out.
    return std::max(1, height / lineHeight(font));
}

/// One text on its way to the size and the lines that suit its box.
class Fitting {
public:
    Fitting(const Fonts &fonts, const TextItem &item, const QString &text, const Rect &box)
        : m_fonts(fonts)
        , m_item(item)
        , m_text(text)
        , m_width(std::max(1, box.width - 2 * item.padding))
        , m_height(box.height)
        , m_style(item.font)
    {
    }

    [[nodiscard]] FittedText result(int smaller);

private:
    /// Breaks the text in the current size; true when the box holds the lines.
    bool attempt(bool wrap);
    /// Takes the largest size in which the box holds the text; false when it does in none of them.
    bool shrink(bool wrap, int from, int smallest);
    void measure();
    [[nodiscard]] bool isHopeless(int size, bool wrap) const;
    void growWith(int size);
    void cut();
    void hideAmount();
    void hideWideNumbers();

    const Fonts &m_fonts;
    const TextItem &m_item;
    QString m_text;
    Unit m_width;
    Unit m_height;
    FontStyle m_style;
    Lines m_lines;
    bool m_grows = false;
    double m_widest = 0; ///< paragraph in the template's size
    double m_together = 0; ///< all paragraphs side by side
};

bool Fitting::attempt(bool wrap)
{
    m_lines = {};
    bool narrowEnough = true;
    for (const QString &paragraph : m_text.split(u'\n')) {
        const bool wide = isWider(m_fonts, m_style, paragraph, m_width);
        if (wide && wrap) {
            appendBroken(m_fonts, m_style, paragraph, m_width, m_lines);
        } else {
            narrowEnough = narrowEnough && !wide;
            m_lines.texts.append(paragraph);
        }
    }
    const bool split = m_lines.splitDigits && m_item.text.holdsNumber();
    return narrowEnough && !split && m_lines.texts.size() <= roomForLines(m_style, m_height);
}

bool Fitting::shrink(bool wrap, int from, int smallest)
{
    if (m_together <= 0)
        measure();
    for (m_style.size = from; m_style.size >= smallest; m_style.size -= ShrinkStep) {
        if (!isHopeless(m_style.size, wrap) && attempt(wrap))
            return true;
    }
    m_style.size += ShrinkStep;
    return false;
}

void Fitting::measure()
{
    for (const QString &paragraph : m_text.split(u'\n')) {
        const double width = m_fonts.width(m_item.font, paragraph);
        m_widest = std::max(m_widest, width);
        m_together += width;
    }
}

/// Spares laying out long texts in sizes that cannot do.
bool Fitting::isHopeless(int size, bool wrap) const
{
    constexpr double rounding = 1.02;
    FontStyle style = m_item.font;
    style.size = size;
    const double scale = double(Fonts::em(style)) / Fonts::em(m_item.font) / rounding;
    const Unit room = wrap ? m_width * roomForLines(style, m_height) : m_width;
    return (wrap ? m_together : m_widest) * scale > room;
}

/// All lines in a box as high as they need.
void Fitting::growWith(int size)
{
    m_grows = true;
    m_style.size = size;
    m_height = lineHeight(m_style);
    (void)attempt(true);
    while (m_lines.splitDigits && m_item.text.holdsNumber() && m_style.size - ShrinkStep >= SmallestAmount) {
        m_style.size -= ShrinkStep;
        (void)attempt(true);
    }
    if (m_lines.splitDigits && m_item.text.holdsNumber()) {
        hideWideNumbers();
        (void)attempt(true);
    }
}

void Fitting::cut()
{
    const int room = roomForLines(m_style, m_height);
    if (m_lines.texts.size() > room) {
        m_lines.texts.resize(room);
        m_lines.texts.last() += Ellipsis;
    }
    for (QString &line : m_lines.texts) {
        if (isWider(m_fonts, m_style, line, m_width))
            line = m_fonts.metrics(m_style).elidedText(line, Qt::ElideRight, m_width);
    }
}

void Fitting::hideAmount()
{
    const double each = m_fonts.width(m_style, u"#");
    m_lines.texts = {QString(std::max(1, static_cast<int>(m_width / each)), u'#')};
}

void Fitting::hideWideNumbers()
{
    QString text;
    QString number;
    for (const QChar character : m_text + QChar()) {
        if (belongsToNumber(character)) {
            number += character;
            continue;
        }
        text += isWider(m_fonts, m_style, number, m_width) ? QStringLiteral("####") : number;
        text += character;
        number.clear();
    }
    m_text = text.chopped(1);
}

FittedText Fitting::result(int smaller)
{
    const int usual = m_item.font.size;
    const int floor = std::min(usual, SmallestWords);
    if (m_item.overflow == Overflow::Grow) {
        growWith(std::max(floor, usual - smaller));
    } else if (attempt(m_item.wrap)) {
        // as the template has it
    } else if (m_item.overflow == Overflow::Clip && !m_item.text.holdsNumber()) {
        cut();
    } else if (m_item.text.isAmount()) {
        if (!shrink(m_item.wrap, usual - ShrinkStep, std::min(usual, SmallestAmount)))
            hideAmount();
    } else if (!shrink(m_item.wrap, usual - ShrinkStep, floor) && (m_item.wrap || !shrink(true, usual, floor))) {
        growWith(floor);
    }
    FittedText fitted{m_style.size, m_lines.texts, 0};
    if (m_grows)
        fitted.height = heightOfLines(m_style, fitted.lines.size());
    return fitted;
}

} // namespace

Unit lineHeight(const FontStyle &font)
{
    return static_cast<Unit>(std::lround(LineSpacing * Fonts::em(font)));
}

Unit heightOfLines(const FontStyle &font, qsizetype lines)
{
    return lineHeight(font) * static_cast<Unit>(lines) + 2 * VerticalPadding;
}

FittedText fitText(const Fonts &fonts, const TextItem &item, const QString &text, const Rect &box, int smaller)
{
    if (text.isEmpty())
        return {item.font.size, {}, 0};
    return Fitting(fonts, item, text, box).result(smaller);
}

void placeText(const Fonts &fonts, TextBox &target, const FittedText &fitted)
{
    target.font = target.item->font;
    target.font.size = fitted.size;
    target.lines.clear();
    for (const QString &line : fitted.lines)
        target.lines.push_back({0, 0, line});
    placeLines(fonts, target, target.item->vertical);
}

void placeLines(const Fonts &fonts, TextBox &target, VerticalAlign vertical)
{
    const TextItem &item = *target.item;
    const Unit height = lineHeight(target.font);
    const Unit spare = target.box.height - height * static_cast<Unit>(target.lines.size());
    Unit top = target.box.top + spare / 2;
    if (vertical == VerticalAlign::Top)
        top = target.box.top + std::min(VerticalPadding, std::max(0, spare));
    else if (vertical == VerticalAlign::Bottom)
        top = target.box.top + spare;
    const double em = Fonts::em(target.font);
    const Unit above = static_cast<Unit>(std::lround((LineSpacing - 1) / 2 * em + Ascent * em));
    const Unit width = target.box.width - 2 * item.padding;
    for (TextLine &line : target.lines) {
        line.left = target.box.left + item.padding;
        if (item.horizontal != HorizontalAlign::Left) {
            const Unit free = width - static_cast<Unit>(std::lround(fonts.width(target.font, line.text)));
            line.left += item.horizontal == HorizontalAlign::Right ? free : free / 2;
        }
        line.baseline = top + above;
        top += height;
    }
}

} // namespace report
