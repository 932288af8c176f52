// SPDX-License-Identifier: MIT
// The button "保存制单": ticked records become one numbered bill.
#pragma once

#include "data/recordchoice.h"
#include "data/statements/savingbill.h"

#include <QString>

#include <vector>

class QWidget;
class TClientDataSet;
class Workbench;

/// One save. The header has been validated; the records are at least one.
class SavingBill {
public:
    /// `scratch` holds the rows of the checks; `window` is the parent of the questions. All are borrowed.
    SavingBill(Workbench &workbench, TClientDataSet &scratch, QWidget *window);

    enum class Check { Passed, Declined, DischargedLater };

    /// Asks the database, and where records were billed or returned meanwhile the clerk; records that are gone leave
    /// the selection. Errors reach the caller.
    [[nodiscard]] Check check(const std::vector<data::RecordKey> &records, const QString &writeDate);

    /// Numbers and writes the bill in one transaction; alerts a failure. The bill's number is filled in here.
    void write(data::NewBill bill);

private:
    bool confirmWithoutLost(const QString &statement, const QString &question);
    [[nodiscard]] QString GetNewBillNo(const QString &billCode);

    Workbench &m_workbench;
    TClientDataSet &m_scratch;
    QWidget *m_window;
    data::RecordChoice m_condition;
};
