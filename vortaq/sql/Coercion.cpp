// SPDX-License-Identifier: MIT
// Common types and the conversions to them.
#include "vortaq/sql/Coercion.h"

#include "vortaq/sql/diagnostic.h"
#include "vortaq/sql/literal.h"

#include <algorithm>
#include <utility>

namespace vortaq::sql {

namespace {

constexpr int digitsOfInt = 10;

Type asDecimal(const Type &type)
{
    return type.kind == Kind::Int ? decimalType(digitsOfInt, 0) : type;
}

/// Whether a value of type `from` may stand in a place of type `to` as it is.
bool fits(const Type &from, const Type &to, Conversion::Mode mode)
{
    if (from.kind != to.kind)
        return false;
    const bool bounded = mode != Conversion::Mode::Checked;
    if (from.kind == Kind::Varchar)
        return !bounded || from.size <= to.size;
    if (from.kind == Kind::Decimal)
        return from.scale == to.scale && (!bounded || from.size <= to.size);
    return true;
}

bool isConvertible(Kind from, Kind to)
{
    return !(isNumber(from) && isDate(to)) && !(isDate(from) && isNumber(to));
}

} // namespace

std::optional<Type> commonType(const Type &left, const Type &right)
{
    if (!isConvertible(left.kind, right.kind))
        return std::nullopt;
    const Type &higher = left.kind < right.kind ? right : left;
    const Type &lower = left.kind < right.kind ? left : right;
    if (higher.kind == Kind::Varchar)
        return varcharType(std::max(left.size, right.size));
    if (higher.kind != Kind::Decimal || !isNumber(lower.kind))
        return higher;
    const Type first = asDecimal(left);
    const Type second = asDecimal(right);
    const int scale = std::max(first.scale, second.scale);
    const int whole = std::max(first.size - first.scale, second.size - second.scale);
    return decimalType(std::min(mostDigits, whole + scale), scale);
}

Type sumType(const Type &left, const Type &right)
{
    const Type common = commonType(left, right).value_or(left);
    if (common.kind != Kind::Decimal)
        return common;
    return decimalType(std::min(mostDigits, common.size + 1), common.scale);
}

ExprPtr Coercion::convert(ExprPtr value, const Type &to, Conversion::Mode mode, std::size_t at) const
{
    auto *literal = std::get_if<Literal>(&value->node);
    if (literal && literal->isNull) {
        value->type = to;
        return value;
    }
    if (!isConvertible(value->type.kind, to.kind)) {
        failAt(SqlError::Reason::Binding, m_text, at,
               typeName(value->type) + "类型的值不能用作" + typeName(to) + "类型");
    }
    if (literal) {
        literal->text = literalText(literal->text, value->type, to, mode, at);
        value->type = to;
        return value;
    }
    if (fits(value->type, to, mode))
        return value;
    return std::make_unique<Expr>(Expr{to, Conversion{std::move(value), mode, false}});
}

ExprPtr Coercion::store(ExprPtr value, const CatalogColumn &column, std::size_t at) const
{
    auto *literal = std::get_if<Literal>(&value->node);
    if (!literal || literal->isNull || !isConvertible(value->type.kind, column.type.kind))
        return convert(std::move(value), column.type, Conversion::Mode::Store, at);
    ConvertedText converted = convertText(literal->text, value->type, column.type, Conversion::Mode::Store);
    if (converted.misfit != Misfit::None) {
        failAt(SqlError::Reason::Conversion, m_text, at,
               "列" + column.name + "：" + misfitMessage(converted.misfit, literal->text, column.type));
    }
    literal->text = std::move(converted.text);
    value->type = column.type;
    return value;
}

std::string Coercion::literalText(const std::string &text, const Type &from, const Type &to, Conversion::Mode mode,
                                  std::size_t at) const
{
    ConvertedText converted = convertText(text, from, to, mode);
    if (converted.misfit != Misfit::None)
        failAt(SqlError::Reason::Conversion, m_text, at, misfitMessage(converted.misfit, text, to));
    return std::move(converted.text);
}

Type Coercion::common(std::span<const Placed> values) const
{
    Type result;
    for (const Placed &placed : values) {
        const Type &type = (*placed.value)->type;
        const auto merged = commonType(result, type);
        if (!merged) {
            failAt(SqlError::Reason::Binding, m_text, placed.at,
                   typeName(result) + "与" + typeName(type) + "不能放在一起比较或合并");
        }
        result = *merged;
    }
    return result;
}

void Coercion::align(std::span<const Placed> values) const
{
    const Type type = common(values);
    for (const Placed &placed : values) {
        ExprPtr &value = *placed.value;
        if (value->type.kind != type.kind)
            value = convert(std::move(value), type, Conversion::Mode::Checked, placed.at);
    }
}

Type Coercion::unify(std::span<const Placed> values) const
{
    const Type type = common(values);
    for (const Placed &placed : values)
        *placed.value = convert(std::move(*placed.value), type, Conversion::Mode::Checked, placed.at);
    return type;
}

} // namespace vortaq::sql
