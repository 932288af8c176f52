// SPDX-License-Identifier: MIT
// What the host's look-up dialog is told to search an institution's code.
#pragma once

#include <QString>

namespace data {

[[nodiscard]] QString lookupTable();
/// The area code goes in raw: a quote inside it breaks the look-up.
[[nodiscard]] QString lookupWhere(const QString &areaCode);
[[nodiscard]] QString lookupFieldList();
[[nodiscard]] QString lookupCustomField();
/// Names of the chosen row's values, as the field list gives them.
[[nodiscard]] QString lookupCodeColumn();
[[nodiscard]] QString lookupNameColumn();

} // namespace data
