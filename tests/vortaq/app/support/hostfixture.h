// SPDX-License-Identifier: MIT
// A signed-in session over the scripted engine, its host objects registered and its messages noted.
#pragma once

#include "tests/vortaq/app/support/scriptedengine.h"
#include "vortaq/app/hostobjects.h"
#include "vortaq/app/session.h"
#include "vortaq/app/usermessages.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace vortaq::test {

class NotedMessages : public UserMessages {
public:
    void alert(const QString &message) override { m_noted.append(QStringLiteral("alert ") + message); }
    void hint(const QString &message) override { m_noted.append(QStringLiteral("hint ") + message); }
    [[nodiscard]] const QStringList &noted() const { return m_noted; }

private:
    QStringList m_noted;
};

/// Two users, "01" and "02", with these parameters: AreaCode 4210 for all, isBillAll 1 for all and 2 for user 02.
[[nodiscard]] std::shared_ptr<ScriptedEngine> engineWithUsers();

struct HostFixture {
    explicit HostFixture(const QString &userCode = {}, const std::vector<ParameterOverride> &overrides = {})
        : engine(engineWithUsers())
        , messages(std::make_shared<NotedMessages>())
        , session(signIn(engine, userCode, overrides))
        , objects(session, messages)
        , callsOfSignIn(engine->calls().size())
    {
    }

    /// What reached the engine after the sign-in.
    [[nodiscard]] QStringList calls() const { return engine->calls().mid(callsOfSignIn); }

    std::shared_ptr<ScriptedEngine> engine;
    std::shared_ptr<NotedMessages> messages;
    std::shared_ptr<Session> session;
    HostObjects objects;
    qsizetype callsOfSignIn;
};

} // namespace vortaq::test
