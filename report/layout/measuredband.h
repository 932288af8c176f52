// SPDX-License-Identifier: MIT
// A band with its values, as high as they need it, not yet on a page.
#pragma once

#include "report/layout/page.h"
#include "report/values/evaluator.h"

namespace report {

class Fonts;

struct MeasuredBand {
    Unit height = 0;
    Page content; ///< places count from the band's corner; a box's sides are strokes already
};

/// Throws TemplateError, with the line of the text, for a value that the text cannot be made of.
[[nodiscard]] MeasuredBand measureBand(const Template &source, const Band &band, const Evaluator &evaluator,
                                       const Place &place, const Fonts &fonts);

/// Cuts a band that no page can hold: what lies below `height` is left out, and a text that reaches over it ends in an
/// ellipsis.
void cutBand(MeasuredBand &band, Unit height, const Fonts &fonts);

} // namespace report
