// SPDX-License-Identifier: MIT
// One line of a grid's column table: grids are described by data, not by code.
#pragma once

#include <Qt>

namespace toolkit {

enum class ColumnKind { Text, Currency, Check };

/// All texts are UTF-8 literals. Only `name` is required.
struct ColumnDefinition {
    const char *name; ///< component name of the column object
    const char *caption = ""; ///< header text
    const char *field = nullptr; ///< column of the data packet the value is read from; null: never filled from a row
    ColumnKind kind = ColumnKind::Text;
    bool hidden = false; ///< keeps its value but takes no space; cannot be reached by the keyboard
    bool editable = false; ///< a check column toggles, another opens an editor
    Qt::Alignment alignment = Qt::AlignLeft; ///< currency columns stand right whatever is given here
    const char *checked = "1"; ///< text that shows as ticked (check columns)
    const char *unchecked = "2"; ///< text that a toggle writes to untick (check columns)
    const char *displayFormat = ""; ///< see formatFloat(); empty: the text as it came (currency columns)
    bool sortedAtFirst = false; ///< the list begins sorted by this column, ascending
    const char *widest = nullptr; ///< sample text for the first width; null: fit caption and rows shown
};

} // namespace toolkit
