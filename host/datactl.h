// SPDX-License-Identifier: MIT
// The host's database connection and its transaction.
#pragma once

#include "host/operation.h"

#include <QString>

namespace host {

/// Every call may throw what the host's operation raises, or automation::Error when the host lacks it.
class DataCtlProxy {
public:
    static constexpr auto Identifier = u"VortaqCore.DataCtl";

    DataCtlProxy() = default;
    explicit DataCtlProxy(automation::LateBound object)
        : m_object(std::move(object))
    {
    }

    /// Runs a query; the result is a data packet, passed on unchanged to TClientDataSet::setData().
    [[nodiscard]] QVariant OpenSql(const QString &sql) { return m_openSql(m_object, {sql}); }
    /// Lets the host release the query; called when its packet has been loaded.
    void CloseSql() { m_closeSql(m_object); }
    /// Runs one change.
    void execSql(const QString &sql) { m_execSql(m_object, {sql}); }

    void BeginTran() { m_beginTran(m_object); }
    void CommitTran() { m_commitTran(m_object); }
    void RollbackTran() { m_rollbackTran(m_object); }

    /// Runs a procedure call; the result is the value of its output parameter.
    [[nodiscard]] QVariant ExecProc(const QString &call) { return m_execProc(m_object, {call}); }

private:
    automation::LateBound m_object;
    HostOperation m_openSql{"OpenSql", automation::Kind::Method};
    HostOperation m_closeSql{"CloseSql", automation::Kind::Method};
    HostOperation m_execSql{"execSql", automation::Kind::Method};
    HostOperation m_beginTran{"BeginTran", automation::Kind::Method};
    HostOperation m_commitTran{"CommitTran", automation::Kind::Method};
    HostOperation m_rollbackTran{"RollbackTran", automation::Kind::Method};
    HostOperation m_execProc{"ExecProc", automation::Kind::Method};
};

} // namespace host
