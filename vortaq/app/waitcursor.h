// SPDX-License-Identifier: MIT
// The wait cursor for as long as a scope lasts, exceptions included.
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace vortaq {

class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};

} // namespace vortaq
