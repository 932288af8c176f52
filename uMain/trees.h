// SPDX-License-Identifier: MIT
// The institution and bill trees on the left of the pages.
#pragma once

class TdxTreeList;

/// One visible column with the component name and caption given, icons for groups and bills (0 group, 1 bill, 2 the
/// selected bill), no sorting. Without a caption the tree has no header.
void setUpTree(TdxTreeList &tree, const char *columnName, const char *caption = nullptr);
