// SPDX-License-Identifier: MIT
// Gathers bands into one page.
#pragma once

#include "report/layout/measuredband.h"
#include "report/layout/page.h"

namespace report {

class PageBuilder {
public:
    /// With the sides and the fills of its boxes.
    void add(MeasuredBand band, Unit left, Unit top);
    /// The page, its strokes in one order (horizontal ones first, from top and left), each drawn once: strokes of one
    /// width that touch or overlap are one.
    [[nodiscard]] Page finish();

private:
    Page m_page;
};

} // namespace report
