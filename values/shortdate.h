// SPDX-License-Identifier: MIT
// Dates as the environment writes them, for what is compared and shown in that form.
#pragma once

#include <QDate>
#include <QString>

namespace values {

/// The short date format of the environment's locale (LC_ALL, LC_TIME, LANG); yyyy-MM-dd when none is set there.
[[nodiscard]] QString shortDateFormat();

/// Reads yyyy-mm-dd or the environment's short format, a time of the day behind it or not. Throws
/// std::invalid_argument, naming the text, for others.
[[nodiscard]] QDate parseShortDate(const QString &text);

} // namespace values
