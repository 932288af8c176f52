// SPDX-License-Identifier: MIT
// A template as read: bands of texts and lines at fixed places, immutable.
#pragma once

#include "report/geometry.h"
#include "report/template/textpattern.h"

#include <QRgb>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace report {

enum class HorizontalAlign { Left, Center, Right };
enum class VerticalAlign { Top, Center, Bottom };

/// What becomes of a text that its box cannot hold. Where a box gets higher, what stands below moves down.
enum class Overflow {
    Clip, ///< it ends in an ellipsis
    Shrink, ///< its font gets smaller, down to a limit; then it wraps; then the box gets higher
    Grow ///< it wraps, and the box gets higher
};

/// Sides of a box that are drawn, to be combined.
using Sides = unsigned;
inline constexpr Sides NoSide = 0;
inline constexpr Sides LeftSide = 1;
inline constexpr Sides TopSide = 2;
inline constexpr Sides RightSide = 4;
inline constexpr Sides BottomSide = 8;
inline constexpr Sides AllSides = 15;

struct FontStyle {
    int family = 0; ///< index into Template::families
    int size = 100; ///< tenths of a point
    bool bold = false;

    friend bool operator==(const FontStyle &, const FontStyle &) = default;
};

/// A box with text, with or without sides; every cell of a table is one. Places count from the band's corner.
struct TextItem {
    Rect box;
    TextPattern text;
    FontStyle font;
    HorizontalAlign horizontal = HorizontalAlign::Left;
    VerticalAlign vertical = VerticalAlign::Center;
    bool wrap = false;
    Overflow overflow = Overflow::Shrink;
    Unit padding = 0; ///< on the left and on the right
    Sides sides = NoSide;
    Unit lineWidth = 0;
    std::optional<QRgb> fill;
    int sourceLine = 0; ///< line of the template's file
};

struct LineItem {
    Unit left = 0;
    Unit top = 0;
    Unit right = 0;
    Unit bottom = 0;
    Unit width = 0;
};

struct Band {
    Unit height = 0;
    std::vector<TextItem> texts;
    std::vector<LineItem> lines;
    int sourceLine = 0;
};

struct Template {
    QString file; ///< path as it was given
    int sourceLine = 1; ///< of the outermost element
    QString title;
    TextPattern fileName; ///< of the document when it is saved
    Unit pageWidth = 0;
    Unit pageHeight = 0;
    Unit marginLeft = 0;
    Unit marginTop = 0;
    Unit marginRight = 0;
    Unit marginBottom = 0;
    std::vector<QStringList> families; ///< font families in order of preference; the first list is the default

    std::optional<Band> titleBand; ///< once, at the beginning
    std::optional<Band> pageHeader; ///< on every page
    bool pageHeaderOnFirstPage = true;
    std::optional<Band> columnHeader; ///< above the rows, on every page that has rows
    std::optional<Band> groupHeader; ///< before the rows of one group, and again at the top of a page inside a group
    std::optional<Band> detail; ///< once a row
    std::optional<Band> groupFooter; ///< behind the rows of one group
    std::optional<Band> footer; ///< once, behind the rows
    std::optional<Band> pageFooter; ///< at the lower end of every page
    QString groupField; ///< rows with the same text in it, one after the other, are a group; empty: no groups

    [[nodiscard]] Unit bodyWidth() const noexcept { return pageWidth - marginLeft - marginRight; }
};

using TemplatePtr = std::shared_ptr<const Template>;

} // namespace report
