// SPDX-License-Identifier: MIT
// Runs of columns that the lists of records have in common.
#pragma once

#include <QString>

namespace data {

/// " select " and the columns from OrgCode to IllName, with a comma at the end.
[[nodiscard]] QString selectRecordColumns();
/// The three amounts as text, the doctor and the first review's amount, with a comma at the end.
[[nodiscard]] QString amountTextColumns();
/// Whether the record was reviewed ("1") or not ("2").
[[nodiscard]] QString isCheckColumn();
/// The compensation category's name.
[[nodiscard]] QString expenseNameColumn();

} // namespace data
