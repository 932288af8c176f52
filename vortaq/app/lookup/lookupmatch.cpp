// SPDX-License-Identifier: MIT
// Reads and writes the opaque value.
#include "vortaq/app/lookup/lookupmatch.h"

#include <QVariantMap>

namespace vortaq {

LookupMatch LookupMatch::fromParameter(const QString &lookupBy)
{
    return {lookupBy != QLatin1String("name"), lookupBy != QLatin1String("code")};
}

LookupMatch LookupMatch::fromVariant(const QVariant &value)
{
    const QVariantMap map = value.toMap();
    return {map.value(QStringLiteral("byCode"), true).toBool(), map.value(QStringLiteral("byName"), true).toBool()};
}

QVariant LookupMatch::toVariant() const
{
    return QVariantMap{{QStringLiteral("byCode"), byCode}, {QStringLiteral("byName"), byName}};
}

} // namespace vortaq
