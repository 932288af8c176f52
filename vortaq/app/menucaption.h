// SPDX-License-Identifier: MIT
// Foreign captions in menus and on buttons.
#pragma once

#include <QString>

namespace vortaq {

/// The caption with "&" shown as itself. A module's buttons own the Alt shortcuts while its form is open, so nothing of
/// the host's that is visible at the same time may claim one.
[[nodiscard]] inline QString menuCaption(QString caption)
{
    return caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace vortaq
