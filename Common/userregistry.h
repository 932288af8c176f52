// SPDX-License-Identifier: MIT
// The current user's registry: Windows' own there, a file in the user's configuration folder elsewhere.
#pragma once

#include <QString>

namespace common {

/// A value below a key such as "Software\\Company\\Program", whole numbers as decimal text. Empty when key or value
/// are missing.
[[nodiscard]] QString registryValue(const QString &keyPath, const QString &valueName);

/// Where the values stand: a registry key, or a file in which sections are key paths written with slashes.
[[nodiscard]] QString registryLocation();

} // namespace common
