// SPDX-License-Identifier: MIT
// The field and the record of a value that a statement failed on.
#pragma once

#include "vortaq/sqlite/ValueError.h"

namespace vortaq::sqlite {

class Connection;
struct WrittenStatement;

/// The error with its column, and with the row's key where the row is known; that is looked up, for which the failed
/// statement must be finished. Throws SqlError when the database fails again.
[[nodiscard]] SqlError withPlace(const ValueError &error, const WrittenStatement &written, Connection &connection);

} // namespace vortaq::sqlite
