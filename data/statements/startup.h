// SPDX-License-Identifier: MIT
// The statement of the main form's start.
#pragma once

#include <QString>

namespace data {

/// One row when the database has the settlement procedure, none otherwise.
[[nodiscard]] QString settlementProcedureLookup();

} // namespace data
