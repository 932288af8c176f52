// SPDX-License-Identifier: MIT
// The main form's one text field for statements, and the ways of running what it holds.
#pragma once

#include "host/references.h"

#include <QString>

class TClientDataSet;

namespace host {

/// Holds the statement built last, whoever built it. Errors of the host reach the caller.
class StatementBuffer {
public:
    QString statement;

    /// Runs the buffer as a query into the data set.
    void LoadDataSet(TClientDataSet &target) const;
    /// Puts a statement in the buffer and runs it as a query into the data set.
    void LoadDataSet(const QString &sql, TClientDataSet &target);
    /// Puts a statement in the buffer and runs it as a change.
    void execSql(const QString &sql);
    /// Puts a procedure call in the buffer and runs it; the procedure's text result.
    [[nodiscard]] QString ExecProc(const QString &call);
};

} // namespace host
