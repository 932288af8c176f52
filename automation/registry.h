// SPDX-License-Identifier: MIT
// Where a host announces its objects and a module creates them, by identifier.
#pragma once

#include "automation/export.h"

#include <QString>

#include <functional>
#include <memory>

class QObject;

namespace automation {

/// Makes a new host object; its operations are the object's invokable methods and properties (see LateBound).
using ObjectFactory = std::function<std::unique_ptr<QObject>()>;

/// Announces objects under `identifier` (for example "VortaqCore.DataCtl"; letter case does not count).
/// A second registration replaces the first.
AUTOMATION_EXPORT void registerObject(const QString &identifier, const ObjectFactory &factory);

/// Takes the announcement back; objects already created live on.
AUTOMATION_EXPORT void unregisterObject(const QString &identifier);

/// Creates a new object. Throws Error(UnknownIdentifier) when nothing is registered under the identifier.
[[nodiscard]] AUTOMATION_EXPORT std::unique_ptr<QObject> createObject(const QString &identifier);

} // namespace automation
