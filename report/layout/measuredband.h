// SPDX-License-Identifier: MIT
// A band with its values, as high as they need it, not yet on a page.
#pragma once

#include "report/layout/page.h"
#include "report/values/evaluator.h"

namespace report {

class Fonts;

/// Places count from the band's corner.
struct MeasuredBand {
    const Band *source = nullptr; ///< lives as long as the template
    Unit height = 0;
    std::vector<TextBox> texts;
    std::vector<Stroke> lines;
};

/// The values of a band's texts, not yet in lines. Throws TemplateError, with the line of the text, for a value that
/// the text cannot be made of.
[[nodiscard]] std::vector<TextBox> valuesOf(const Template &source, const Band &band, const Evaluator &evaluator,
                                            const Place &place);

/// Makes the boxes as high as their texts; text in boxes that grow is printed so many tenths of a point smaller.
[[nodiscard]] MeasuredBand measureBand(const Band &band, std::vector<TextBox> values, const Fonts &fonts,
                                       int smaller = 0);

} // namespace report
