// SPDX-License-Identifier: MIT
// The host object "VortaqCore.FuncStorage": facts of the clerk at work, and the host's messages.
#pragma once

#include "vortaq/app/session.h"
#include "vortaq/app/usermessages.h"

#include "automation/latebound.h"

#include <QObject>
#include <QVariant>

#include <memory>

namespace vortaq {

class FuncStorage : public QObject {
    Q_OBJECT

public:
    FuncStorage(std::shared_ptr<Session> session, std::shared_ptr<UserMessages> messages);

    /// The named parameter as text; an unknown name gives an invalid variant.
    Q_INVOKABLE AUTOMATION_READ QVariant CustomParam(const QString &name);
    Q_INVOKABLE void Alert(const QString &message);
    Q_INVOKABLE void ShowHint(const QString &message);
    Q_INVOKABLE QString UserName();
    Q_INVOKABLE QString UserID();
    Q_INVOKABLE QString RightParam();
    /// The clerk's way of looking codes up (LookupMatch), to be handed to CodeSearch.CodeType unchanged.
    Q_INVOKABLE QVariant GetSRM();

private:
    std::shared_ptr<Session> m_session;
    std::shared_ptr<UserMessages> m_messages;
};

} // namespace vortaq
