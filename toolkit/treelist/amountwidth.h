// SPDX-License-Identifier: MIT
// The room that a column of amounts needs.
#pragma once

#include <vector>

class QFontMetrics;
class TdxTreeListCurrencyColumn;

namespace toolkit::treelist {

class NodeStore;

/// For each column the width (pixels) of the widest amount that the nodes can show in it, without a margin. Digits are
/// counted, not drawn: hundreds of thousands of amounts cost little more than reading them, which is done row by row.
/// Texts that are no amounts do not count.
[[nodiscard]] std::vector<int> amountWidths(const NodeStore &store, const std::vector<int> &nodes,
                                            const std::vector<const TdxTreeListCurrencyColumn *> &columns,
                                            const QFontMetrics &metrics);

} // namespace toolkit::treelist
