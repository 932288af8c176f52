// SPDX-License-Identifier: MIT
// The one place where Windows colour integers become colours of this platform.
#pragma once

#include <QColor>
#include <QPalette>

#include <cstdint>

namespace toolkit {

/// 0x00BBGGRR for a fixed colour, 0xFF0000nn for system colour nn, 0x1FFFFFFF for "no colour".
using WindowsColour = std::uint32_t;

inline constexpr WindowsColour NoColour = 0x1FFFFFFF;
inline constexpr WindowsColour WindowColour = 0xFF000005; ///< background of a list or an edit
inline constexpr WindowsColour WindowTextColour = 0xFF000008; ///< text on it

[[nodiscard]] constexpr WindowsColour windowsColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return static_cast<WindowsColour>(red) | static_cast<WindowsColour>(green) << 8U
        | static_cast<WindowsColour>(blue) << 16U;
}

/// Invalid for NoColour; system colours come from the palette, unknown ones are the window colour.
[[nodiscard]] QColor toColour(WindowsColour colour, const QPalette &palette);

} // namespace toolkit
