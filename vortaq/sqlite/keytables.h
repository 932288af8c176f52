// SPDX-License-Identifier: MIT
// Temporary tables that hold the record keys a statement names.
#pragma once

#include "vortaq/sqlite/writestatement.h"

#include <vector>

namespace vortaq::sqlite {

class Connection;

/// Makes and fills each table with one row a key; they stay until the next statement needs one of that name. Throws
/// SqlError.
void fillKeyTables(Connection &connection, const std::vector<WrittenKeys> &tables);

} // namespace vortaq::sqlite
