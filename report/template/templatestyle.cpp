// SPDX-License-Identifier: MIT
#include "report/template/templatestyle.h"

#include "report/template/attributes.h"

#include <algorithm>
#include <utility>

namespace report {

QStringList fontFamilies(const QString &list)
{
    QStringList families;
    for (const QString &family : list.split(u',', Qt::SkipEmptyParts))
        families.append(family.trimmed());
    families.append({QStringLiteral("Noto Sans CJK SC"), QStringLiteral("WenQuanYi Zen Hei")});
    families.removeDuplicates();
    return families;
}

void TemplateStyle::take(Attributes &attributes, std::vector<QStringList> &families)
{
    using Horizontal = Attributes::Choice<HorizontalAlign>;
    using Vertical = Attributes::Choice<VerticalAlign>;
    using Outcome = Attributes::Choice<Overflow>;
    static constexpr Horizontal Horizontals[] = {
        {u"left", HorizontalAlign::Left}, {u"center", HorizontalAlign::Center}, {u"right", HorizontalAlign::Right}};
    static constexpr Vertical Verticals[] = {
        {u"top", VerticalAlign::Top}, {u"center", VerticalAlign::Center}, {u"bottom", VerticalAlign::Bottom}};
    static constexpr Outcome Outcomes[] = {
        {u"clip", Overflow::Clip}, {u"shrink", Overflow::Shrink}, {u"grow", Overflow::Grow}};

    if (const auto list = attributes.text("font")) {
        const QStringList wanted = fontFamilies(*list);
        const auto known = std::find(families.begin(), families.end(), wanted);
        font.family = static_cast<int>(known - families.begin());
        if (known == families.end())
            families.push_back(wanted);
    }
    font.size = attributes.fontSize("size").value_or(font.size);
    font.bold = attributes.yesOrNo("bold").value_or(font.bold);
    if (const auto align = attributes.choice<HorizontalAlign>("align", Horizontals))
        horizontal = align;
    vertical = attributes.choice<VerticalAlign>("valign", Verticals).value_or(vertical);
    wrap = attributes.yesOrNo("wrap").value_or(wrap);
    if (const auto outcome = attributes.choice<Overflow>("overflow", Outcomes))
        overflow = *outcome;
    sides = attributes.sides("border").value_or(sides);
    lineWidth = attributes.length("line").value_or(lineWidth);
}

TextItem TemplateStyle::item(const Rect &box, TextPattern text) const
{
    TextItem item;
    item.box = box;
    item.font = font;
    item.horizontal = horizontal.value_or(text.isNumber() ? HorizontalAlign::Right : HorizontalAlign::Left);
    item.vertical = vertical;
    item.wrap = wrap || overflow == Overflow::Grow;
    item.overflow = overflow;
    item.sides = sides;
    item.lineWidth = lineWidth;
    item.text = std::move(text);
    return item;
}

} // namespace report
