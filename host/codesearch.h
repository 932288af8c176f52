// SPDX-License-Identifier: MIT
// The host's modal code look-up dialog.
#pragma once

#include "host/operation.h"

#include <QString>

namespace host {

/// Prepared by Init and the assignments, then shown; the chosen row's columns are read by their captions.
/// Every call may throw what the host's operation raises, or automation::Error when the host lacks it.
class CodeSearchProxy {
public:
    static constexpr auto Identifier = u"VortaqCore.CodeSearch";

    CodeSearchProxy() = default;
    explicit CodeSearchProxy(automation::LateBound object)
        : m_object(std::move(object))
    {
    }

    void Init() { m_init(m_object); }
    void setTable(const QString &table) { m_table(m_object, {table}); }
    void setWhere(const QString &condition) { m_where(m_object, {condition}); }
    void setOrderBy(const QString &columns) { m_orderBy(m_object, {columns}); }
    void setFieldList(const QString &columns) { m_fieldList(m_object, {columns}); }
    void setCustomField(const QString &column) { m_customField(m_object, {column}); }
    void setCodeType(const QVariant &type) { m_codeType(m_object, {type}); }
    void setCode(const QString &code) { m_code(m_object, {code}); }
    void SetPosition(int first, int second, int third) { m_setPosition(m_object, {first, second, third}); }
    void Show() { m_show(m_object); }
    [[nodiscard]] QString GetCodeValue(const QString &caption)
    {
        return m_getCodeValue(m_object, {caption}).toString();
    }

private:
    automation::LateBound m_object;
    HostOperation m_init{"Init", automation::Kind::Method};
    HostOperation m_table{"Table", automation::Kind::Write};
    HostOperation m_where{"Where", automation::Kind::Write};
    HostOperation m_orderBy{"OrderBy", automation::Kind::Write};
    HostOperation m_fieldList{"FieldList", automation::Kind::Write};
    HostOperation m_customField{"CustomField", automation::Kind::Write};
    HostOperation m_codeType{"CodeType", automation::Kind::Write};
    HostOperation m_code{"Code", automation::Kind::Write};
    HostOperation m_setPosition{"SetPosition", automation::Kind::Method};
    HostOperation m_show{"Show", automation::Kind::Method};
    HostOperation m_getCodeValue{"GetCodeValue", automation::Kind::Method};
};

} // namespace host
