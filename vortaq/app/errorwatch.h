// SPDX-License-Identifier: MIT
// Notices errors while something is done whose own result does not tell of them.
#pragma once

#include "automation/errordisplay.h"

namespace vortaq {

/// Errors displayed during its lifetime go on to the display that was set before. Watches end in the reverse order of
/// their beginning, and the display is not changed otherwise meanwhile.
class ErrorWatch {
public:
    ErrorWatch();
    ~ErrorWatch();
    ErrorWatch(const ErrorWatch &) = delete;
    ErrorWatch &operator=(const ErrorWatch &) = delete;

    [[nodiscard]] bool hasSeenError() const { return m_hasSeenError; }

private:
    void passOn(const QString &message);

    automation::ErrorDisplay m_display;
    bool m_hasSeenError = false;
};

} // namespace vortaq
