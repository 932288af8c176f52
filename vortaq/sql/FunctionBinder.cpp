// SPDX-License-Identifier: MIT
// isnull, len, str, getdate, max, sum.
#include "vortaq/sql/FunctionBinder.h"

#include "vortaq/sql/ValueBinder.h"
#include "vortaq/sql/diagnostic.h"

#include <charconv>
#include <utility>

namespace vortaq::sql {

namespace {

constexpr int widestStr = 255;
constexpr int mostStrDecimals = 16;

using Mode = Conversion::Mode;

ExprPtr makeCall(const Type &type, Call call)
{
    return std::make_unique<Expr>(Expr{type, std::move(call)});
}

} // namespace

ExprPtr FunctionBinder::call(const ast::FunctionCall &parsed)
{
    const auto named = [&parsed](std::string_view name, std::size_t arguments) {
        return sameName(parsed.name.text, name) && parsed.arguments.size() == arguments;
    };
    if (named("isnull", 2))
        return isNull(parsed);
    if (named("len", 1) || named("length", 1))
        return length(parsed);
    if (named("str", 3))
        return str(parsed);
    if (named("getdate", 0))
        return makeCall({Kind::DateTime, 0, 0}, Call{Call::Function::GetDate, {}, 0, 0});
    if (named("max", 1))
        return aggregate(parsed, Aggregate::Function::Max);
    if (named("sum", 1))
        return aggregate(parsed, Aggregate::Function::Sum);
    m_binding.refuse(parsed.name.at,
                     "没有带" + std::to_string(parsed.arguments.size()) + "个参数的函数" + quoted(parsed.name.text));
}

ExprPtr FunctionBinder::isNull(const ast::FunctionCall &parsed)
{
    Call result;
    result.arguments.push_back(m_binding.values.value(*parsed.arguments[0], m_scope));
    ExprPtr replacement = m_binding.values.value(*parsed.arguments[1], m_scope);
    if (result.arguments[0]->type.kind == Kind::Null)
        result.arguments[0]->type = replacement->type;
    const Type type = result.arguments[0]->type;
    if (type.kind == Kind::Null)
        m_binding.refuse(parsed.name.at, "isnull的参数不能都是null");
    // T-SQL keeps the first argument's type: a longer replacement is cut.
    const Mode mode = type.kind == Kind::Varchar ? Mode::Cut : Mode::Checked;
    result.arguments.push_back(m_binding.coercion.convert(std::move(replacement), type, mode, parsed.arguments[1]->at));
    return makeCall(type, std::move(result));
}

ExprPtr FunctionBinder::length(const ast::FunctionCall &parsed)
{
    Call result;
    result.function = Call::Function::Len;
    result.arguments.push_back(m_binding.values.text(*parsed.arguments[0], m_scope));
    return makeCall(intType(), std::move(result));
}

ExprPtr FunctionBinder::str(const ast::FunctionCall &parsed)
{
    Call result;
    result.function = Call::Function::Str;
    ExprPtr operand = m_binding.values.value(*parsed.arguments[0], m_scope);
    if (!isNumber(operand->type.kind))
        operand =
            m_binding.coercion.convert(std::move(operand), {Kind::Float, 0, 0}, Mode::Checked, parsed.arguments[0]->at);
    result.arguments.push_back(std::move(operand));
    result.width = writtenSize(*parsed.arguments[1], 1, widestStr);
    result.decimals = writtenSize(*parsed.arguments[2], 0, mostStrDecimals);
    const Type type = varcharType(result.width);
    return makeCall(type, std::move(result));
}

int FunctionBinder::writtenSize(const ast::Node &node, int least, int most) const
{
    int result = -1;
    if (const auto *number = std::get_if<ast::NumberText>(&node.what)) {
        const char *end = number->digits.data() + number->digits.size();
        const auto read = std::from_chars(number->digits.data(), end, result);
        if (read.ec != std::errc{} || read.ptr != end)
            result = -1;
    }
    if (result < least || result > most)
        m_binding.refuse(node.at, "此处应为" + std::to_string(least) + "到" + std::to_string(most) + "的整数");
    return result;
}

ExprPtr FunctionBinder::aggregate(const ast::FunctionCall &parsed, Aggregate::Function function)
{
    if (!m_scope.aggregatesAllowed)
        m_binding.refuse(parsed.name.at, "此处不能用聚合函数");
    if (m_scope.insideAggregate)
        m_binding.refuse(parsed.name.at, "聚合函数不能嵌套");
    m_scope.hasAggregate = true;
    m_scope.insideAggregate = true;
    const int around = std::exchange(m_binding.outermostLevel, INT_MAX);
    ExprPtr operand = m_binding.values.value(*parsed.arguments[0], m_scope);
    if (m_binding.outermostLevel < m_scope.level)
        m_binding.refuse(parsed.name.at, "聚合函数中不能用外层查询的列");
    m_binding.outermostLevel = std::min(around, m_binding.outermostLevel);
    m_scope.insideAggregate = false;
    Type type = operand->type;
    if (function == Aggregate::Function::Sum && !isNumber(type.kind))
        m_binding.refuse(parsed.arguments[0]->at, "sum只能用于数字");
    if (type.kind == Kind::Null)
        m_binding.refuse(parsed.arguments[0]->at, "max不能用于null");
    if (function == Aggregate::Function::Sum && type.kind == Kind::Decimal)
        type.size = mostDigits;
    return std::make_unique<Expr>(Expr{type, Aggregate{function, std::move(operand)}});
}

} // namespace vortaq::sql
