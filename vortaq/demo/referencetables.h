// SPDX-License-Identifier: MIT
// Writes what does not depend on the number of stays: codes, rights, users and their parameters.
#pragma once

struct sqlite3;

namespace vortaq::demo {

/// Throws SqlError.
void writeReferenceTables(sqlite3 *database);

} // namespace vortaq::demo
