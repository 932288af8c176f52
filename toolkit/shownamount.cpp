// SPDX-License-Identifier: MIT
#include "toolkit/shownamount.h"

#include <QFontMetrics>

#include <algorithm>

namespace toolkit {

bool amountFits(const QString &amount, int width, const QFontMetrics &metrics)
{
    return metrics.horizontalAdvance(amount) <= width;
}

QString shownAmount(const QString &amount, int width, const QFontMetrics &metrics)
{
    if (amountFits(amount, width, metrics))
        return amount;
    constexpr int crosses = 4;
    return QString(std::clamp(width / metrics.horizontalAdvance(u'#'), 1, crosses), u'#');
}

} // namespace toolkit
