// SPDX-License-Identifier: MIT
// The one gate through which a text value enters a statement.
#pragma once

#include <QString>

namespace data {

/// The value between single quotes, quotes inside it doubled.
[[nodiscard]] QString quotedStr(const QString &value);

} // namespace data
