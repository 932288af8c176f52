// SPDX-License-Identifier: MIT
// Breaks a band that the rest of a page cannot hold.
#pragma once

#include "report/layout/measuredband.h"

namespace report {

/// Takes off as much of a band as `room` holds; the rest stays in `band` and begins at its top. A break goes between
/// boxes, or through boxes that are higher than the template has them: their sides are closed there, their lines go on
/// in the rest, and captions stand again. Every other box, such as one for a signature, stays in one piece. The part
/// taken has no height where there is nothing to break.
[[nodiscard]] MeasuredBand takeUpperPart(MeasuredBand &band, Unit room, const Fonts &fonts);

} // namespace report
