// SPDX-License-Identifier: MIT
// The host's two ways of telling a clerk something, behind a seam so that tests can listen.
#pragma once

#include <QString>

namespace vortaq {

class UserMessages {
public:
    UserMessages() = default;
    virtual ~UserMessages() = default;
    UserMessages(const UserMessages &) = delete;
    UserMessages &operator=(const UserMessages &) = delete;

    /// Shows an error and returns when the clerk has read it.
    virtual void alert(const QString &message) = 0;
    /// Shows a message that goes away by itself; returns at once.
    virtual void hint(const QString &message) = 0;
};

} // namespace vortaq
