// SPDX-License-Identifier: MIT
// What the bill pages do to a bill in the database: reporting, cancelling, taking a record out.
#pragma once

#include "data/billkey.h"
#include "data/recordkey.h"
#include "uMain/billpagekinds.h"

#include <functional>

class QWidget;
class TClientDataSet;

/// `scratch` holds the rows of the status check; `window` is the parent of messages. All are borrowed.
class BillChanges {
public:
    BillChanges(Workbench &workbench, TClientDataSet &scratch, const BillPageKind &kind, QWidget *window)
        : m_workbench(workbench)
        , m_scratch(scratch)
        , m_kind(kind)
        , m_window(window)
    {
    }

    /// Whether the bill's status is in `allowedList`, text such as " '1','9' ". If not, says so and reloads what may be
    /// stale. With a connStyle other than 1 nothing is checked; a bill that is gone passes.
    [[nodiscard]] bool CheckBillStatus(const data::BillKey &bill, const QString &allowedList);

    /// One statement without a transaction; alerts a failure.
    void report(const data::BillKey &bill);
    /// Frees all records of the bill and deletes it; alerts a failure.
    void cancel(const data::BillKey &bill);
    /// Frees one record and brings the bill's totals up to date; the bill goes with its last record. `reloadRecords`
    /// lists the bill's records again. Alerts a failure.
    void takeOut(const data::BillKey &bill, const data::RecordKey &record, bool isLastRecord,
                 const std::function<void()> &reloadRecords);

private:
    void reloadOwnTree() { (m_workbench.reload.*m_kind.ownTree)(); }

    Workbench &m_workbench;
    TClientDataSet &m_scratch;
    const BillPageKind &m_kind;
    QWidget *m_window;
};
