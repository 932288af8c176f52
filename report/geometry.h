// SPDX-License-Identifier: MIT
// The one unit of everything on paper.
#pragma once

namespace report {

/// Hundredths of a millimetre, from the upper left corner of the sheet. At 2540 dots an inch a unit is a dot, which is
/// the resolution that texts are measured at.
using Unit = int;

inline constexpr int UnitsPerMillimetre = 100;
inline constexpr int UnitsPerInch = 2540;

struct Rect {
    Unit left = 0;
    Unit top = 0;
    Unit width = 0;
    Unit height = 0;

    [[nodiscard]] constexpr Unit right() const noexcept { return left + width; }
    [[nodiscard]] constexpr Unit bottom() const noexcept { return top + height; }
    friend constexpr bool operator==(const Rect &, const Rect &) = default;
};

} // namespace report
