// SPDX-License-Identifier: MIT
// Columns as wide as their texts.
#pragma once

class QAbstractItemView;

namespace common {

/// Makes each visible column of a table or a tree as wide as its widest cell, and the grid as wide as its columns with
/// frame and scroll bar, so that nothing is cut and nothing scrolls sideways (in a layout, the layout decides about the
/// grid). Other views and hidden columns are left alone.
///
/// A cell needs its text in the view's font, or in its own; one with a picture or a tick needs what its delegate asks
/// for. On both sides comes a margin: what delegates leave beside a text, and the width of a digit. The text is what
/// the model has for a reader of the screen (AccessibleTextRole), else what it displays. All rows count, those of
/// closed branches too, with their indentation. A caption needs what its header, unless that is hidden, asks for.
///
/// Measured once: rows that come later, or another format, do not widen a column.
void fitColumns(QAbstractItemView &grid);

} // namespace common
