// SPDX-License-Identifier: MIT
// How two grids share the room of a splitter.
#pragma once

#include "toolkit/TdxTreeList.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QHeaderView>
#include <QScrollBar>

/// The small grid has what its columns need, and no more while the large one has to scroll.
inline void expectRoomDividedByNeed(const TdxTreeList &small, const TdxTreeList &large)
{
    QCoreApplication::processEvents();
    const int bar = small.verticalScrollBar()->sizeHint().width();
    const int spare = small.viewport()->width() - small.header()->length();
    EXPECT_EQ(small.horizontalScrollBar()->maximum(), 0);
    EXPECT_LE(spare, bar + 2);
    const int together = small.header()->length() + large.header()->length() + 2 * bar;
    if (together < small.viewport()->width() + large.viewport()->width()) {
        EXPECT_EQ(large.horizontalScrollBar()->maximum(), 0);
    }
}
