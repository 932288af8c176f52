// SPDX-License-Identifier: MIT
// Amounts in Chinese capital numerals, as receipts carry them against tampering.
#pragma once

#include <QString>

namespace values {

/// 1234.56 as 壹仟贰佰叁拾肆元伍角陆分, rounded to the cent with halves away from zero. 整 ends an amount without
/// cents, 零 stands once for any digits of zero between others, 负 before an amount below zero. Throws
/// std::out_of_range where hasCapitals() is false.
[[nodiscard]] QString capitalAmount(long double yuan);

/// Amounts that the database's columns can hold have capitals: up to 13 digits before the point.
[[nodiscard]] bool hasCapitals(long double yuan);

} // namespace values
