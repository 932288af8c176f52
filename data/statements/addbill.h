// SPDX-License-Identifier: MIT
// The statement of the dialog "添加制单" beside candidates.h (its list) and savingbill.h (assignRecords()).
#pragma once

#include "data/billkey.h"

#include <QString>

namespace data {

/// The bill's totals from all its records, old and new; unlike after a cancel, a null amount is not guarded.
[[nodiscard]] QString recomputeAfterAdding(const BillKey &bill);

} // namespace data
