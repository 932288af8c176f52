// SPDX-License-Identifier: MIT
// Exact decimal numbers: whole units of the last decimal place.
//
// SQLite keeps a money column as the binary number nearest to the amount and does not enforce its scale. All that adds,
// rounds or prints an amount goes through units, so that ten times 0.1 is 1.00.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace values {

__extension__ using Units = __int128;

/// The most decimals, and the most digits, of a decimal type.
inline constexpr int mostDecimals = 38;

/// The units nearest to a number, halves away from zero; nothing when they would not fit or the number is not finite.
[[nodiscard]] std::optional<Units> unitsOf(double number, int scale);
[[nodiscard]] std::optional<Units> unitsOf(long long number, int scale);

/// "-12.345", blanks around it ignored; further decimals round with halves away from zero. Nothing for other text and
/// for more digits than fit.
[[nodiscard]] std::optional<Units> parseUnits(std::string_view text, int scale);

/// From one scale to another, rounding with halves away from zero; nothing when the result would not fit.
[[nodiscard]] std::optional<Units> rescaled(Units units, int from, int to);

/// True when the units have at most that many digits.
[[nodiscard]] bool fitsDigits(Units units, int digits);

/// The binary number nearest to the units; nothing when a binary number cannot tell them from their neighbours.
[[nodiscard]] std::optional<double> exactNumber(Units units, int scale);

/// Printed units, for example "-0.05".
class UnitsText {
public:
    UnitsText(Units units, int scale);
    /// Valid as long as the object lives.
    [[nodiscard]] std::string_view text() const { return {m_buffer.data() + m_begin, m_buffer.size() - m_begin}; }

private:
    static constexpr std::size_t bufferSize = 2 * mostDecimals + 4;

    std::array<char, bufferSize> m_buffer;
    std::size_t m_begin = bufferSize; // the text ends where the buffer does
};

} // namespace values
