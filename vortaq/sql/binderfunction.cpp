// SPDX-License-Identifier: MIT
// The functions of the subset.
#include "vortaq/sql/binder.h"

#include <charconv>
#include <utility>

namespace vortaq::sql {

namespace {

constexpr int longestIntText = 12;
constexpr int widestStr = 255;
constexpr int mostStrDecimals = 16;

ExprPtr makeCall(const Type &type, Call call)
{
    return std::make_unique<Expr>(Expr{type, std::move(call)});
}

/// How long the text of a value can become.
int textSize(const Type &type)
{
    switch (type.kind) {
    case Kind::Varchar:
        return type.size;
    case Kind::Int:
        return longestIntText;
    default:
        return mostDigits + 3; // sign, zero and point
    }
}

} // namespace

ExprPtr Binder::call(const ast::FunctionCall &parsed, Scope &scope)
{
    const auto named = [&parsed](std::string_view name, std::size_t arguments) {
        return sameName(parsed.name.text, name) && parsed.arguments.size() == arguments;
    };
    if (named("isnull", 2))
        return isNull(parsed, scope);
    if (named("len", 1) || named("length", 1))
        return length(parsed, scope);
    if (named("str", 3))
        return str(parsed, scope);
    if (named("getdate", 0))
        return makeCall({Kind::DateTime, 0, 0}, Call{Call::Function::GetDate, {}, 0, 0});
    if (named("max", 1))
        return aggregate(parsed, Aggregate::Function::Max, scope);
    if (named("sum", 1))
        return aggregate(parsed, Aggregate::Function::Sum, scope);
    refuse(parsed.name.at,
           "没有带" + std::to_string(parsed.arguments.size()) + "个参数的函数" + quoted(parsed.name.text));
}

ExprPtr Binder::isNull(const ast::FunctionCall &parsed, Scope &scope)
{
    Call result;
    result.arguments.push_back(value(*parsed.arguments[0], scope));
    ExprPtr replacement = value(*parsed.arguments[1], scope);
    if (result.arguments[0]->type.kind == Kind::Null)
        result.arguments[0]->type = replacement->type;
    const Type type = result.arguments[0]->type;
    if (type.kind == Kind::Null)
        refuse(parsed.name.at, "isnull的参数不能都是null");
    // T-SQL keeps the first argument's type: a longer replacement is cut.
    const Mode mode = type.kind == Kind::Varchar ? Mode::Cut : Mode::Checked;
    result.arguments.push_back(m_coercion.convert(std::move(replacement), type, mode, parsed.arguments[1]->at));
    return makeCall(type, std::move(result));
}

ExprPtr Binder::textOperand(const ast::Node &node, Scope &scope)
{
    ExprPtr operand = value(node, scope);
    const Type text = varcharType(textSize(operand->type));
    return m_coercion.convert(std::move(operand), text, Mode::Checked, node.at);
}

ExprPtr Binder::length(const ast::FunctionCall &parsed, Scope &scope)
{
    Call result;
    result.function = Call::Function::Len;
    result.arguments.push_back(textOperand(*parsed.arguments[0], scope));
    return makeCall(intType(), std::move(result));
}

ExprPtr Binder::str(const ast::FunctionCall &parsed, Scope &scope)
{
    Call result;
    result.function = Call::Function::Str;
    ExprPtr operand = value(*parsed.arguments[0], scope);
    if (!isNumber(operand->type.kind))
        operand = m_coercion.convert(std::move(operand), {Kind::Float, 0, 0}, Mode::Checked, parsed.arguments[0]->at);
    result.arguments.push_back(std::move(operand));
    result.width = writtenSize(*parsed.arguments[1], 1, widestStr);
    result.decimals = writtenSize(*parsed.arguments[2], 0, mostStrDecimals);
    const Type type = varcharType(result.width);
    return makeCall(type, std::move(result));
}

int Binder::writtenSize(const ast::Node &node, int least, int most) const
{
    int result = -1;
    if (const auto *number = std::get_if<ast::NumberText>(&node.what)) {
        const char *end = number->digits.data() + number->digits.size();
        const auto read = std::from_chars(number->digits.data(), end, result);
        if (read.ec != std::errc{} || read.ptr != end)
            result = -1;
    }
    if (result < least || result > most)
        refuse(node.at, "此处应为" + std::to_string(least) + "到" + std::to_string(most) + "的整数");
    return result;
}

ExprPtr Binder::aggregate(const ast::FunctionCall &parsed, Aggregate::Function function, Scope &scope)
{
    if (!scope.aggregatesAllowed)
        refuse(parsed.name.at, "此处不能用聚合函数");
    if (scope.insideAggregate)
        refuse(parsed.name.at, "聚合函数不能嵌套");
    scope.hasAggregate = true;
    scope.insideAggregate = true;
    const int around = std::exchange(m_outermostLevel, INT_MAX);
    ExprPtr operand = value(*parsed.arguments[0], scope);
    if (m_outermostLevel < scope.level)
        refuse(parsed.name.at, "聚合函数中不能用外层查询的列");
    m_outermostLevel = std::min(around, m_outermostLevel);
    scope.insideAggregate = false;
    Type type = operand->type;
    if (function == Aggregate::Function::Sum && !isNumber(type.kind))
        refuse(parsed.arguments[0]->at, "sum只能用于数字");
    if (type.kind == Kind::Null)
        refuse(parsed.arguments[0]->at, "max不能用于null");
    if (function == Aggregate::Function::Sum && type.kind == Kind::Decimal)
        type.size = mostDigits;
    return std::make_unique<Expr>(Expr{type, Aggregate{function, std::move(operand)}});
}

} // namespace vortaq::sql
