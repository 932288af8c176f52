// SPDX-License-Identifier: MIT
// Declared types read and named.
#include "vortaq/sql/Type.h"

#include "vortaq/sql/Catalog.h"

#include <array>
#include <charconv>

namespace vortaq::sql {

namespace {

/// "varchar ( 20 )" taken apart.
struct Declaration {
    std::string name;
    std::array<int, 2> numbers{};
    int count = 0;
};

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

std::optional<int> positiveNumber(std::string_view text)
{
    text = trimmed(text);
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || value < 0)
        return std::nullopt;
    return value;
}

std::optional<Declaration> takeApart(std::string_view declared)
{
    Declaration result;
    const std::size_t open = declared.find('(');
    result.name = foldName(trimmed(declared.substr(0, open)));
    if (open == std::string_view::npos)
        return result;
    std::string_view inside = trimmed(declared.substr(open + 1));
    if (inside.empty() || inside.back() != ')')
        return std::nullopt;
    inside.remove_suffix(1);
    while (true) {
        const std::size_t comma = inside.find(',');
        const auto number = positiveNumber(inside.substr(0, comma));
        if (!number || result.count == 2)
            return std::nullopt;
        result.numbers[static_cast<std::size_t>(result.count++)] = *number;
        if (comma == std::string_view::npos)
            return result;
        inside.remove_prefix(comma + 1);
    }
}

std::optional<Type> textType(const Declaration &declaration)
{
    const int size = declaration.count == 0 ? 1 : declaration.numbers[0];
    if (declaration.count > 1 || size < 1 || size > longestVarchar)
        return std::nullopt;
    return varcharType(size);
}

std::optional<Type> exactType(const Declaration &declaration)
{
    const int digits = declaration.count == 0 ? 18 : declaration.numbers[0];
    const int scale = declaration.count < 2 ? 0 : declaration.numbers[1];
    if (digits < 1 || digits > mostDigits || scale > digits)
        return std::nullopt;
    return decimalType(digits, scale);
}

} // namespace

std::optional<Type> parseDeclaredType(std::string_view declared)
{
    const auto declaration = takeApart(declared);
    if (!declaration)
        return std::nullopt;
    const std::string &name = declaration->name;
    if (name == "varchar" || name == "char" || name == "nvarchar" || name == "nchar")
        return textType(*declaration);
    if (name == "decimal" || name == "numeric")
        return exactType(*declaration);
    if (name == "datetime" && declaration->count <= 1)
        return Type{Kind::DateTime, 0, 0};
    if (declaration->count != 0)
        return std::nullopt;
    if (name == "int" || name == "integer" || name == "smallint" || name == "tinyint")
        return intType();
    if (name == "bigint")
        return decimalType(19, 0);
    if (name == "money")
        return decimalType(19, 4);
    if (name == "float" || name == "real")
        return Type{Kind::Float, 0, 0};
    if (name == "date")
        return Type{Kind::Date, 0, 0};
    if (name == "smalldatetime")
        return Type{Kind::DateTime, 0, 0};
    return std::nullopt;
}

std::string typeName(const Type &type)
{
    switch (type.kind) {
    case Kind::Null:
        return "null";
    case Kind::Varchar:
        return "varchar(" + std::to_string(type.size) + ")";
    case Kind::Int:
        return "int";
    case Kind::Decimal:
        return "decimal(" + std::to_string(type.size) + "," + std::to_string(type.scale) + ")";
    case Kind::Float:
        return "float";
    case Kind::Date:
        return "date";
    case Kind::DateTime:
        return "datetime";
    }
    return {};
}

} // namespace vortaq::sql
