// SPDX-License-Identifier: MIT
// A moment as decimal text.
#pragma once

#include <QDateTime>
#include <QString>

namespace common {

/// Year, month, day, hour, minute, second and millisecond, each in its full width: "20261121081503042".
[[nodiscard]] QString sysTimeText(const QDateTime &moment);

} // namespace common
