// SPDX-License-Identifier: MIT
// Commands that a user has no right to are disabled.
#pragma once

class QObject;

/// Every button and menu item of the form carries its function number in the property "tag"; 0 or none means that it
/// is open to everybody. A command is disabled when the decimal text of its number occurs nowhere in the host's
/// RightParam, so that a granted 12 also grants 1 and 2. Nothing is ever enabled here. RightParam is asked once for
/// each tagged command.
void applyRights(const QObject &form);
