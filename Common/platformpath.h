// SPDX-License-Identifier: MIT
// Paths are written as Windows spells them; here they become this platform's.
#pragma once

#include <QString>

namespace common {

/// "Module\\结算单.rmf" with this platform's separators. Doubled separators stay doubled.
[[nodiscard]] QString platformPath(const QString &windowsPath);

} // namespace common
