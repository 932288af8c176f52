// SPDX-License-Identifier: MIT
// Breaks a text into the lines that its box can hold.
#pragma once

#include "report/layout/page.h"

#include <QStringList>

namespace report {

class Fonts;

/// A text in lines of the template's font. Lines break at word boundaries or, failing that, anywhere.
struct BrokenText {
    QStringList lines;
    Unit height = 0; ///< that a box needs to hold them all
};
[[nodiscard]] BrokenText breakText(const Fonts &fonts, const TextItem &item, Unit width, const QString &text);

/// Sets `target.lines` and `target.font` from `target.item`, `target.text` and `target.box`. What the box cannot hold
/// ends in an ellipsis, but digits of an amount are never cut off: they are printed smaller, and as "####" where no
/// size will do.
void fitText(const Fonts &fonts, TextBox &target);
/// The same for a text that is broken for the width of its box already.
void fitText(const Fonts &fonts, TextBox &target, QStringList lines);

} // namespace report
