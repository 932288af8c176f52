// SPDX-License-Identifier: MIT
// Key events as Windows virtual-key codes, in which handlers and host objects name keys.
#pragma once

class QKeyEvent;

namespace toolkit {

namespace virtualkey {
inline constexpr int Back = 8;
inline constexpr int Return = 13;
inline constexpr int Shift = 16;
inline constexpr int Control = 17;
inline constexpr int Menu = 18; ///< the Alt key
inline constexpr int Escape = 27;
inline constexpr int Delete = 46;
} // namespace virtualkey

/// Letters give their upper-case code, digits their own, whether Shift is held or not. The number pad's digits and
/// signs have codes of their own. -1 for a key without a code.
[[nodiscard]] int virtualKey(const QKeyEvent &event);

} // namespace toolkit
