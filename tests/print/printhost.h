// SPDX-License-Identifier: MIT
// A host that answers queries from a list and procedure calls with one text.
#pragma once

#include "automation/datapacket.h"
#include "automation/registry.h"
#include "host/references.h"

#include <QHash>
#include <QObject>
#include <QStringList>

#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace printhost {

/// A packet from rows of text.
inline automation::DataPacketPtr packet(const std::vector<QString> &columns, const std::vector<QStringList> &rows)
{
    automation::DataPacketBuilder builder(columns);
    for (const QStringList &row : rows) {
        for (const QString &cell : row)
            builder.append(cell.toStdString());
    }
    return builder.finish();
}

struct Script {
    QStringList calls;
    QHash<QString, automation::DataPacketPtr> answers; ///< other queries have no rows
    QString procedureResult;
    QString procedureFailure; ///< the error that the procedure raises, if any
    QString failingQuery = QStringLiteral("none"); ///< the beginning of the query that fails
};

class DataCtl : public QObject {
    Q_OBJECT

public:
    explicit DataCtl(Script &script)
        : m_script(script)
    {
    }
    Q_INVOKABLE QVariant OpenSql(const QString &sql)
    {
        m_script.calls.append(sql);
        if (sql.startsWith(m_script.failingQuery))
            throw std::runtime_error("故障");
        return QVariant::fromValue(m_script.answers.value(sql, packet({}, {})));
    }
    Q_INVOKABLE void CloseSql() { m_script.calls << QStringLiteral("CloseSql"); }
    Q_INVOKABLE QString ExecProc(const QString &call)
    {
        m_script.calls.append(QStringLiteral("ExecProc") + call);
        if (!m_script.procedureFailure.isEmpty())
            throw std::runtime_error(m_script.procedureFailure.toStdString());
        return m_script.procedureResult;
    }

private:
    Script &m_script;
};

class FuncStorage : public QObject {
    Q_OBJECT

public:
    explicit FuncStorage(Script &script)
        : m_script(script)
    {
    }
    Q_INVOKABLE void Alert(const QString &text) { m_script.calls.append(QStringLiteral("Alert ") + text); }
    Q_INVOKABLE QString UserName() { return QStringLiteral("王会计"); }

private:
    Script &m_script;
};

/// The module's shared references reach these objects while it lives.
class Host {
public:
    Host()
    {
        announce<DataCtl>(QStringLiteral("DataCtl"), script);
        announce<FuncStorage>(QStringLiteral("FuncStorage"), script);
        announce<QObject>(QStringLiteral("CodeSearch")); // nobody looks codes up here
        host::shared().create();
    }
    ~Host()
    {
        host::shared() = {};
        for (const char *name : {"DataCtl", "FuncStorage", "CodeSearch"})
            withdraw(name);
    }
    Q_DISABLE_COPY(Host)
    static void withdraw(const char *name)
    {
        automation::unregisterObject(QStringLiteral("VortaqCore.") + QString::fromUtf8(name));
    }
    /// Names of the objects made since the last call of this.
    QStringList takeCreated() { return std::exchange(m_created, {}); }

    Script script;

private:
    template <typename Object, typename... Arguments> void announce(const QString &name, Arguments &...arguments)
    {
        automation::registerObject(QStringLiteral("VortaqCore.") + name, [this, name, &arguments...] {
            m_created.append(name);
            return std::make_unique<Object>(arguments...);
        });
    }

    QStringList m_created;
};

} // namespace printhost
