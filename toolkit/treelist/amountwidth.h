// SPDX-License-Identifier: MIT
// The room that a column of amounts needs.
#pragma once

#include <vector>

class QFontMetrics;
class TdxTreeListCurrencyColumn;

namespace toolkit::treelist {

class NodeStore;

/// Width (pixels) of the widest amount that the nodes can show in the column, without a margin. Digits are counted, not
/// drawn: hundreds of thousands of amounts cost little more than reading them. Texts that are no amounts do not count.
[[nodiscard]] int amountWidth(const NodeStore &store, const std::vector<int> &nodes,
                              const TdxTreeListCurrencyColumn &column, const QFontMetrics &metrics);

} // namespace toolkit::treelist
