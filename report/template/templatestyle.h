// SPDX-License-Identifier: MIT
// How texts look: attributes that an element hands on to what stands inside it.
#pragma once

#include "report/template/template.h"

#include <optional>
#include <vector>

namespace report {

class Attributes;

struct TemplateStyle {
    FontStyle font;
    std::optional<HorizontalAlign> horizontal; ///< none: numbers on the right, everything else on the left
    VerticalAlign vertical = VerticalAlign::Center;
    bool wrap = false;
    Overflow overflow = Overflow::Shrink;
    Sides sides = NoSide;
    Unit lineWidth = 20;

    /// Takes font, size, bold, align, valign, wrap, overflow, border and line; a new font joins `families`.
    void take(Attributes &attributes, std::vector<QStringList> &families);
    /// A text that looks so; `text` decides where no alignment is given.
    [[nodiscard]] TextItem item(const Rect &box, TextPattern text) const;
};

/// Font families by commas, the preferred one first; the system's own choice of Chinese fonts follows.
[[nodiscard]] QStringList fontFamilies(const QString &list);

} // namespace report
