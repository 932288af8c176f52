// SPDX-License-Identifier: MIT
// What the pages of the main form share.
#pragma once

#include "host/references.h"
#include "uMain/session.h"

#include <QString>

#include <functional>

class TClientDataSet;

/// One for each main form, outliving its pages. Pages do not know each other: whoever changes rows calls the reload
/// routines of the pages that show them, and each page connects its own.
class Workbench {
public:
    Session session;

    /// The statement built last, whatever page built it; what LoadDataSet() and execSql() run.
    QString statement;

    [[nodiscard]] host::References &host() { return host::shared(); }

    /// Runs the statement buffer as a query into the data set.
    void LoadDataSet(TClientDataSet &target);
    /// Puts a statement in the buffer and runs it as a query into the data set.
    void LoadDataSet(const QString &sql, TClientDataSet &target);
    /// Puts a statement in the buffer and runs it as a change.
    void execSql(const QString &sql);

    /// Reload routines, named after what they reload.
    struct Reloads {
        std::function<void()> unbilledTree = [] {};
        std::function<void()> candidates = [] {};
        std::function<void()> reportedBills = [] {};
        std::function<void()> returnedBills = [] {};
        std::function<void()> history = [] {};
    };
    Reloads reload;
};
