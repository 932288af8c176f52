// SPDX-License-Identifier: MIT
// Hands each call to the engine, under the wait cursor.
#include "vortaq/app/datactl.h"

#include "vortaq/app/waitcursor.h"
#include "vortaq/procedures/storedprocedures.h"

namespace vortaq {

DataCtl::DataCtl(std::shared_ptr<Session> session)
    : m_session(std::move(session))
{
}

automation::DataPacketPtr DataCtl::OpenSql(const QString &sql)
{
    const WaitCursor cursor;
    return m_session->engine().query(sql);
}

void DataCtl::CloseSql() { }

int DataCtl::execSql(const QString &sql)
{
    const WaitCursor cursor;
    return m_session->engine().execute(sql);
}

QString DataCtl::ExecProc(const QString &call)
{
    const WaitCursor cursor;
    return execProcedure(m_session->engine(), call);
}

void DataCtl::BeginTran()
{
    const WaitCursor cursor; // beginning may wait for another program
    m_session->engine().begin();
}

void DataCtl::CommitTran()
{
    const WaitCursor cursor;
    m_session->engine().commit();
}

void DataCtl::RollbackTran()
{
    const WaitCursor cursor;
    m_session->engine().rollback();
}

} // namespace vortaq
