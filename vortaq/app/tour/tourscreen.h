// SPDX-License-Identifier: MIT
// The screen on which a tour takes place.
#pragma once

#include <QTemporaryFile>

namespace vortaq {

/// Chooses Qt's offscreen platform with one screen of a usual size, unless QT_QPA_PLATFORM names another platform. To
/// be made before the application object; without a tour it changes nothing.
class TourScreen {
public:
    explicit TourScreen(bool isTour);

private:
    QTemporaryFile m_configuration;
};

} // namespace vortaq
