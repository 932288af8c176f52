// SPDX-License-Identifier: MIT
// Amounts to text and text to amounts.
#pragma once

#include <QString>

#include <string_view>

namespace values {

/// A number that a text was expected to hold and does not; `what()` names the text (UTF-8, in Chinese).
/// Thrown as std::invalid_argument by the parsers below.

/// Decimal text with blanks around it ("           123.45") as an extended-precision number, correctly rounded.
/// Sign, digits, one point and an exponent are accepted; empty text, other characters and infinities are not.
[[nodiscard]] long double parseAmount(std::string_view utf8);
[[nodiscard]] long double parseAmount(const QString &text);

/// Strict integer: leading blanks and a sign are accepted, trailing blanks, "1.0" and empty text are not.
[[nodiscard]] int parseInteger(const QString &text);

/// The number as a display format shows it: the Pascal runtime's FormatFloat. Digit places "0" and "#", a "," for
/// thousands, "E+", "E-", "e+" or "e-" and up to four zeros for a power of ten (the places before the point hold as
/// many digits as there are places; "+" shows the sign of a positive power, the zeros are its least digits), up to
/// three sections by ";" (positive, negative, zero), literal text in quotes or as it stands; halves round away from
/// zero on the decimal digits. An empty format shows 15 significant digits, as a power of ten below 0.00001 and from
/// 1E15 on.
[[nodiscard]] QString formatFloat(const QString &format, long double value);

/// Whether the format shows thousands apart.
[[nodiscard]] bool showsThousands(const QString &format);

/// Two decimals, halves to the even neighbour.
[[nodiscard]] double roundToCents(double value);

} // namespace values
