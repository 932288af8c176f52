// SPDX-License-Identifier: MIT
// The current user's registry: Windows' own there, a file in the user's configuration folder elsewhere.
#pragma once

#include <QString>

namespace common {

/// A value of a key below the current user's, such as "Software\\Company\\Program" (separators at its ends do not
/// count): a text as it is, a whole number as decimal text. Letter case does not matter. Empty when key or value are
/// missing.
[[nodiscard]] QString registryValue(const QString &keyPath, const QString &valueName);

/// Where the values stand: a registry key, or a file in which sections are key paths written with slashes.
[[nodiscard]] QString registryLocation();

} // namespace common
