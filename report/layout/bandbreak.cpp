// SPDX-License-Identifier: MIT
#include "report/layout/bandbreak.h"

#include "report/layout/growth.h"
#include "report/layout/textfit.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace report {

namespace {

/// Shorter texts are kept in one piece where they can be, and a longer one leaves so many lines on either side.
constexpr int LinesInOnePiece = 3;
constexpr int LinesOnEitherSide = 2;

enum class Manner {
    Neat, ///< short texts stay in one piece
    Needy ///< any text that has several lines is broken
};

bool crosses(const Rect &box, Unit place)
{
    return box.top < place && place < box.bottom();
}

int lineCount(const TextBox &text)
{
    return static_cast<int>(text.lines.size());
}

bool holdsEveryLine(const TextBox &text, Unit height)
{
    return lineHeight(text.font) * lineCount(text) <= height;
}

int linesAbove(const TextBox &text, Unit place)
{
    const Unit padding = heightOfLines(text.font, 0) / 2;
    const int room = std::max(0, (place - text.box.top - padding) / lineHeight(text.font));
    const int count = lineCount(text);
    const bool leavesOneOver = room == count - 1 && count > LinesInOnePiece;
    return std::min(count, leavesOneOver ? room - 1 : room);
}

bool mayBreak(const TextBox &text, Unit place, Manner manner)
{
    if (!text.parted && text.box.height <= text.item->box.height)
        return false;
    if (text.lines.empty() || holdsEveryLine(text, place - text.box.top))
        return true;
    const int above = linesAbove(text, place);
    if (manner == Manner::Needy)
        return above > 0;
    return lineCount(text) > LinesInOnePiece && above >= LinesOnEitherSide;
}

/// The lowest place above `room` where every box may be broken; 0 or less where there is none.
Unit breakPlace(const MeasuredBand &band, Unit room, Manner manner)
{
    Unit place = room;
    for (bool moved = true; moved && place > 0;) {
        moved = false;
        for (const TextBox &text : band.texts) {
            if (!crosses(text.box, place) || mayBreak(text, place, manner))
                continue;
            place = text.box.top;
            moved = true;
        }
    }
    return place;
}

/// Moves the lines behind the first `count` ones, and the text that they were made of.
void moveLines(TextBox &from, TextBox &to, int count)
{
    qsizetype end = 0;
    for (int at = 0; at < count; ++at) {
        const QString &line = from.lines[static_cast<std::size_t>(at)].text;
        const qsizetype begin = from.text.indexOf(line, end);
        if (begin >= 0)
            end = begin + line.size();
    }
    to.text = from.text.mid(end);
    from.text.truncate(end);
    while (to.text.startsWith(u' ') || to.text.startsWith(u'\n'))
        to.text.remove(0, 1);
    to.lines.assign(from.lines.begin() + count, from.lines.end());
    from.lines.resize(static_cast<std::size_t>(count));
}

/// Leaves in `text` what stands above the place and returns what stands below.
TextBox takeLower(TextBox &text, Unit place, const Fonts &fonts)
{
    TextBox lower = text;
    lower.box.top = place;
    lower.box.height = text.box.bottom() - place;
    text.box.height = place - text.box.top;
    text.parted = true;
    lower.parted = true;
    if (text.lines.empty())
        return lower;
    const bool caption = text.item->text.isLiteral();
    if (caption && holdsEveryLine(text, text.box.height) && holdsEveryLine(text, lower.box.height)) {
        placeLines(fonts, text, text.item->vertical);
        placeLines(fonts, lower, text.item->vertical);
        return lower;
    }
    moveLines(text, lower, holdsEveryLine(text, text.box.height) ? lineCount(text) : linesAbove(text, place));
    if (lower.lines.empty())
        lower.number.reset();
    placeLines(fonts, text, VerticalAlign::Top);
    placeLines(fonts, lower, VerticalAlign::Top);
    return lower;
}

std::vector<TextBox> takeTexts(std::vector<TextBox> &texts, Unit place, const Fonts &fonts)
{
    std::vector<TextBox> upper;
    std::vector<TextBox> lower;
    for (TextBox &text : texts) {
        if (text.box.top >= place) {
            lower.push_back(std::move(text));
            continue;
        }
        if (crosses(text.box, place))
            lower.push_back(takeLower(text, place, fonts));
        upper.push_back(std::move(text));
    }
    texts = std::move(lower);
    return upper;
}

std::vector<Stroke> takeLines(std::vector<Stroke> &lines, Unit place)
{
    std::vector<Stroke> upper;
    std::vector<Stroke> lower;
    for (const Stroke &line : lines) {
        if (line.top <= place)
            upper.push_back({line.left, line.top, line.right, std::min(line.bottom, place), line.width});
        if (line.bottom > place)
            lower.push_back({line.left, std::max(line.top, place), line.right, line.bottom, line.width});
    }
    lines = std::move(lower);
    return upper;
}

/// Lets the rest begin at its top, with room for the lines that its boxes took over.
void settle(MeasuredBand &band, Unit place, const Fonts &fonts)
{
    Growth growth;
    Unit top = std::numeric_limits<Unit>::max();
    for (const TextBox &text : band.texts) {
        top = std::min(top, text.box.top);
        const Unit needed = text.parted ? heightOfLines(text.font, lineCount(text)) : 0;
        if (!text.lines.empty() && needed > text.box.height)
            growth.add(text.box.bottom(), needed - text.box.height);
    }
    for (const Stroke &line : band.lines)
        top = std::min(top, line.top);
    if (band.texts.empty() && band.lines.empty())
        top = place;
    for (TextBox &text : band.texts) {
        text.box = growth.moved(text.box);
        text.box.top -= top;
        const bool goesOn = text.parted && !text.item->text.isLiteral();
        placeLines(fonts, text, goesOn ? VerticalAlign::Top : text.item->vertical);
    }
    for (Stroke &line : band.lines) {
        line.top = growth.moved(line.top) - top;
        line.bottom = growth.moved(line.bottom) - top;
    }
    band.height = growth.moved(band.height) - top;
}

} // namespace

MeasuredBand takeUpperPart(MeasuredBand &band, Unit room, const Fonts &fonts)
{
    Unit place = breakPlace(band, room, Manner::Neat);
    if (place <= 0)
        place = breakPlace(band, room, Manner::Needy);
    if (place <= 0)
        return {band.source, 0, {}, {}};
    MeasuredBand upper{band.source, place, takeTexts(band.texts, place, fonts), takeLines(band.lines, place)};
    settle(band, place, fonts);
    return upper;
}

} // namespace report
