// SPDX-License-Identifier: MIT
// The statements that list records which may join a bill.
#pragma once

#include "data/rightsfilter.h"

#include <QString>

#include <optional>

namespace data {

/// The candidates of the page "报销制单" in the order of settlement; narrowed when a grant is given.
[[nodiscard]] QString billCandidates(const std::optional<Grant> &grant);
/// The candidates of the dialog "添加制单" in the order of discharge; amounts come as the database writes them.
[[nodiscard]] QString addBillCandidates(const std::optional<Grant> &grant);

} // namespace data
