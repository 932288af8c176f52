// SPDX-License-Identifier: MIT
// The order of nodes by one column, as a clerk expects it.
#pragma once

#include <Qt>

#include <vector>

namespace toolkit::treelist {

class NodeStore;

enum class SortKind {
    Amounts, ///< numbers before whatever is no number
    Texts ///< as numbers when every text that is not empty is one
};

/// The nodes in sorted order. Cells without text come first (last when descending), Chinese goes by pinyin, digits
/// inside text by their value ("5岁" before "45岁"), letter case decides last. Equal cells keep the order of `nodes`,
/// descending too.
[[nodiscard]] std::vector<int> sortedNodes(const NodeStore &store, const std::vector<int> &nodes, int position,
                                           SortKind kind, Qt::SortOrder order);

} // namespace toolkit::treelist
