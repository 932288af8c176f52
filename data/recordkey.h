// SPDX-License-Identifier: MIT
// The key of a reimbursement record and the conditions that statements build from it.
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace data {

/// One inpatient stay. All four are the texts of the grid's cells; the first two are quoted in statements, the last
/// two go in as they stand (except in the settlement procedure's call, which quotes all four).
struct RecordKey {
    QString orgCode;
    QString coopMedCode;
    QString idNo;
    QString diagNo;

    friend bool operator==(const RecordKey &, const RecordKey &) = default;
};

/// The texts before the four values. The statements differ in them, and each keeps its own.
struct RecordKeySpelling {
    QStringView orgCode;
    QStringView coopMedCode;
    QStringView idNo;
    QStringView diagNo;
};

/// The four comparisons in the order of the key, without parentheses.
[[nodiscard]] QString recordCondition(const RecordKey &key, const RecordKeySpelling &spelling);
/// The same as the dialogs and the printed documents spell it.
[[nodiscard]] QString recordCondition(const RecordKey &key);

/// One parenthesised clause.
[[nodiscard]] QString recordClause(const RecordKey &key);
/// Any of the records: a blank, then one clause a record joined by " or ". Empty for no records.
[[nodiscard]] QString anyOfRecords(const std::vector<RecordKey> &keys);
/// Cuts a record's clause out of a condition made by anyOfRecords(): what stands more than three characters before
/// the clause is kept (that drops the "or" of every clause but the first), and so is what follows it. Cutting the first
/// clause leaves a condition that begins with " or "; a clause that is not found cuts from the start.
[[nodiscard]] QString withoutRecord(const QString &condition, const RecordKey &key);

} // namespace data
