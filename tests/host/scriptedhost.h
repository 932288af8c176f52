// SPDX-License-Identifier: MIT
// Host objects that note every call and fail where they are told to: for failures that no database produces on demand.
#pragma once

#include "automation/datapacket.h"
#include "automation/latebound.h"
#include "automation/registry.h"

#include <QHash>
#include <QObject>
#include <QStringList>

#include <stdexcept>

struct HostScript {
    QStringList calls;
    QString failingCall; ///< the call, as it stands in `calls`, that raises an error
    bool failsOddly = false; ///< with something that is no std::exception
    QHash<QString, QVariant> parameters;
    automation::DataPacketPtr rows = automation::DataPacketBuilder({}).finish();

    void note(const QString &call)
    {
        calls.append(call);
        if (call == failingCall)
            failsOddly ? throw 42 : throw std::runtime_error("故障");
    }
};

class ScriptedObject : public QObject {
public:
    explicit ScriptedObject(HostScript &script)
        : m_script(script)
    {
    }

protected:
    HostScript &m_script;
};

class ScriptedDataCtl : public ScriptedObject {
    Q_OBJECT

public:
    using ScriptedObject::ScriptedObject;
    Q_INVOKABLE QVariant OpenSql(const QString &sql)
    {
        m_script.note(QStringLiteral("OpenSql ") + sql);
        return QVariant::fromValue(m_script.rows);
    }
    Q_INVOKABLE void CloseSql() { m_script.note(QStringLiteral("CloseSql")); }
    Q_INVOKABLE void execSql(const QString &sql) { m_script.note(QStringLiteral("execSql ") + sql); }
    Q_INVOKABLE void BeginTran() { m_script.note(QStringLiteral("BeginTran")); }
    Q_INVOKABLE void CommitTran() { m_script.note(QStringLiteral("CommitTran")); }
    Q_INVOKABLE void RollbackTran() { m_script.note(QStringLiteral("RollbackTran")); }
};

class ScriptedFuncStorage : public ScriptedObject {
    Q_OBJECT

public:
    using ScriptedObject::ScriptedObject;
    Q_INVOKABLE AUTOMATION_READ QVariant CustomParam(const QString &name)
    {
        m_script.note(QStringLiteral("CustomParam ") + name);
        return m_script.parameters.value(name);
    }
    Q_INVOKABLE void Alert(const QString &text) { m_script.note(QStringLiteral("Alert ") + text); }
    Q_INVOKABLE void ShowHint(const QString &text) { m_script.note(QStringLiteral("ShowHint ") + text); }
    Q_INVOKABLE QString UserName() { return QStringLiteral("王会计"); }
    Q_INVOKABLE QString UserID()
    {
        m_script.note(QStringLiteral("UserID"));
        return QStringLiteral("02");
    }
    Q_INVOKABLE QVariant GetSRM() { return 7; }
};

class ScriptedCodeSearch : public ScriptedObject {
    Q_OBJECT
    Q_PROPERTY(QString Table READ table WRITE setTable)

public:
    using ScriptedObject::ScriptedObject;
    [[nodiscard]] QString table() const { return {}; }
    void setTable(const QString &table) { m_script.note(QStringLiteral("Table ") + table); }
};

/// Announces the three objects while it lives.
class ScriptedHost {
public:
    ScriptedHost()
    {
        announce<ScriptedDataCtl>(DataCtl);
        announce<ScriptedFuncStorage>(FuncStorage);
        announce<ScriptedCodeSearch>(CodeSearch);
    }
    ~ScriptedHost()
    {
        for (const QString &identifier : {DataCtl, FuncStorage, CodeSearch})
            automation::unregisterObject(identifier);
    }
    Q_DISABLE_COPY(ScriptedHost)

    HostScript script;
    QStringList created; ///< identifiers in the order of creation

private:
    template <typename Object> void announce(const QString &identifier)
    {
        automation::registerObject(identifier, [this, identifier] {
            created.append(identifier);
            return std::make_unique<Object>(script);
        });
    }

    const QString DataCtl = QStringLiteral("VortaqCore.DataCtl");
    const QString FuncStorage = QStringLiteral("VortaqCore.FuncStorage");
    const QString CodeSearch = QStringLiteral("VortaqCore.CodeSearch");
};
