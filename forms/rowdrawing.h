// SPDX-License-Identifier: MIT
// The drawings that grids of several forms share. Colours are asked of the host anew for every cell.
#pragma once

#include "toolkit/celldrawing.h"

namespace forms {

/// The focused node in the host's focus colour with window-coloured text; other nodes as they are.
[[nodiscard]] toolkit::CellDrawing organisationTreeDrawing();

/// Even rows in the window colour, odd ones in the host's odd-row colour, text without a colour of its own; the focused
/// row in the host's focus colour with window-coloured text.
[[nodiscard]] toolkit::CellDrawing billListDrawing();

/// The text of the cell is the node's index plus one.
[[nodiscard]] toolkit::CellDrawing rowNumberDrawing();

} // namespace forms
