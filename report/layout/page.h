// SPDX-License-Identifier: MIT
// A page laid out: what is drawn, and where.
#pragma once

#include "report/geometry.h"
#include "report/template/template.h"

#include <QString>

#include <optional>
#include <vector>

namespace report {

struct Fill {
    Rect area;
    QRgb colour = 0;
    friend bool operator==(const Fill &, const Fill &) = default;
};

/// Horizontal or vertical; left <= right, top <= bottom.
struct Stroke {
    Unit left = 0;
    Unit top = 0;
    Unit right = 0;
    Unit bottom = 0;
    Unit width = 0;
    friend bool operator==(const Stroke &, const Stroke &) = default;
};

struct TextLine {
    Unit left = 0;
    Unit baseline = 0;
    QString text;
    friend bool operator==(const TextLine &, const TextLine &) = default;
};

/// A text in its box, broken into lines.
struct TextBox {
    Rect box;
    QString text; ///< whole, whatever of it the box can hold
    FontStyle font; ///< that of the lines, which may be smaller than the template's
    std::vector<TextLine> lines; ///< empty ones included
    bool parted = false; ///< a page break went through the box; its lines are not broken anew
    std::optional<double> number; ///< the text is this number in a display format
    const TextItem *item = nullptr; ///< lives as long as the template
};

/// Painted in this order.
struct Page {
    std::vector<Fill> fills;
    std::vector<Stroke> strokes;
    std::vector<TextBox> texts;
};

} // namespace report
