// SPDX-License-Identifier: MIT
// Popup menus as data.
#pragma once

#include <vector>

class QMenu;
class QWidget;

struct MenuItem {
    const char *name; ///< component name
    const char *caption; ///< UTF-8
    int tag = 0; ///< function number, see uMain/rights.h
};

/// A menu owned by `parent`; its items are actions found by component name.
[[nodiscard]] QMenu *createMenu(QWidget *parent, const char *name, const std::vector<MenuItem> &items);
