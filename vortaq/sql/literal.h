// SPDX-License-Identifier: MIT
// Written values converted before a statement runs.
#pragma once

#include "vortaq/sql/expression.h"

#include <string_view>

namespace vortaq::sql {

enum class Misfit { None, NotConvertible, TooLong, OutOfRange };

struct ConvertedText {
    std::string text;
    Misfit misfit = Misfit::None;
};

/// The text of a Literal of type `from` as the text of one of type `to`, by the rules of T-SQL. `from` is Varchar, Int,
/// Decimal or a date; conversions between numbers and dates are the caller's to refuse.
[[nodiscard]] ConvertedText convertText(const std::string &text, const Type &from, const Type &to,
                                        Conversion::Mode mode);

/// “1x”不能转换为int
[[nodiscard]] std::string misfitMessage(Misfit misfit, const std::string &text, const Type &to);

/// The type of a written number: Int where it fits, else Decimal. Kind Null when it has too many digits.
[[nodiscard]] Type typeOfNumber(std::string_view digits);
/// The characters between the quotes, doubled quotes made single.
[[nodiscard]] std::string unquoted(std::string_view string);

} // namespace vortaq::sql
