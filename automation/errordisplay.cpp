// SPDX-License-Identifier: MIT
#include "automation/errordisplay.h"

#include "automation/error.h"

#include <QDebug>

#include <utility>

namespace automation {

namespace {

ErrorDisplay &current()
{
    static ErrorDisplay display;
    return display;
}

} // namespace

ErrorDisplay setErrorDisplay(ErrorDisplay display)
{
    return std::exchange(current(), std::move(display));
}

void displayError(const QString &message) noexcept
{
    try {
        if (current())
            current()(message);
        else
            qCritical().noquote() << message;
    } catch (...) {
        qCritical().noquote() << message << messageOfCurrent();
    }
}

} // namespace automation
