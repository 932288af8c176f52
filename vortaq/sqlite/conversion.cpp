// SPDX-License-Identifier: MIT
// A stored value to text, the text by the rules of T-SQL, and back to a stored value.
#include "vortaq/sqlite/conversion.h"

#include "values/decimal.h"
#include "vortaq/sql/literal.h"
#include "vortaq/sqlite/functioncall.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

namespace vortaq::sqlite {

namespace {

using sql::Kind;
using Mode = sql::Conversion::Mode;

constexpr std::array<std::string_view, 3> modeNames{"checked", "cut", "store"};

struct Rule {
    sql::Type from;
    sql::Type to;
    Mode mode = Mode::Checked;
};

sql::Type typeNamed(std::string_view name)
{
    const auto type = sql::parseDeclaredType(name);
    if (!type)
        throw std::logic_error("unknown type in a written statement: " + std::string(name));
    return *type;
}

/// The rule is the same for all rows, so SQLite is given it to keep; it may decline.
Rule ruleOf(sqlite3_context *context, sqlite3_value **arguments)
{
    constexpr int slot = 1;
    if (const void *kept = sqlite3_get_auxdata(context, slot))
        return *static_cast<const Rule *>(kept);
    const auto mode = std::find(modeNames.begin(), modeNames.end(), textOf(arguments[3]));
    const Rule rule{typeNamed(textOf(arguments[1])), typeNamed(textOf(arguments[2])),
                    static_cast<Mode>(mode - modeNames.begin())};
    sqlite3_set_auxdata(context, slot, std::make_unique<Rule>(rule).release(),
                        [](void *kept) { std::unique_ptr<Rule>(static_cast<Rule *>(kept)).reset(); });
    return rule;
}

/// Six digits in a text, as T-SQL prints a float; all that count where it becomes another number.
std::string floatText(double number, Kind to)
{
    std::array<char, 400> buffer;
    const auto end = to == Kind::Varchar
        ? std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::general, 6).ptr
        : std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed).ptr;
    return {buffer.data(), end};
}

std::string writtenValue(sqlite3_value *value, const Rule &rule)
{
    if (rule.from.kind == Kind::Float)
        return floatText(sqlite3_value_double(value), rule.to.kind);
    if (rule.from.kind == Kind::Decimal)
        return std::string(values::UnitsText(unitsOfValue(value, rule.from.scale), rule.from.scale).text());
    return std::string(textOf(value));
}

[[noreturn]] void refuse(sql::Misfit misfit, const std::string &text, const sql::Type &to)
{
    throw SqlError(SqlError::Reason::Conversion, sql::misfitMessage(misfit, text, to) + "。");
}

template <typename Number> Number numberIn(const std::string &text)
{
    Number number{};
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

void returnDecimal(sqlite3_context *context, const std::string &text, const sql::Type &to)
{
    const auto units = values::parseUnits(text, to.scale);
    if (units && to.scale == 0 && *units <= std::numeric_limits<std::int64_t>::max()
        && *units >= std::numeric_limits<std::int64_t>::min()) {
        sqlite3_result_int64(context, static_cast<std::int64_t>(*units));
        return;
    }
    const auto number = units ? values::exactNumber(*units, to.scale) : std::nullopt;
    if (!number)
        refuse(sql::Misfit::OutOfRange, text, to);
    sqlite3_result_double(context, *number);
}

void returnConverted(sqlite3_context *context, const std::string &text, const sql::Type &to)
{
    switch (to.kind) {
    case Kind::Int:
        sqlite3_result_int(context, numberIn<std::int32_t>(text));
        break;
    case Kind::Decimal:
        returnDecimal(context, text, to);
        break;
    case Kind::Float:
        sqlite3_result_double(context, numberIn<double>(text));
        break;
    default:
        returnText(context, text);
    }
}

} // namespace

void convertValue(sqlite3_context *context, sqlite3_value **arguments)
{
    const Rule rule = ruleOf(context, arguments);
    const std::string text = writtenValue(arguments[0], rule);
    const sql::Type from = rule.from.kind == Kind::Float ? sql::decimalType(sql::mostDigits, 0) : rule.from;
    const sql::ConvertedText converted = sql::convertText(text, from, rule.to, rule.mode);
    if (converted.misfit != sql::Misfit::None)
        refuse(converted.misfit, text, rule.to);
    returnConverted(context, converted.text, rule.to);
}

const char *conversionModeName(Mode mode)
{
    return modeNames[static_cast<std::size_t>(mode)].data();
}

} // namespace vortaq::sqlite
