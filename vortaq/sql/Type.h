// SPDX-License-Identifier: MIT
// The SQL types that statements are bound to.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vortaq::sql {

/// In rising order of precedence, as T-SQL converts mixed operands: text yields to numbers, numbers to dates.
enum class Kind { Null, Varchar, Int, Decimal, Float, Date, DateTime };

struct Type {
    Kind kind = Kind::Null;
    int size = 0; ///< Varchar: most characters; Decimal: all digits
    int scale = 0; ///< Decimal: digits behind the point

    friend bool operator==(const Type &, const Type &) = default;
};

inline constexpr int longestVarchar = 8000;
inline constexpr int mostDigits = 38;

/// Int is the four-byte integer; Float the eight-byte one.
[[nodiscard]] constexpr Type varcharType(int size)
{
    return {Kind::Varchar, size, 0};
}
[[nodiscard]] constexpr Type decimalType(int digits, int scale)
{
    return {Kind::Decimal, digits, scale};
}
[[nodiscard]] constexpr Type intType()
{
    return {Kind::Int, 0, 0};
}

[[nodiscard]] constexpr bool isNumber(Kind kind)
{
    return kind == Kind::Int || kind == Kind::Decimal || kind == Kind::Float;
}
[[nodiscard]] constexpr bool isDate(Kind kind)
{
    return kind == Kind::Date || kind == Kind::DateTime;
}

/// A declared type such as "varchar(20)", "decimal(15,2)", "int" or "date", in any letter case. char, nchar and
/// nvarchar count as varchar (without blank padding), numeric, money and bigint as decimal, smaller integers as int.
/// Nothing for a type that no statement can work with.
[[nodiscard]] std::optional<Type> parseDeclaredType(std::string_view declared);

/// "varchar(20)", "decimal(15,2)", "int" ... for messages and dumps.
[[nodiscard]] std::string typeName(const Type &type);

} // namespace vortaq::sql
