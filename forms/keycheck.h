// SPDX-License-Identifier: MIT
// Records that must not be changed, because a change would miss them.
#pragma once

#include <QString>

class TdxTreeList;
class TdxTreeListNode;

namespace forms {

/// A row whose key no statement can hold is shown like any other, but a bill made of it would be empty, and still be
/// told as a success. What the clerk is told instead, before anything is sent: the reason, and certificate and patient
/// of each such row. Empty text when there is none.
[[nodiscard]] QString refusalOfTicked(const TdxTreeList &grid, int checkColumn);
[[nodiscard]] QString refusalOf(const TdxTreeList &grid, const TdxTreeListNode &row);

} // namespace forms
