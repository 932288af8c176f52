// SPDX-License-Identifier: MIT
// Powers of ten without rounding.
#pragma once

#include <array>
#include <limits>

namespace values {

/// The highest power of ten that is exact in a long double: 27 with a 64-bit mantissa, 22 with a 53-bit one.
inline constexpr int ExactPowers = std::numeric_limits<long double>::digits >= 64 ? 27 : 22;

/// Ten to the position.
inline constexpr auto PowersOfTen = [] {
    std::array<long double, ExactPowers + 1> powers{};
    long double power = 1;
    for (long double &entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}();

} // namespace values
