// SPDX-License-Identifier: MIT
#include "report/layout/pagebuilder.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace report {

namespace {

bool isHorizontal(const Stroke &stroke)
{
    return stroke.top == stroke.bottom;
}

/// Strokes on one line stand side by side in this order.
auto order(const Stroke &stroke)
{
    const bool horizontal = isHorizontal(stroke);
    return std::tuple(!horizontal, horizontal ? stroke.top : stroke.left, stroke.width,
                      horizontal ? stroke.left : stroke.top, horizontal ? stroke.right : stroke.bottom);
}

bool touches(const Stroke &left, const Stroke &right)
{
    if (isHorizontal(left) != isHorizontal(right) || left.width != right.width)
        return false;
    return isHorizontal(left) ? left.top == right.top && right.left <= left.right
                              : left.left == right.left && right.top <= left.bottom;
}

std::vector<Stroke> merged(std::vector<Stroke> strokes)
{
    std::sort(strokes.begin(), strokes.end(),
              [](const Stroke &left, const Stroke &right) { return order(left) < order(right); });
    std::vector<Stroke> result;
    for (const Stroke &stroke : strokes) {
        if (!result.empty() && touches(result.back(), stroke)) {
            result.back().right = std::max(result.back().right, stroke.right);
            result.back().bottom = std::max(result.back().bottom, stroke.bottom);
        } else {
            result.push_back(stroke);
        }
    }
    return result;
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

void PageBuilder::add(MeasuredBand band, Unit left, Unit top)
{
    for (Stroke &line : band.lines) {
        line.left += left;
        line.right += left;
        line.top += top;
        line.bottom += top;
        m_page.strokes.push_back(line);
    }
    for (TextBox &text : band.texts) {
        text.box.left += left;
        text.box.top += top;
        for (TextLine &line : text.lines) {
            line.left += left;
            line.baseline += top;
        }
        addSides(text, m_page.strokes);
        if (text.item->fill)
            m_page.fills.push_back({text.box, *text.item->fill});
    }
    std::move(band.texts.begin(), band.texts.end(), std::back_inserter(m_page.texts));
}

Page PageBuilder::finish()
{
    m_page.strokes = merged(std::move(m_page.strokes));
    return std::exchange(m_page, {});
}

} // namespace report
