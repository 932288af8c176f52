// SPDX-License-Identifier: MIT
// Texts that hold several items between separators.
#pragma once

#include <QString>

namespace common {

enum class Side { Before, After };

/// The part before or after the first separator. Without one (an empty separator never occurs) everything stands
/// before it and nothing after it.
[[nodiscard]] QString splitString(const QString &source, const QString &separator, Side side);

/// One more than there are separators; 0 for an empty source.
[[nodiscard]] int splitItemCount(const QString &source, const QString &separator);

/// The item at a position from 0, trimmed, of the trimmed source. Empty beyond the last item and below 0.
[[nodiscard]] QString splitItem(const QString &source, const QString &separator, int index);

} // namespace common
