// SPDX-License-Identifier: MIT
// What a clerk's typing is compared with in the code look-up: the value that travels from GetSRM to CodeType.
#pragma once

#include <QString>
#include <QVariant>

namespace vortaq {

/// Opaque to a module. The host parameter "LookupBy" chooses: "code" or "name"; anything else means both.
struct LookupMatch {
    bool byCode = true;
    bool byName = true;

    [[nodiscard]] static LookupMatch fromParameter(const QString &lookupBy);
    /// A value that holds no such choice means both.
    [[nodiscard]] static LookupMatch fromVariant(const QVariant &value);
    [[nodiscard]] QVariant toVariant() const;

    bool operator==(const LookupMatch &) const = default;
};

} // namespace vortaq
