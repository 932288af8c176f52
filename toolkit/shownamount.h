// SPDX-License-Identifier: MIT
// Amounts where there is too little room for them.
#pragma once

#include <QString>

class QFontMetrics;

namespace toolkit {

[[nodiscard]] bool amountFits(const QString &amount, int width, const QFontMetrics &metrics);

/// The amount, or crosses (####) where it is wider than the room: a part of an amount would be read as another one.
[[nodiscard]] QString shownAmount(const QString &amount, int width, const QFontMetrics &metrics);

} // namespace toolkit
