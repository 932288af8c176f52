// SPDX-License-Identifier: MIT
// The columns that the record lists of bills have in common, in use and archived.
#pragma once

#include <QString>
#include <QStringView>

namespace data {

/// From " select " to the compensation category; `beforeExpense` are the blanks before the latter.
[[nodiscard]] QString billRecordColumns(QStringView beforeExpense);

} // namespace data
