// SPDX-License-Identifier: MIT
// How the module announces itself to a host.
#pragma once

#include <array>

namespace module {

/// "Tarnwell,Logic(业务管理),Kesmor(参合住院报销制单),2(4)," as 55 GBK bytes and a terminating zero.
inline constexpr std::array<char, 56> ModuleInfo = {
    "Tarnwell,Logic(\xD2\xB5\xCE\xF1\xB9\xDC\xC0\xED),Kesmor("
    "\xB2\xCE\xBA\xCF\xD7\xA1\xD4\xBA\xB1\xA8\xCF\xFA\xD6\xC6\xB5\xA5),2(4),"};

} // namespace module
