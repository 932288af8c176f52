// SPDX-License-Identifier: MIT
// Answers from the session; messages go to the screen.
#include "vortaq/app/funcstorage.h"

#include "vortaq/app/lookup/lookupmatch.h"

namespace vortaq {

FuncStorage::FuncStorage(std::shared_ptr<Session> session, std::shared_ptr<UserMessages> messages)
    : m_session(std::move(session))
    , m_messages(std::move(messages))
{
}

QVariant FuncStorage::CustomParam(const QString &name)
{
    return m_session->parameter(name);
}

void FuncStorage::Alert(const QString &message)
{
    m_messages->alert(message);
}

void FuncStorage::ShowHint(const QString &message)
{
    m_messages->hint(message);
}

QString FuncStorage::UserName()
{
    return m_session->user().name;
}

QString FuncStorage::UserID()
{
    return m_session->user().code;
}

QString FuncStorage::RightParam()
{
    return m_session->user().rights;
}

QVariant FuncStorage::GetSRM()
{
    return LookupMatch::fromParameter(m_session->parameter(QStringLiteral("LookupBy")).toString()).toVariant();
}

} // namespace vortaq
