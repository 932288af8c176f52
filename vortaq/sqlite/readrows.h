// SPDX-License-Identifier: MIT
// Rows of SQLite as the text that a client sees.
#pragma once

#include "automation/datapacket.h"
#include "vortaq/sql/tree.h"

#include <vector>

namespace vortaq::sqlite {

class PreparedStatement;

/// Steps through all rows and prints each cell by its column's type: amounts with all decimals of the type, moments
/// without milliseconds. Throws SqlError.
[[nodiscard]] automation::DataPacketPtr readRows(PreparedStatement &statement,
                                                 const std::vector<sql::OutputColumn> &columns);

} // namespace vortaq::sqlite
