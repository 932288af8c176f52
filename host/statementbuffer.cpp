// SPDX-License-Identifier: MIT
#include "host/statementbuffer.h"

#include "host/loaddataset.h"

namespace host {

void StatementBuffer::LoadDataSet(TClientDataSet &target) const
{
    loadDataSet(shared().DataCtl, statement, target);
}

void StatementBuffer::LoadDataSet(const QString &sql, TClientDataSet &target)
{
    statement = sql;
    LoadDataSet(target);
}

void StatementBuffer::execSql(const QString &sql)
{
    statement = sql;
    shared().DataCtl.execSql(statement);
}

QString StatementBuffer::ExecProc(const QString &call)
{
    statement = call;
    return shared().DataCtl.ExecProc(statement).toString();
}

} // namespace host
