// SPDX-License-Identifier: MIT
// Stands before the error display.
#include "vortaq/app/errorwatch.h"

#include "vortaq/app/console.h"

#include <utility>

namespace vortaq {

ErrorWatch::ErrorWatch()
    : m_display(automation::setErrorDisplay([this](const QString &message) { passOn(message); }))
{
}

ErrorWatch::~ErrorWatch()
{
    automation::setErrorDisplay(std::move(m_display));
}

void ErrorWatch::passOn(const QString &message)
{
    m_hasSeenError = true;
    if (m_display)
        m_display(message);
    else
        writeError(message);
}

} // namespace vortaq
