// SPDX-License-Identifier: MIT
// A host whose colours are others from one moment to the next.
#pragma once

#include "automation/registry.h"
#include "host/references.h"
#include "vortaq/app/funcstorage.h"

#include <QHash>

#include <memory>

/// From now on, and until another form is opened, the module's host has these parameters and no others.
inline void changeColours(const QHash<QString, QString> &parameters)
{
    const auto session = std::make_shared<vortaq::Session>(nullptr, vortaq::User(), parameters);
    const QString identifier = QString::fromUtf16(host::FuncStorageProxy::Identifier);
    automation::registerObject(identifier,
                               [session] { return std::make_unique<vortaq::FuncStorage>(session, nullptr); });
    host::shared().FuncStorage = host::FuncStorageProxy(automation::LateBound(identifier));
}
