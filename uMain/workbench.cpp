// SPDX-License-Identifier: MIT
#include "uMain/workbench.h"

#include "host/loaddataset.h"

void Workbench::LoadDataSet(TClientDataSet &target)
{
    host::loadDataSet(host().DataCtl, statement, target);
}

void Workbench::LoadDataSet(const QString &sql, TClientDataSet &target)
{
    statement = sql;
    LoadDataSet(target);
}

void Workbench::execSql(const QString &sql)
{
    statement = sql;
    host().DataCtl.execSql(statement);
}
