// SPDX-License-Identifier: MIT
// Facts of the logged-in user and the host's message display.
#pragma once

#include "host/operation.h"

#include <QString>

namespace host {

/// Every call may throw what the host's operation raises, or automation::Error when the host lacks it.
class FuncStorageProxy {
public:
    static constexpr auto Identifier = u"VortaqCore.FuncStorage";

    FuncStorageProxy() = default;
    explicit FuncStorageProxy(automation::LateBound object)
        : m_object(std::move(object))
    {
    }

    /// A named host parameter (names: host/parameters.h). What an unknown name gives is the host's.
    [[nodiscard]] QVariant CustomParam(const QString &name) { return m_customParam(m_object, {name}); }

    /// Shows an error message; returns when the user has seen it.
    void Alert(const QString &text) { m_alert(m_object, {text}); }
    /// Shows a transient success message; returns at once.
    void ShowHint(const QString &text) { m_showHint(m_object, {text}); }

    [[nodiscard]] QString UserName() { return m_userName(m_object).toString(); }
    [[nodiscard]] QString UserID() { return m_userId(m_object).toString(); }
    /// The granted function numbers in one text; a number is granted when its decimal text occurs anywhere in it.
    [[nodiscard]] QString RightParam() { return m_rightParam(m_object).toString(); }
    /// An opaque value for CodeSearchProxy::setCodeType().
    [[nodiscard]] QVariant GetSRM() { return m_getSrm(m_object); }

private:
    automation::LateBound m_object;
    HostOperation m_customParam{"CustomParam", automation::Kind::Read};
    HostOperation m_alert{"Alert", automation::Kind::Method};
    HostOperation m_showHint{"ShowHint", automation::Kind::Method};
    HostOperation m_userName{"UserName", automation::Kind::Method};
    HostOperation m_userId{"UserID", automation::Kind::Method};
    HostOperation m_rightParam{"RightParam", automation::Kind::Method};
    HostOperation m_getSrm{"GetSRM", automation::Kind::Method};
};

} // namespace host
