// SPDX-License-Identifier: MIT
// The begin/end-update bracket of a tree list as a scope.
#pragma once

#include "toolkit/TdxTreeList.h"

class TreeListUpdate {
public:
    explicit TreeListUpdate(TdxTreeList &list)
        : m_list(list)
    {
        m_list.beginUpdate();
    }
    ~TreeListUpdate() { m_list.endUpdate(); }
    TreeListUpdate(const TreeListUpdate &) = delete;
    TreeListUpdate &operator=(const TreeListUpdate &) = delete;

private:
    TdxTreeList &m_list;
};
