// SPDX-License-Identifier: MIT
// The settlement procedures of the demo county.
#pragma once

struct sqlite3;

namespace vortaq::demo {

/// `Pro_Zy_FeeInterFace` for the tables in use and `Pro_Zy_SFeeInterFace` for the archive. Each tells what the scheme
/// pays for one stay from that stay's own settlement, "1&<yuan>#<summary>", or refuses with "0&<reason>" where there
/// is none. Throws SqlError.
void writeProcedures(sqlite3 *database);

} // namespace vortaq::demo
