// SPDX-License-Identifier: MIT
// Announces the three host objects for as long as a session lasts.
#pragma once

#include "vortaq/app/session.h"
#include "vortaq/app/usermessages.h"

#include <memory>

namespace vortaq {

/// Registers "VortaqCore.DataCtl", "VortaqCore.FuncStorage" and "VortaqCore.CodeSearch", and takes them back when it
/// goes. Objects already created keep the session and live on.
class HostObjects {
public:
    HostObjects(const std::shared_ptr<Session> &session, const std::shared_ptr<UserMessages> &messages);
    ~HostObjects();
    HostObjects(const HostObjects &) = delete;
    HostObjects &operator=(const HostObjects &) = delete;
};

} // namespace vortaq
