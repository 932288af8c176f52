// SPDX-License-Identifier: MIT
// Recurring passages of the conversation with the host.
#pragma once

#include "data/recordkey.h"
#include "data/rightsfilter.h"
#include "data/statements/billpage.h"
#include "data/statements/candidates.h"
#include "data/statements/history.h"
#include "data/statements/unbilled.h"

#include <QStringList>

namespace expected {

inline QString read(const char *parameter)
{
    return QStringLiteral("FuncStorage.CustomParam(%1)").arg(QString::fromUtf8(parameter));
}

inline QString openSql(const QString &sql)
{
    return QStringLiteral("DataCtl.OpenSql(") + sql + QLatin1Char(')');
}

inline QString execSql(const QString &sql)
{
    return QStringLiteral("DataCtl.execSql(") + sql + QLatin1Char(')');
}

inline QStringList query(const QString &sql)
{
    return {openSql(sql), QStringLiteral("DataCtl.CloseSql()")};
}

inline QString alert(const char *text)
{
    return QStringLiteral("FuncStorage.Alert(%1)").arg(QString::fromUtf8(text));
}

inline QString hint(const char *text)
{
    return QStringLiteral("FuncStorage.ShowHint(%1)").arg(QString::fromUtf8(text));
}

inline const QString Begin = QStringLiteral("DataCtl.BeginTran()");
inline const QString Commit = QStringLiteral("DataCtl.CommitTran()");
inline const QString Rollback = QStringLiteral("DataCtl.RollbackTran()");

/// Reload routines for user 01 of the small hospital, whose own institution is 42990101.

inline QStringList unbilledTree(const char *firstInstitution = "42990101")
{
    return QStringList(read("isBillAll")) + query(data::institutionsWithUnbilled())
        + query(data::unbilledRecords(QString::fromUtf8(firstInstitution)));
}

inline QStringList candidates()
{
    return QStringList(read("isBillAll")) + query(data::billCandidates(std::nullopt));
}

inline QStringList reportedBills()
{
    return query(data::billsOfPage(data::ReportedPage, QStringLiteral("42990101")));
}

inline QStringList returnedBills()
{
    return query(data::billsOfPage(data::ReturnedPage, QStringLiteral("42990101")));
}

inline QStringList history()
{
    return QStringList({read("OrgCode"), read("OrgCode")})
        + query(data::historyBills(QStringLiteral("42990101"), QStringLiteral("42990101")));
}

} // namespace expected
