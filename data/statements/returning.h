// SPDX-License-Identifier: MIT
// The statements that return a record to the ward; a record needs all three, in this order.
#pragma once

#include "data/recordkey.h"

#include <QString>

namespace data {

[[nodiscard]] QString clearDischarge(const RecordKey &key);
[[nodiscard]] QString deleteSettlementFees(const RecordKey &key);
[[nodiscard]] QString deleteSettlement(const RecordKey &key);

} // namespace data
