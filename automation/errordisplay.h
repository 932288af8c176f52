// SPDX-License-Identifier: MIT
// The way of an error that no handler caught to the host, which shows it and lets the program go on.
#pragma once

#include "automation/export.h"

#include <QString>

#include <functional>

namespace automation {

using ErrorDisplay = std::function<void(const QString &message)>;

/// Set by the host; an empty function takes the display back. Returns the display set before.
AUTOMATION_EXPORT ErrorDisplay setErrorDisplay(ErrorDisplay display);

/// Hands a message to the host's display; without one it goes to the log. Never throws.
AUTOMATION_EXPORT void displayError(const QString &message) noexcept;

} // namespace automation
