// SPDX-License-Identifier: MIT
// The statements that make a bill out of ticked records.
#pragma once

#include "data/billkey.h"

#include <QString>

namespace data {

// `condition` is what anyOfRecords() made, perhaps shortened by RecordChoice::cut().

/// Ticked records that somebody billed meanwhile: OrgCode, CoopMedCode, IDNO, DiagNo, PatientName.
[[nodiscard]] QString alreadyBilled(const QString &condition);
/// Ticked records that were returned to the ward meanwhile: OrgCode, CoopMedCode, IDNo, DiagNo, PatientName.
[[nodiscard]] QString noLongerDischarged(const QString &condition);
/// Ticked records discharged after the date; both are compared as texts.
[[nodiscard]] QString dischargedAfter(const QString &condition, const QString &date);

/// Largest number of an institution's bills in use and archived, 0 when it has none: column BillNo.
[[nodiscard]] QString highestBillNo(const QString &billCode);

struct NewBill {
    BillKey key;
    QString name; ///< the institution's name
    QString writeDate; ///< as typed
    QString principal; ///< responsible person
};

/// The bill's row; its amounts are summed by the database from the records.
[[nodiscard]] QString insertBill(const NewBill &bill, const QString &condition);
/// Gives the records to the bill.
[[nodiscard]] QString assignRecords(const BillKey &bill, const QString &condition);

} // namespace data
