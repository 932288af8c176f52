// SPDX-License-Identifier: MIT
#include "automation/registry.h"

#include "automation/error.h"

#include <QHash>
#include <QObject>

namespace automation {

namespace {

QHash<QString, ObjectFactory> &factories()
{
    static QHash<QString, ObjectFactory> table;
    return table;
}

} // namespace

void registerObject(const QString &identifier, const ObjectFactory &factory)
{
    factories().insert(identifier.toLower(), factory);
}

void unregisterObject(const QString &identifier)
{
    factories().remove(identifier.toLower());
}

std::unique_ptr<QObject> createObject(const QString &identifier)
{
    const auto found = factories().constFind(identifier.toLower());
    if (found == factories().constEnd())
        throw Error(Error::Reason::UnknownIdentifier, QStringLiteral("主程序没有提供对象“%1”。").arg(identifier));
    return (*found)();
}

} // namespace automation
