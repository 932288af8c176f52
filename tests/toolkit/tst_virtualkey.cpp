// SPDX-License-Identifier: MIT
// Every key of a keyboard by the code under which hosts know it.
#include "toolkit/virtualkey.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

namespace {

struct KeyRow {
    int key;
    int code;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

int codeOf(const KeyRow &row)
{
    return toolkit::virtualKey(QKeyEvent(QEvent::KeyPress, row.key, row.modifiers));
}

template <std::size_t Count> void expectCodes(const KeyRow (&rows)[Count])
{
    for (const KeyRow &row : rows)
        EXPECT_EQ(codeOf(row), row.code) << std::hex << row.key << " with " << row.modifiers.toInt();
}

} // namespace

TEST(VirtualKey, lettersAreTheirCapitals)
{
    for (int letter = 'A'; letter <= 'Z'; ++letter) {
        for (const Qt::KeyboardModifier held : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier})
            EXPECT_EQ(codeOf({letter, letter, held}), letter);
    }
}

TEST(VirtualKey, digitsAreThemselvesWithShiftToo)
{
    for (int digit = '0'; digit <= '9'; ++digit)
        EXPECT_EQ(codeOf({digit, digit}), digit);
    const KeyRow shifted[] = {
        {Qt::Key_ParenRight, '0', Qt::ShiftModifier},  {Qt::Key_Exclam, '1', Qt::ShiftModifier},
        {Qt::Key_At, '2', Qt::ShiftModifier},          {Qt::Key_NumberSign, '3', Qt::ShiftModifier},
        {Qt::Key_Dollar, '4', Qt::ShiftModifier},      {Qt::Key_Percent, '5', Qt::ShiftModifier},
        {Qt::Key_AsciiCircum, '6', Qt::ShiftModifier}, {Qt::Key_Ampersand, '7', Qt::ShiftModifier},
        {Qt::Key_Asterisk, '8', Qt::ShiftModifier},    {Qt::Key_ParenLeft, '9', Qt::ShiftModifier},
    };
    expectCodes(shifted);
}

TEST(VirtualKey, theNumberPadHasCodesOfItsOwn)
{
    for (int digit = 0; digit <= 9; ++digit)
        EXPECT_EQ(codeOf({'0' + digit, 0, Qt::KeypadModifier}), 96 + digit);
    const KeyRow signs[] = {
        {Qt::Key_Asterisk, 106, Qt::KeypadModifier}, {Qt::Key_Plus, 107, Qt::KeypadModifier},
        {Qt::Key_Minus, 109, Qt::KeypadModifier},    {Qt::Key_Period, 110, Qt::KeypadModifier},
        {Qt::Key_Comma, 110, Qt::KeypadModifier},    {Qt::Key_Slash, 111, Qt::KeypadModifier},
        {Qt::Key_Enter, 13, Qt::KeypadModifier},     {Qt::Key_Asterisk, 106, Qt::KeypadModifier | Qt::ShiftModifier},
    };
    expectCodes(signs);
}

TEST(VirtualKey, theNumberPadWithoutNumLockMovesAndDeletes)
{
    const KeyRow keys[] = {
        {Qt::Key_Insert, 45, Qt::KeypadModifier}, {Qt::Key_End, 35, Qt::KeypadModifier},
        {Qt::Key_Down, 40, Qt::KeypadModifier},   {Qt::Key_PageDown, 34, Qt::KeypadModifier},
        {Qt::Key_Left, 37, Qt::KeypadModifier},   {Qt::Key_Clear, 12, Qt::KeypadModifier},
        {Qt::Key_Right, 39, Qt::KeypadModifier},  {Qt::Key_Home, 36, Qt::KeypadModifier},
        {Qt::Key_Up, 38, Qt::KeypadModifier},     {Qt::Key_PageUp, 33, Qt::KeypadModifier},
        {Qt::Key_Delete, 46, Qt::KeypadModifier},
    };
    expectCodes(keys);
}

TEST(VirtualKey, signsAreTheirKeysWithShiftAndWithout)
{
    const KeyRow keys[] = {
        {Qt::Key_Semicolon, 186},    {Qt::Key_Colon, 186, Qt::ShiftModifier},
        {Qt::Key_Equal, 187},        {Qt::Key_Plus, 187, Qt::ShiftModifier},
        {Qt::Key_Comma, 188},        {Qt::Key_Less, 188, Qt::ShiftModifier},
        {Qt::Key_Minus, 189},        {Qt::Key_Underscore, 189, Qt::ShiftModifier},
        {Qt::Key_Period, 190},       {Qt::Key_Greater, 190, Qt::ShiftModifier},
        {Qt::Key_Slash, 191},        {Qt::Key_Question, 191, Qt::ShiftModifier},
        {Qt::Key_QuoteLeft, 192},    {Qt::Key_AsciiTilde, 192, Qt::ShiftModifier},
        {Qt::Key_BracketLeft, 219},  {Qt::Key_BraceLeft, 219, Qt::ShiftModifier},
        {Qt::Key_Backslash, 220},    {Qt::Key_Bar, 220, Qt::ShiftModifier},
        {Qt::Key_BracketRight, 221}, {Qt::Key_BraceRight, 221, Qt::ShiftModifier},
        {Qt::Key_Apostrophe, 222},   {Qt::Key_QuoteDbl, 222, Qt::ShiftModifier},
    };
    expectCodes(keys);
}

TEST(VirtualKey, otherKeysHaveTheirCodes)
{
    const KeyRow keys[] = {
        {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9, Qt::ShiftModifier},
        {Qt::Key_Return, 13},   {Qt::Key_Shift, 16},    {Qt::Key_Control, 17},
        {Qt::Key_Alt, 18},      {Qt::Key_AltGr, 18},    {Qt::Key_Pause, 19},
        {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},   {Qt::Key_Space, 32},
        {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},
        {Qt::Key_Home, 36},     {Qt::Key_Left, 37},     {Qt::Key_Up, 38},
        {Qt::Key_Right, 39},    {Qt::Key_Down, 40},     {Qt::Key_Insert, 45},
        {Qt::Key_Delete, 46},   {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145},
        {Qt::Key_F1, 112},      {Qt::Key_F12, 123},     {Qt::Key_F24, 135},
    };
    expectCodes(keys);
}

TEST(VirtualKey, keysOfOtherKeyboardsHaveNone)
{
    const KeyRow keys[] = {{Qt::Key_unknown, -1}, {Qt::Key_VolumeUp, -1}, {Qt::Key_Udiaeresis, -1}};
    expectCodes(keys);
}
