// SPDX-License-Identifier: MIT
// The scalar functions.
#include "vortaq/sqlite/functions.h"

#include "vortaq/sqlite/conversion.h"
#include "vortaq/sqlite/functioncall.h"
#include "vortaq/sqlite/likepattern.h"
#include "vortaq/sqlite/resultcodes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <string>

namespace vortaq::sqlite {

namespace {

using Arguments = sqlite3_value **;
using Body = void (*)(sqlite3_context *, Arguments);

[[noreturn]] void overflow(sqlite3_value *value)
{
    throw SqlError(SqlError::Reason::Conversion, "数值“" + std::string(textOf(value)) + "”超出了范围。");
}

void callInt(sqlite3_context *context, Arguments arguments)
{
    const double number = sqlite3_value_double(arguments[0]);
    if (!(number >= std::numeric_limits<std::int32_t>::min() && number <= std::numeric_limits<std::int32_t>::max()))
        overflow(arguments[0]);
    sqlite3_result_int(context, static_cast<std::int32_t>(number));
}

void callStr(sqlite3_context *context, Arguments arguments)
{
    constexpr std::size_t usualWidth = 64;
    const auto width = static_cast<std::size_t>(sqlite3_value_int(arguments[1]));
    const int decimals = sqlite3_value_int(arguments[2]);
    const int from = sqlite3_value_int(arguments[3]);
    const auto units = values::rescaled(unitsOfValue(arguments[0], from), from, decimals);
    if (!units)
        overflow(arguments[0]);
    const values::UnitsText number(*units, decimals);
    const std::string_view text = number.text();
    std::array<char, usualWidth> usual;
    std::string wide(width > usualWidth ? width : 0, ' ');
    char *result = wide.empty() ? usual.data() : wide.data();
    if (text.size() > width) {
        std::fill_n(result, width, '*');
    } else {
        std::fill_n(result, width - text.size(), ' ');
        text.copy(result + (width - text.size()), text.size());
    }
    returnText(context, {result, width});
}

void callLike(sqlite3_context *context, Arguments arguments)
{
    if (!isNull(arguments[1]))
        sqlite3_result_int(context, matchesLike(textOf(arguments[0]), textOf(arguments[1])) ? 1 : 0);
}

template <int own, Body body> void nullOrCall(sqlite3_context *context, int count, Arguments arguments)
{
    if (!isNull(arguments[0]))
        guardedCall(context, behind(own, count, arguments), [&] { body(context, arguments); });
}

constexpr int anyNumber = -1;

struct Function {
    const char *name;
    int arguments;
    void (*call)(sqlite3_context *, int, Arguments);
};

constexpr std::array<Function, 4> scalarFunctions = {{{"ts_convert", anyNumber, nullOrCall<4, convertValue>},
                                                      {"ts_int", 1, nullOrCall<1, callInt>},
                                                      {"ts_str", anyNumber, nullOrCall<4, callStr>},
                                                      {"ts_like", 2, nullOrCall<2, callLike>}}};

} // namespace

values::Units unitsOfValue(sqlite3_value *value, int scale)
{
    const int type = sqlite3_value_type(value);
    const auto units = type == SQLITE_INTEGER
        ? values::unitsOf(static_cast<long long>(sqlite3_value_int64(value)), scale)
        : type == SQLITE_FLOAT ? values::unitsOf(sqlite3_value_double(value), scale)
                               : values::parseUnits(textOf(value), scale);
    if (!units)
        throw SqlError(SqlError::Reason::Conversion, "“" + std::string(textOf(value)) + "”不是可用的数值。");
    return *units;
}

std::optional<FailedValue> failedValue(PlaceArguments place)
{
    if (place.empty())
        return std::nullopt;
    FailedValue result{static_cast<std::size_t>(sqlite3_value_int64(place[0])), std::nullopt};
    if (place.size() > 1 && !isNull(place[1]))
        result.row = sqlite3_value_int64(place[1]);
    return result;
}

void installScalarFunctions(sqlite3 *database, FunctionFailure &failure)
{
    for (const Function &function : scalarFunctions) {
        const int code = sqlite3_create_function_v2(database, function.name, function.arguments, functionFlags,
                                                    &failure, function.call, nullptr, nullptr, nullptr);
        if (code != SQLITE_OK)
            throwFailure(database, code);
    }
}

} // namespace vortaq::sqlite
