// SPDX-License-Identifier: MIT
// Identifiers and factories of the host objects.
#include "vortaq/app/hostobjects.h"

#include "vortaq/app/datactl.h"
#include "vortaq/app/funcstorage.h"
#include "vortaq/app/lookup/codesearch.h"

#include "automation/registry.h"

namespace vortaq {

namespace {

QString dataCtlIdentifier()
{
    return QStringLiteral("VortaqCore.DataCtl");
}
QString funcStorageIdentifier()
{
    return QStringLiteral("VortaqCore.FuncStorage");
}
QString codeSearchIdentifier()
{
    return QStringLiteral("VortaqCore.CodeSearch");
}

} // namespace

HostObjects::HostObjects(const std::shared_ptr<Session> &session, const std::shared_ptr<UserMessages> &messages)
{
    automation::registerObject(dataCtlIdentifier(), [session] { return std::make_unique<DataCtl>(session); });
    automation::registerObject(funcStorageIdentifier(),
                               [session, messages] { return std::make_unique<FuncStorage>(session, messages); });
    automation::registerObject(codeSearchIdentifier(), [session] { return std::make_unique<CodeSearch>(session); });
}

HostObjects::~HostObjects()
{
    automation::unregisterObject(dataCtlIdentifier());
    automation::unregisterObject(funcStorageIdentifier());
    automation::unregisterObject(codeSearchIdentifier());
}

} // namespace vortaq
