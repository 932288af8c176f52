// SPDX-License-Identifier: MIT
// The institution's code, chosen in the host's look-up dialog.
#pragma once

#include <QString>

class Workbench;

struct Institution {
    QString code;
    QString name;
};

/// Whether a key pressed in the code field opens the look-up. Delete and Backspace do, as character 0.
[[nodiscard]] bool opensCodeSearch(int virtualKey, bool fieldIsEmpty);

/// Shows the look-up, begun with the pressed key's character, and returns what it then holds: whatever the host gives,
/// also when the user cancelled.
[[nodiscard]] Institution searchInstitution(Workbench &workbench, int virtualKey);
