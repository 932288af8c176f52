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
/// Printing gets smaller in steps of this, to this size (tenths of a point).
constexpr int ShrinkStep = 5;
constexpr int SmallestSize = 50;
/// A text this much too wide still counts as fitting: measures are rounded.
constexpr double Tolerance = 1;

constexpr QChar Ellipsis = u'…';

Unit lineHeight(const FontStyle &font)
{
    return static_cast<Unit>(std::lround(LineSpacing * Fonts::em(font)));
}

void appendBroken(const Fonts &fonts, const FontStyle &style, const QString &paragraph, Unit width, QStringList &lines)
{
    QTextLayout layout(paragraph, fonts.font(style));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width + Tolerance);
        QString text = paragraph.mid(line.textStart(), line.textLength());
        while (text.endsWith(u' '))
            text.chop(1);
        lines.append(text);
    }
    layout.endLayout();
}

bool isWider(const Fonts &fonts, const FontStyle &style, const QString &text, Unit width)
{
    return fonts.width(style, text) > width + Tolerance;
}

QStringList brokenLines(const Fonts &fonts, const FontStyle &style, const QString &text, bool wrap, Unit width)
{
    QStringList lines;
    for (const QString &paragraph : text.split(u'\n')) {
        if (wrap && isWider(fonts, style, paragraph, width))
            appendBroken(fonts, style, paragraph, width, lines);
        else
            lines.append(paragraph);
    }
    return lines;
}

int roomForLines(const FontStyle &font, Unit height)
{
    return std::max(1, height / lineHeight(font));
}

bool fits(const Fonts &fonts, const FontStyle &style, const QStringList &lines, Unit width, Unit height)
{
    // A single line may be taller than a low box: there is nothing to gain by leaving it out.
    if (lines.size() > roomForLines(style, height))
        return false;
    return std::none_of(lines.begin(), lines.end(),
                        [&](const QString &line) { return isWider(fonts, style, line, width); });
}

QString hashes(const Fonts &fonts, const FontStyle &style, Unit width)
{
    const double each = fonts.width(style, u"#");
    return QString(std::max(1, static_cast<int>(width / each)), u'#');
}

void cutLines(const Fonts &fonts, const FontStyle &style, QStringList &lines, Unit width, Unit height)
{
    const int room = roomForLines(style, height);
    if (lines.size() > room) {
        lines.resize(room);
        lines.last() += Ellipsis;
    }
    for (QString &line : lines) {
        if (isWider(fonts, style, line, width))
            line = fonts.metrics(style).elidedText(line, Qt::ElideRight, width);
    }
}

void placeLines(const Fonts &fonts, TextBox &target, const QStringList &lines)
{
    const TextItem &item = *target.item;
    const Unit height = lineHeight(target.font);
    const Unit spare = target.box.height - height * static_cast<Unit>(lines.size());
    Unit top = target.box.top + spare / 2;
    if (item.vertical == VerticalAlign::Top)
        top = target.box.top + std::min(VerticalPadding, std::max(0, spare));
    else if (item.vertical == VerticalAlign::Bottom)
        top = target.box.bottom() - height * static_cast<Unit>(lines.size());
    const double em = Fonts::em(target.font);
    const Unit above = static_cast<Unit>(std::lround((LineSpacing - 1) / 2 * em + Ascent * em));
    const Unit width = target.box.width - 2 * item.padding;
    target.lines.clear();
    for (const QString &line : lines) {
        Unit left = target.box.left + item.padding;
        if (item.horizontal != HorizontalAlign::Left) {
            const Unit free = width - static_cast<Unit>(std::lround(fonts.width(target.font, line)));
            left += item.horizontal == HorizontalAlign::Right ? free : free / 2;
        }
        if (!line.isEmpty())
            target.lines.push_back({left, top + above, line});
        top += height;
    }
}

Unit innerWidth(const TextItem &item, Unit width)
{
    return std::max(1, width - 2 * item.padding);
}

} // namespace

BrokenText breakText(const Fonts &fonts, const TextItem &item, Unit width, const QString &text)
{
    BrokenText broken;
    broken.lines = brokenLines(fonts, item.font, text, item.wrap, innerWidth(item, width));
    broken.height = lineHeight(item.font) * static_cast<Unit>(broken.lines.size()) + 2 * VerticalPadding;
    return broken;
}

void fitText(const Fonts &fonts, TextBox &target)
{
    const TextItem &item = *target.item;
    const Unit width = innerWidth(item, target.box.width);
    fitText(fonts, target, brokenLines(fonts, item.font, target.text, item.wrap, width));
}

void fitText(const Fonts &fonts, TextBox &target, QStringList lines)
{
    const TextItem &item = *target.item;
    target.font = item.font;
    target.lines.clear();
    if (target.text.isEmpty())
        return;
    const Unit width = innerWidth(item, target.box.width);
    const bool mustStayWhole = item.text.holdsNumber();
    bool whole = fits(fonts, target.font, lines, width, target.box.height);
    while (!whole && (mustStayWhole || item.overflow == Overflow::Shrink)
           && target.font.size - ShrinkStep >= SmallestSize) {
        target.font.size -= ShrinkStep;
        lines = brokenLines(fonts, target.font, target.text, item.wrap, width);
        whole = fits(fonts, target.font, lines, width, target.box.height);
    }
    if (!whole && mustStayWhole)
        lines = {hashes(fonts, target.font, width)};
    else if (!whole)
        cutLines(fonts, target.font, lines, width, target.box.height);
    placeLines(fonts, target, lines);
}

} // namespace report
