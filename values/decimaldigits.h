// SPDX-License-Identifier: MIT
// The decimal digits of a number, as display formats round and show them.
#pragma once

#include <string>

namespace values {

/// A magnitude: 0.digits times ten to the exponent.
struct DecimalDigits {
    std::string digits; ///< none, or zeros only, for zero
    int exponent = 0;

    /// The digit at a place; 1 is the first place behind the point, 0 the one before it.
    [[nodiscard]] char at(int place) const noexcept;
    [[nodiscard]] bool isZero() const noexcept;
    /// Rounds to places behind the point, halves away from zero.
    void roundTo(int places);
};

/// 18 significant digits, correctly rounded: the runtime converts an extended number to so many and works on them, so
/// what was read as 1.005 is 1.005 again. `magnitude` is finite and not negative.
[[nodiscard]] DecimalDigits decimalDigits(long double magnitude);

} // namespace values
