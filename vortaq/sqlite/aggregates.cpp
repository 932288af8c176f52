// SPDX-License-Identifier: MIT
// The aggregate functions.
#include "vortaq/sqlite/functioncall.h"
#include "vortaq/sqlite/functions.h"
#include "vortaq/sqlite/resultcodes.h"

#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <string>

namespace vortaq::sqlite {

namespace {

/// Lies in memory that SQLite zeroes and frees, and aligns for eight bytes only; so the units are kept as bytes.
struct Sum {
    std::array<std::byte, sizeof(values::Units)> units;
    int scale;
    bool any;
};

[[noreturn]] void overflow()
{
    throw SqlError(SqlError::Reason::Conversion, "合计超出了数值的范围。");
}

template <typename State> State &stateOf(sqlite3_context *context)
{
    auto *state = static_cast<State *>(sqlite3_aggregate_context(context, sizeof(State)));
    if (state == nullptr)
        throw std::bad_alloc();
    return *state;
}

void sumStep(sqlite3_context *context, int count, sqlite3_value **arguments)
{
    constexpr int own = 2;
    if (isNull(arguments[0]))
        return;
    guardedCall(context, behind(own, count, arguments), [&] {
        auto &sum = stateOf<Sum>(context);
        sum.scale = sqlite3_value_int(arguments[1]);
        const values::Units units = std::bit_cast<values::Units>(sum.units) + unitsOfValue(arguments[0], sum.scale);
        if (!values::fitsDigits(units, values::mostDecimals - 1))
            overflow();
        sum.units = std::bit_cast<std::array<std::byte, sizeof(values::Units)>>(units);
        sum.any = true;
    });
}

void sumFinal(sqlite3_context *context)
{
    const auto *sum = static_cast<const Sum *>(sqlite3_aggregate_context(context, 0));
    if (sum == nullptr || !sum->any)
        return;
    guardedCall(context, {}, [&] {
        const auto units = std::bit_cast<values::Units>(sum->units);
        const auto number = values::exactNumber(units, sum->scale);
        if (!number)
            overflow();
        if (sum->scale == 0)
            sqlite3_result_int64(context, static_cast<std::int64_t>(units));
        else
            sqlite3_result_double(context, *number);
    });
}

struct Single {
    sqlite3_value *value;
    bool any;
};

void singleStep(sqlite3_context *context, int, sqlite3_value **arguments)
{
    guardedCall(context, {}, [&] {
        auto &single = stateOf<Single>(context);
        if (single.any)
            throw SqlError(SqlError::Reason::Other, "子查询返回了多个值，此处只允许一个值。");
        single.any = true;
        single.value = sqlite3_value_dup(arguments[0]);
        if (single.value == nullptr)
            throw std::bad_alloc();
    });
}

void singleFinal(sqlite3_context *context)
{
    const auto *single = static_cast<const Single *>(sqlite3_aggregate_context(context, 0));
    if (single == nullptr || single->value == nullptr)
        return;
    sqlite3_result_value(context, single->value);
    sqlite3_value_free(single->value);
}

void install(sqlite3 *database, FunctionFailure &failure, const char *name, int arguments,
             void (*step)(sqlite3_context *, int, sqlite3_value **), void (*final)(sqlite3_context *))
{
    const int code =
        sqlite3_create_function_v2(database, name, arguments, functionFlags, &failure, nullptr, step, final, nullptr);
    if (code != SQLITE_OK)
        throwFailure(database, code);
}

} // namespace

void installAggregates(sqlite3 *database, FunctionFailure &failure)
{
    constexpr int anyNumber = -1;
    install(database, failure, "ts_sum", anyNumber, sumStep, sumFinal);
    install(database, failure, "ts_single", 1, singleStep, singleFinal);
}

} // namespace vortaq::sqlite
