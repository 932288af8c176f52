// SPDX-License-Identifier: MIT
// The statements and filters of the fee detail dialogs, for records in use and for those of the history.
#pragma once

#include "data/recordkey.h"

#include <QString>

namespace data {

/// A record's fees summed by type: FeeTypeCode, FeeTypeName, Fee.
[[nodiscard]] QString feeTypes(const RecordKey &key);
/// A record's fee lines; IsTp is 1 for specially approved items, else 2.
[[nodiscard]] QString feeItems(const RecordKey &key);

/// The same for a record of the history; see historyTablePrefix() for the type.
[[nodiscard]] QString historyFeeTypes(const QString &billType, const RecordKey &key);
/// With the deductions of the first (OneFee) and the second review (TwoFee).
[[nodiscard]] QString historyFeeItems(const QString &billType, const RecordKey &key);

/// Filters of the loaded fee lines.
[[nodiscard]] QString feeTypeFilter(const QString &feeTypeCode);
[[nodiscard]] QString compensableFilter();
[[nodiscard]] QString notCompensableFilter();

} // namespace data
