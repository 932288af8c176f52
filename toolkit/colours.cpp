// SPDX-License-Identifier: MIT
// Windows colour integers in this platform's palette.
#include "toolkit/colours.h"

#include <array>

namespace toolkit {

namespace {

/// Windows system colours by their number.
constexpr std::array systemColours = {
    QPalette::Mid, // 0 scroll bar
    QPalette::Dark, // 1 desktop
    QPalette::Highlight, // 2 active caption
    QPalette::Mid, // 3 inactive caption
    QPalette::Window, // 4 menu
    QPalette::Base, // 5 window
    QPalette::Shadow, // 6 window frame
    QPalette::WindowText, // 7 menu text
    QPalette::Text, // 8 window text
    QPalette::HighlightedText, // 9 caption text
    QPalette::Mid, // 10 active border
    QPalette::Mid, // 11 inactive border
    QPalette::Dark, // 12 application workspace
    QPalette::Highlight, // 13 highlight
    QPalette::HighlightedText, // 14 highlighted text
    QPalette::Button, // 15 button face
    QPalette::Dark, // 16 button shadow
    QPalette::PlaceholderText, // 17 grey text
    QPalette::ButtonText, // 18 button text
    QPalette::WindowText, // 19 inactive caption text
    QPalette::Light, // 20 button highlight
    QPalette::Shadow, // 21 dark shadow
    QPalette::Midlight, // 22 light edge
    QPalette::ToolTipText, // 23 text of a hint
    QPalette::ToolTipBase, // 24 background of a hint
};

constexpr WindowsColour systemMark = 0xFF000000;

} // namespace

QColor toColour(WindowsColour colour, const QPalette &palette)
{
    if (colour == NoColour)
        return {};
    if (colour <= 0x00FFFFFF) {
        const auto part = [colour](int shift) { return static_cast<int>(colour >> shift & 0xFFU); };
        return {part(0), part(8), part(16)};
    }
    const WindowsColour number = colour - systemMark;
    if (colour >= systemMark && number < systemColours.size())
        return palette.color(systemColours[number]);
    return palette.color(QPalette::Base);
}

} // namespace toolkit
