// SPDX-License-Identifier: MIT
// Joins that are only there to ask whether a match exists.
#pragma once

#include "vortaq/sql/tree.h"

namespace vortaq::sql {

/// "select a.x from a,b where a.k=b.k group by a.k,a.x" with k the key of a asks which rows of a have a match in b. As
/// written, every match is found, kept and sorted away again: for a list of bills, all records ever billed. Where the
/// groups are the rows of one table (it alone is read outside the condition, its whole primary key is grouped by, and
/// nothing is aggregated) the other tables move into an Exists and the grouping goes. Looks at queries and the derived
/// tables in them.
void reduceToSemiJoins(Statement &statement);

} // namespace vortaq::sql
