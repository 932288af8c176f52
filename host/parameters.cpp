// SPDX-License-Identifier: MIT
#include "host/parameters.h"

#include <limits>
#include <stdexcept>

namespace host {

bool equals(const QVariant &value, const QString &text)
{
    return value.toString() == text;
}

std::uint32_t toColour(const QVariant &value)
{
    bool isInteger = false;
    const qlonglong number = value.toLongLong(&isInteger);
    if (!isInteger || number < std::numeric_limits<std::int32_t>::min()
        || number > std::numeric_limits<std::uint32_t>::max())
        throw std::invalid_argument(QStringLiteral("颜色参数“%1”不是有效的整数。").arg(value.toString()).toStdString());
    return static_cast<std::uint32_t>(number);
}

} // namespace host
