// SPDX-License-Identifier: MIT
// The tables that the corpus of statements speaks of.
#pragma once

#include "vortaq/sql/Catalog.h"

namespace vortaq::sql::test {

/// Held for the life of the program.
[[nodiscard]] const Catalog &hospitalCatalog();

} // namespace vortaq::sql::test
