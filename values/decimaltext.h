// SPDX-License-Identifier: MIT
// Decimal numbers as digits, so that no amount passes through binary fractions.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace values {

struct DecimalText {
    bool negative = false; ///< never for zero
    std::string whole; ///< without leading zeros; empty below one
    std::string fraction; ///< as many digits as written

    /// With exactly `scale` decimals, halves rounded away from zero.
    [[nodiscard]] DecimalText rounded(int scale) const;
    /// "-12.50"; "0" where nothing is left.
    [[nodiscard]] std::string text() const;
};

/// Blanks around, a sign, digits with at most one point; nothing for any other text.
[[nodiscard]] std::optional<DecimalText> parseDecimal(std::string_view text);

/// Whether the whole number lies in the range of a four-byte integer.
[[nodiscard]] bool fitsInt(const DecimalText &number);

} // namespace values
