// SPDX-License-Identifier: MIT
#include "report/layout/measuredband.h"

#include "report/layout/fonts.h"
#include "report/layout/textfit.h"
#include "report/template/templateerror.h"

#include <algorithm>
#include <map>
#include <utility>

namespace report {

namespace {

/// How far the lower edges of boxes move down for the texts in them. Whatever begins or ends at such an edge, or
/// further below, moves along.
class Growth {
public:
    void add(Unit edge, Unit amount)
    {
        Unit &known = m_amounts[edge];
        known = std::max(known, amount);
    }
    [[nodiscard]] bool none() const noexcept { return m_amounts.empty(); }
    [[nodiscard]] Unit moved(Unit edge) const
    {
        Unit result = edge;
        for (const auto &[from, amount] : m_amounts) {
            if (from <= edge)
                result += amount;
        }
        return result;
    }

private:
    std::map<Unit, Unit> m_amounts;
};

TextBox valueOf(const Template &source, const TextItem &item, const Evaluator &evaluator, const Place &place)
{
    TextBox text;
    text.box = item.box;
    text.item = &item;
    try {
        Evaluator::Value value = evaluator.evaluate(item.text, place);
        text.text = std::move(value.text);
        text.number = value.number;
    } catch (const ValueError &error) {
        throw TemplateError(source.file, item.sourceLine, QString::fromUtf8(error.what()));
    }
    return text;
}

void addSides(const TextBox &text, std::vector<Stroke> &strokes)
{
    const Rect &box = text.box;
    const Sides sides = text.item->sides;
    const Unit width = text.item->lineWidth;
    if ((sides & LeftSide) != 0)
        strokes.push_back({box.left, box.top, box.left, box.bottom(), width});
    if ((sides & TopSide) != 0)
        strokes.push_back({box.left, box.top, box.right(), box.top, width});
    if ((sides & RightSide) != 0)
        strokes.push_back({box.right(), box.top, box.right(), box.bottom(), width});
    if ((sides & BottomSide) != 0)
        strokes.push_back({box.left, box.bottom(), box.right(), box.bottom(), width});
}

} // namespace

MeasuredBand measureBand(const Template &source, const Band &band, const Evaluator &evaluator, const Place &place,
                         const Fonts &fonts)
{
    MeasuredBand measured;
    Growth growth;
    std::vector<std::optional<BrokenText>> broken;
    for (const TextItem &item : band.texts) {
        TextBox text = valueOf(source, item, evaluator, place);
        broken.emplace_back();
        if (item.overflow == Overflow::Grow) {
            broken.back() = breakText(fonts, item, item.box.width, text.text);
            if (broken.back()->height > item.box.height)
                growth.add(item.box.bottom(), broken.back()->height - item.box.height);
        }
        measured.content.texts.push_back(std::move(text));
    }
    for (std::size_t at = 0; at < broken.size(); ++at) {
        TextBox &text = measured.content.texts[at];
        if (!growth.none()) {
            const Unit bottom = growth.moved(text.box.bottom());
            text.box.top = growth.moved(text.box.top);
            text.box.height = bottom - text.box.top;
        }
        if (broken[at])
            fitText(fonts, text, std::move(broken[at]->lines));
        else
            fitText(fonts, text);
        addSides(text, measured.content.strokes);
        if (text.item->fill)
            measured.content.fills.push_back({text.box, *text.item->fill});
    }
    for (const LineItem &line : band.lines)
        measured.content.strokes.push_back(
            {line.left, growth.moved(line.top), line.right, growth.moved(line.bottom), line.width});
    measured.height = growth.moved(band.height);
    return measured;
}

void cutBand(MeasuredBand &band, Unit height, const Fonts &fonts)
{
    if (band.height <= height)
        return;
    band.height = height;
    Page &content = band.content;
    std::erase_if(content.texts, [height](const TextBox &text) { return text.box.top >= height; });
    std::erase_if(content.fills, [height](const Fill &fill) { return fill.area.top >= height; });
    std::erase_if(content.strokes, [height](const Stroke &stroke) { return stroke.top > height; });
    for (TextBox &text : content.texts) {
        if (text.box.bottom() <= height)
            continue;
        text.box.height = height - text.box.top;
        fitText(fonts, text);
    }
    for (Fill &fill : content.fills)
        fill.area.height = std::min(fill.area.height, height - fill.area.top);
    for (Stroke &stroke : content.strokes) {
        if (stroke.top == stroke.bottom)
            continue;
        stroke.bottom = std::min(stroke.bottom, height);
    }
    // The lower side of what was cut closes it where the page ends.
    for (const TextBox &text : content.texts) {
        if (text.box.bottom() == height && (text.item->sides & BottomSide) != 0)
            content.strokes.push_back({text.box.left, height, text.box.right(), height, text.item->lineWidth});
    }
}

} // namespace report
