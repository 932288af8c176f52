// SPDX-License-Identifier: MIT
// The one gate through which a text value enters a statement.
#pragma once

#include <QString>

#include <string_view>

namespace data {

/// The value between single quotes, quotes inside it doubled.
[[nodiscard]] QString quotedStr(const QString &value);

/// Whether the bytes that a database delivers as text are the same again when they come back in a statement: all of
/// them UTF-8 without a byte-order mark, none of them zero. A statement with other bytes in a key finds no row.
[[nodiscard]] bool comesBackUnchanged(std::string_view utf8);

} // namespace data
