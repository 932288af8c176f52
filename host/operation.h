// SPDX-License-Identifier: MIT
// One named operation of a host object, found at its first use.
#pragma once

#include "automation/latebound.h"

#include <initializer_list>

namespace host {

class HostOperation {
public:
    constexpr HostOperation(const char *name, automation::Kind kind) noexcept
        : m_name(name)
        , m_kind(kind)
    {
    }

    /// Throws automation::Error, or what the operation raises.
    QVariant operator()(const automation::LateBound &object, std::initializer_list<QVariant> arguments = {})
    {
        if (!m_operation.isResolved())
            m_operation = object.resolve(QString::fromUtf8(m_name), m_kind);
        return object.invoke(m_operation, arguments);
    }

private:
    const char *m_name;
    automation::Kind m_kind;
    automation::Operation m_operation;
};

} // namespace host
