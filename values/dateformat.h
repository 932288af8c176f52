// SPDX-License-Identifier: MIT
// The one date format, yyyy-mm-dd, for input, comparison and display.
#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace values {

/// Exactly ten characters, digits and hyphens, and a day that exists; nothing else is a date.
[[nodiscard]] std::optional<QDate> parseDate(const QString &text);
[[nodiscard]] QString formatDate(const QDate &date);

} // namespace values
