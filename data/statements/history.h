// SPDX-License-Identifier: MIT
// The statements of the page "历史制单查询".
#pragma once

#include "data/billkey.h"

#include <QString>

namespace data {

/// An institution's bills that have records, in use (Type 1) and archived (Type 2), newest number first. Its code is
/// given for each of the two halves.
[[nodiscard]] QString historyBills(const QString &orgCodeInUse, const QString &orgCodeArchived);
/// The records of one of them; the table is chosen by its type (see historyRecordTable()).
[[nodiscard]] QString historyRecords(const QString &billType, const BillKey &bill);

} // namespace data
