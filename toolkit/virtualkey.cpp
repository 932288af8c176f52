// SPDX-License-Identifier: MIT
#include "toolkit/virtualkey.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>
#include <utility>

namespace toolkit {

namespace {

// Source: the virtual-key code table of the Windows user-interface documentation.
constexpr std::array<std::pair<int, int>, 58> SpecialKeys = {{
    {Qt::Key_Backspace, virtualkey::Back},
    {Qt::Key_Tab, 9},
    {Qt::Key_Backtab, 9},
    {Qt::Key_Return, virtualkey::Return},
    {Qt::Key_Enter, virtualkey::Return},
    {Qt::Key_Shift, virtualkey::Shift},
    {Qt::Key_Control, virtualkey::Control},
    {Qt::Key_Alt, virtualkey::Menu},
    {Qt::Key_AltGr, virtualkey::Menu},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, virtualkey::Escape},
    {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},
    {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},
    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, virtualkey::Delete},
    {Qt::Key_Exclam, '1'}, // here and below: what Shift makes of a key in the layout that Chinese keyboards have
    {Qt::Key_At, '2'},
    {Qt::Key_NumberSign, '3'},
    {Qt::Key_Dollar, '4'},
    {Qt::Key_Percent, '5'},
    {Qt::Key_AsciiCircum, '6'},
    {Qt::Key_Ampersand, '7'},
    {Qt::Key_Asterisk, '8'},
    {Qt::Key_ParenLeft, '9'},
    {Qt::Key_ParenRight, '0'},
    {Qt::Key_Plus, 187},
    {Qt::Key_Semicolon, 186},
    {Qt::Key_Colon, 186},
    {Qt::Key_Equal, 187},
    {Qt::Key_Comma, 188},
    {Qt::Key_Less, 188},
    {Qt::Key_Minus, 189},
    {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},
    {Qt::Key_Greater, 190},
    {Qt::Key_Slash, 191},
    {Qt::Key_Question, 191},
    {Qt::Key_QuoteLeft, 192},
    {Qt::Key_AsciiTilde, 192},
    {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219},
    {Qt::Key_Backslash, 220},
    {Qt::Key_Bar, 220},
    {Qt::Key_BracketRight, 221},
    {Qt::Key_BraceRight, 221},
    {Qt::Key_Apostrophe, 222},
    {Qt::Key_QuoteDbl, 222},
    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
}};

/// The keys of the number pad that have codes of their own, beside its digits. With Num Lock off they are arrows and
/// the like, and have the codes of those.
constexpr std::array<std::pair<int, int>, 7> PadKeys = {{
    {Qt::Key_Clear, 12}, // the 5
    {Qt::Key_Asterisk, 106},
    {Qt::Key_Plus, 107},
    {Qt::Key_Minus, 109},
    {Qt::Key_Period, 110},
    {Qt::Key_Comma, 110}, // where the point is a comma
    {Qt::Key_Slash, 111},
}};

constexpr int FirstPadDigit = 96;
constexpr int FirstFunctionKey = 112;

template <std::size_t Count> int codeIn(const std::array<std::pair<int, int>, Count> &keys, int key)
{
    const auto *found = std::find_if(keys.begin(), keys.end(), [key](const auto &entry) { return entry.first == key; });
    return found != keys.end() ? found->second : -1;
}

} // namespace

int virtualKey(const QKeyEvent &event)
{
    const int key = event.key();
    const bool isDigit = key >= Qt::Key_0 && key <= Qt::Key_9;
    if (event.modifiers().testFlag(Qt::KeypadModifier)) {
        const int code = isDigit ? key - Qt::Key_0 + FirstPadDigit : codeIn(PadKeys, key);
        if (code >= 0)
            return code;
    }
    if (isDigit || (key >= Qt::Key_A && key <= Qt::Key_Z))
        return key; // Qt's codes of letters and digits are the characters, as the virtual-key codes are
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return key - Qt::Key_F1 + FirstFunctionKey;
    return codeIn(SpecialKeys, key);
}

} // namespace toolkit
