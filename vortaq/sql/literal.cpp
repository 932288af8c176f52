// SPDX-License-Identifier: MIT
// The conversions of T-SQL on texts.
#include "vortaq/sql/literal.h"

#include "values/decimaltext.h"
#include "vortaq/sql/character.h"
#include "vortaq/sql/datetext.h"
#include "vortaq/sql/diagnostic.h"

#include <algorithm>

namespace vortaq::sql {

namespace {

constexpr std::size_t dayLength = std::string_view("2024-01-31").size();

std::string firstCharacters(const std::string &text, int count)
{
    std::size_t end = 0;
    for (int i = 0; i < count && end < text.size(); ++i)
        end += std::max<std::size_t>(characterAt(text, end).length, 1);
    return text.substr(0, end);
}

std::string withoutTrailingBlanks(std::string text)
{
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

ConvertedText toVarchar(const std::string &text, const Type &from, const Type &to, Conversion::Mode mode)
{
    if (mode == Conversion::Mode::Checked || characterCount(text) <= static_cast<std::size_t>(to.size))
        return {text, Misfit::None};
    if (mode == Conversion::Mode::Store) {
        const bool onlyBlanks = characterCount(withoutTrailingBlanks(text)) <= static_cast<std::size_t>(to.size);
        if (from.kind == Kind::Varchar && onlyBlanks)
            return {firstCharacters(text, to.size), Misfit::None};
        return {{}, Misfit::TooLong};
    }
    if (from.kind == Kind::Int)
        return {"*", Misfit::None}; // T-SQL's way of saying that an int does not fit
    if (isNumber(from.kind))
        return {{}, Misfit::OutOfRange};
    return {firstCharacters(text, to.size), Misfit::None};
}

ConvertedText toInt(const std::string &text, const Type &from)
{
    if (from.kind == Kind::Varchar && withoutTrailingBlanks(text).empty())
        return {"0", Misfit::None};
    auto number = values::parseDecimal(text);
    if (!number || (from.kind == Kind::Varchar && text.find('.') != std::string::npos))
        return {{}, Misfit::NotConvertible};
    number->fraction.clear(); // a decimal loses its decimals without rounding
    number->negative = number->negative && !number->whole.empty();
    if (!values::fitsInt(*number))
        return {{}, Misfit::OutOfRange};
    return {number->text(), Misfit::None};
}

ConvertedText toDecimal(const std::string &text, const Type &to)
{
    const auto number = values::parseDecimal(text);
    if (!number)
        return {{}, Misfit::NotConvertible};
    const values::DecimalText rounded = number->rounded(to.scale);
    if (rounded.whole.size() > static_cast<std::size_t>(to.size - to.scale))
        return {{}, Misfit::OutOfRange};
    return {rounded.text(), Misfit::None};
}

ConvertedText toFloat(const std::string &text)
{
    const auto number = values::parseDecimal(text);
    return number ? ConvertedText{number->text(), Misfit::None} : ConvertedText{{}, Misfit::NotConvertible};
}

ConvertedText toDate(const std::string &text, const Type &to)
{
    const auto moment = parseDateTime(text);
    if (!moment)
        return {{}, Misfit::NotConvertible};
    return {to.kind == Kind::Date ? moment->substr(0, dayLength) : *moment, Misfit::None};
}

} // namespace

ConvertedText convertText(const std::string &text, const Type &from, const Type &to, Conversion::Mode mode)
{
    switch (to.kind) {
    case Kind::Varchar:
        return toVarchar(text, from, to, mode);
    case Kind::Int:
        return toInt(text, from);
    case Kind::Decimal:
        return toDecimal(text, to);
    case Kind::Float:
        return toFloat(text);
    case Kind::Date:
    case Kind::DateTime:
        return toDate(text, to);
    case Kind::Null:
        break;
    }
    return {{}, Misfit::NotConvertible};
}

std::string misfitMessage(Misfit misfit, const std::string &text, const Type &to)
{
    switch (misfit) {
    case Misfit::TooLong:
        return quoted(text) + "太长，最多" + std::to_string(to.size) + "个字符";
    case Misfit::OutOfRange:
        return quoted(text) + "超出" + typeName(to) + "的范围";
    default:
        return quoted(text) + "不能转换为" + typeName(to);
    }
}

Type typeOfNumber(std::string_view digits)
{
    const auto number = values::parseDecimal(digits);
    if (!number)
        return {};
    if (digits.find('.') == std::string_view::npos && values::fitsInt(*number))
        return intType();
    const std::size_t all = std::max<std::size_t>(number->whole.size() + number->fraction.size(), 1);
    if (all > mostDigits)
        return {};
    return decimalType(static_cast<int>(all), static_cast<int>(number->fraction.size()));
}

std::string unquoted(std::string_view string)
{
    std::string result;
    for (std::size_t i = 1; i + 1 < string.size(); ++i) {
        result += string[i];
        if (string[i] == '\'')
            ++i;
    }
    return result;
}

} // namespace vortaq::sql
