// SPDX-License-Identifier: MIT
// The host's colours and money format, applied to the parts of a form.
#pragma once

class QWidget;
class TdxTreeList;

/// Gives every plain currency column of the grid the host's "DigitalFormat", asked once for each.
void ApplyMoneyFormat(TdxTreeList &grid);

/// Gives every currency edit of the form the host's "DigitalFormat", asked once for each.
void ApplyEditFormat(QWidget &form);

/// Colours the grid's background with the host's "Color-5".
void applyBackground(TdxTreeList &grid);
