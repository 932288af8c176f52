// SPDX-License-Identifier: MIT
// A moment as decimal text.
#include "Common/systime.h"

namespace common {

QString sysTimeText(const QDateTime &moment)
{
    return moment.toString(QStringLiteral("yyyyMMddHHmmsszzz"));
}

} // namespace common
