// SPDX-License-Identifier: MIT
// The host object "VortaqCore.DataCtl": runs SQL on the session's connection and owns its transaction.
#pragma once

#include "vortaq/app/session.h"

#include "automation/datapacket.h"

#include <QObject>

#include <memory>

namespace vortaq {

/// Every instance works on the one connection of the session. All operations raise what the engine raises.
class DataCtl : public QObject {
    Q_OBJECT

public:
    explicit DataCtl(std::shared_ptr<Session> session);

    /// The complete row set of a query; an empty text gives a packet without columns.
    Q_INVOKABLE automation::DataPacketPtr OpenSql(const QString &sql);
    /// Nothing is left open behind a packet, which is complete; the operation stands for hosts where something is.
    Q_INVOKABLE void CloseSql();
    /// Runs one change and returns the number of rows it touched.
    Q_INVOKABLE int execSql(const QString &sql);
    /// Runs a stored procedure and returns the value of its output parameter.
    Q_INVOKABLE QString ExecProc(const QString &call);

    Q_INVOKABLE void BeginTran();
    Q_INVOKABLE void CommitTran();
    /// Harmless without a transaction.
    Q_INVOKABLE void RollbackTran();

private:
    std::shared_ptr<Session> m_session;
};

} // namespace vortaq
