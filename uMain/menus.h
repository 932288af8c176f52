// SPDX-License-Identifier: MIT
// Popup menus as data.
#pragma once

#include <vector>

class QMenu;
class QWidget;
class TdxTreeList;

struct MenuItem {
    const char *name; ///< component name
    const char *caption; ///< UTF-8
    int tag = 0; ///< function number, see uMain/rights.h
};

/// A menu for the list to pop up, owned by `parent`; its items are actions found by component name. The captions leave
/// no room for letters, so Ctrl with an item's place in the menu chooses it: in the open menu, and in the list for as
/// long as it offers the menu. Shift+F10 in the list opens it as the menu key does.
[[nodiscard]] QMenu *createMenu(QWidget *parent, TdxTreeList &list, const char *name,
                                const std::vector<MenuItem> &items);
