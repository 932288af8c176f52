// SPDX-License-Identifier: MIT
// Where a window stands on its screen.
#pragma once

#include <QByteArray>
#include <QSize>

class QWidget;

namespace vortaq {

/// The first place of a window that was not shown yet: `wanted` in the middle of the screen, or the whole screen where
/// that is nearly all of it, or more.
void placeOnScreen(QWidget &window, const QSize &wanted);

/// The place that saveGeometry() wrote down. A window that the screen has no room for any more gets the whole screen; a
/// place that cannot be read, or belongs to quite another screen, changes nothing.
void restorePlace(QWidget &window, const QByteArray &geometry);

} // namespace vortaq
