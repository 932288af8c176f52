// SPDX-License-Identifier: MIT
// What a handler may decide about one painted cell.
#pragma once

#include "toolkit/colours.h"

#include <QString>

#include <functional>

class TdxTreeListColumn;
class TdxTreeListNode;

namespace toolkit {

/// Colours are Windows colour integers (see toolkit/colours.h). Before the handlers run `background` is the list's
/// own colour, `font` is NoColour (the palette's text colour), and `text` is what would be shown.
struct CellStyle {
    WindowsColour background = NoColour;
    WindowsColour font = NoColour;
    QString text;
};

/// `focused` is true for every cell of the list's focused row. A handler that throws leaves the default colours;
/// the error is displayed once for the list until it is loaded anew.
using CellDrawing =
    std::function<void(const TdxTreeListNode &node, const TdxTreeListColumn &column, bool focused, CellStyle &style)>;

} // namespace toolkit
