// SPDX-License-Identifier: MIT
// Breaks a text into lines, and finds the size and the box that hold all of them.
#pragma once

#include "report/layout/page.h"

#include <QStringList>

namespace report {

class Fonts;

/// Type gets smaller in steps of this (tenths of a point).
inline constexpr int ShrinkStep = 5;
/// Words are not printed smaller than this, unless the template says so; they wrap instead.
inline constexpr int SmallestWords = 75;

struct FittedText {
    int size = 0; ///< of the font, tenths of a point
    QStringList lines; ///< broken at word boundaries or, failing that, anywhere
    Unit height = 0; ///< that a box must have to hold them
};

/// A text for a box of that width and height. Text that is to be clipped ends in an ellipsis where the box ends;
/// everything else is printed whole: smaller, then in more lines, then in a box as high as the result says. Digits of
/// an amount stay on one line; where no size will do they are printed as "####". Text in boxes that grow is printed
/// `smaller` by so many tenths of a point, but not smaller than words are.
[[nodiscard]] FittedText fitText(const Fonts &fonts, const TextItem &item, const QString &text, const Rect &box,
                                 int smaller = 0);

/// Sets font and lines of `target`, whose box they are placed in.
void placeText(const Fonts &fonts, TextBox &target, const FittedText &fitted);
/// Places the lines that `target` has into its box.
void placeLines(const Fonts &fonts, TextBox &target, VerticalAlign vertical);

/// Lines of that font follow each other at this distance.
[[nodiscard]] Unit lineHeight(const FontStyle &font);
/// Of a box that holds so many lines.
[[nodiscard]] Unit heightOfLines(const FontStyle &font, qsizetype lines);

} // namespace report
