// SPDX-License-Identifier: MIT
// Columns as wide as their texts.
#pragma once

class QTableWidget;

namespace common {

/// Makes each visible column as wide as its widest text (captions included) with a margin of one character, and the
/// grid as wide as its columns.
void fitColumns(QTableWidget &grid);

} // namespace common
