// SPDX-License-Identifier: MIT
// The statements of the pages "上报制单" and "退单制单": the same work, spelt differently on each.
#pragma once

#include "data/billkey.h"
#include "data/recordkey.h"

#include <QString>
#include <QStringView>

namespace data {

/// What the two pages' statements differ in. The database does not care about letter case and blanks; what is sent
/// stays as each page has always sent it.
struct BillPageSpelling {
    QStringView listTable; ///< the bill list's table
    QStringView listStatus; ///< CheckStatus of the bills listed
    QStringView recordTable; ///< the record list's table
    QStringView beforeExpense; ///< blanks before the record list's category
    QStringView cancelRecordTable; ///< whole-bill cancel: table of the records
    QStringView cancelBillTable; ///< whole-bill cancel: table of the bills
    QStringView releaseRecord; ///< single-record cancel: from the table's name to the assignments of the bill key
    RecordKeySpelling record; ///< single-record cancel: conditions
    QStringView andLastBillNo; ///< deleting the emptied bill: before the number
    bool lastBillNoQuoted; ///< and whether the number is quoted
};

extern const BillPageSpelling ReportedPage;
extern const BillPageSpelling ReturnedPage;

/// The page's bills of an institution, newest number first.
[[nodiscard]] QString billsOfPage(const BillPageSpelling &page, const QString &orgCode);
/// The records of a bill in the order of discharge.
[[nodiscard]] QString recordsOfBill(const BillPageSpelling &page, const BillKey &bill);

/// The status of a bill that may not be reported: a row only when it is outside `allowedList` (text such as " '1','9'
/// ").
[[nodiscard]] QString statusOutside(const BillKey &bill, const QString &allowedList);
/// The statuses from which a bill is reported.
[[nodiscard]] QString reportableStatuses();
[[nodiscard]] QString reportBill(const BillKey &bill);

/// Whole-bill cancel: first the records are released, then the bill goes.
[[nodiscard]] QString releaseAllRecords(const BillPageSpelling &page, const BillKey &bill);
[[nodiscard]] QString deleteBill(const BillPageSpelling &page, const BillKey &bill);

/// Single-record cancel, in this order; the last one only when the bill lost its last record.
[[nodiscard]] QString releaseRecord(const BillPageSpelling &page, const RecordKey &record);
[[nodiscard]] QString clearDeductions(const BillPageSpelling &page, const RecordKey &record);
[[nodiscard]] QString recomputeAfterRelease(const BillKey &bill);
[[nodiscard]] QString deleteEmptiedBill(const BillPageSpelling &page, const BillKey &bill);

} // namespace data
