// SPDX-License-Identifier: MIT
// Trimming as the Pascal runtime and Windows do it.
#pragma once

#include <QStringView>

namespace common {

/// Without the blanks and control characters at both ends. Wide blanks (U+3000) are text and stay.
[[nodiscard]] inline QStringView trimmed(QStringView text)
{
    while (!text.isEmpty() && text.front() <= u' ')
        text = text.sliced(1);
    while (!text.isEmpty() && text.back() <= u' ')
        text.chop(1);
    return text;
}

} // namespace common
