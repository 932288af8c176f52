// SPDX-License-Identifier: MIT
// What every SQL function written in C++ needs: arguments, and a wall that no exception crosses.
#pragma once

#include "values/decimal.h"
#include "vortaq/sqlite/FunctionFailure.h"

#include <sqlite3.h>

#include <exception>
#include <new>
#include <optional>
#include <span>
#include <string_view>

namespace vortaq::sqlite {

/// Valid until the value is asked for in another type.
inline std::string_view textOf(sqlite3_value *value)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(value));
    return text == nullptr ? std::string_view{} : std::string_view(text, sqlite3_value_bytes(value));
}

inline bool isNull(sqlite3_value *value)
{
    return sqlite3_value_type(value) == SQLITE_NULL;
}

/// The amount in units of that scale, whatever the column really holds. Throws SqlError(Conversion).
[[nodiscard]] values::Units unitsOfValue(sqlite3_value *value, int scale);

inline void returnText(sqlite3_context *context, std::string_view text)
{
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

/// Arguments behind a function's own: where its value stands, or nothing.
using PlaceArguments = std::span<sqlite3_value *const>;

[[nodiscard]] inline PlaceArguments behind(int own, int count, sqlite3_value **arguments)
{
    return PlaceArguments(arguments, static_cast<std::size_t>(count)).subspan(static_cast<std::size_t>(own));
}

[[nodiscard]] std::optional<FailedValue> failedValue(PlaceArguments place);

/// Runs `body`; SQLite is C and must be told of errors by its own means.
template <typename Body> void guardedCall(sqlite3_context *context, PlaceArguments place, Body &&body)
{
    try {
        body();
    } catch (const SqlError &error) {
        static_cast<FunctionFailure *>(sqlite3_user_data(context))->set(error, failedValue(place));
        sqlite3_result_error(context, error.what(), -1);
    } catch (const std::bad_alloc &) {
        sqlite3_result_error_nomem(context);
    } catch (const std::exception &error) {
        sqlite3_result_error(context, error.what(), -1);
    }
}

inline constexpr int functionFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY;

} // namespace vortaq::sqlite
