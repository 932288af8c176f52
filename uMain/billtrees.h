// SPDX-License-Identifier: MIT
// The trees of bills: a group node for each billing institution, its bills below.
#pragma once

#include "data/billkey.h"

#include <QStringList>

#include <functional>

class TClientDataSet;
class TdxTreeList;
class TdxTreeListNode;

/// What the values of a node are, by position. Group nodes hold the first three; how many a bill node holds is the
/// tree's own.
namespace billnode {
inline constexpr int Text = 0;
inline constexpr int Level = 1; ///< "1" group, "2" bill
inline constexpr int BillCode = 2;
inline constexpr int BillNo = 3;
inline constexpr int Fee = 4;
inline constexpr int CanFreeFee = 5;
inline constexpr int CheckFee1 = 6;
inline constexpr int CheckFee = 7;
inline constexpr int Type = 8; ///< 1 tables in use, 2 archive
inline constexpr int CheckStatus = 9;
// For notes on a bill, see uMain/BillNotes.h.
inline constexpr int Records = 10; ///< once they have been listed
inline constexpr int NotedFee = 11;
inline constexpr int NotedCanFreeFee = 12;
} // namespace billnode

/// A tree of bills with the column given. `fields`: what a bill node holds from billnode::Fee on.
void setUpBillTree(TdxTreeList &tree, const char *columnName, const QStringList &fields = {});

/// Rebuilds the tree from the loaded bills: a new group whenever BillCode changes from one row to the next. `fill`
/// gives a bill node, which holds level, key and fields already, its text; the data set stands on its row.
void rebuildBillTree(TdxTreeList &tree, TClientDataSet &bills, const std::function<void(TdxTreeListNode &bill)> &fill);

[[nodiscard]] bool isBillNode(const TdxTreeListNode &node);
[[nodiscard]] data::BillKey billKeyOf(const TdxTreeListNode &bill);
