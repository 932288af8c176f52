// SPDX-License-Identifier: MIT
// The statements behind the settlement sheet, the approval form and the settlement procedure.
#pragma once

#include "data/recordkey.h"

#include <QString>

namespace data {

/// Spelling of the database's string-length function: "len" with connStyle 1, "length" with any other.
enum class LengthFunction { Len, Length };
[[nodiscard]] LengthFunction lengthFunction(int connStyle);

/// The household categories of a member, as one text of codes: column HomeProperty.
[[nodiscard]] QString homeProperty(const QString &coopMedCode, const QString &idNo);
/// All categories: PropertyCode, PropertyName.
[[nodiscard]] QString homeProperties();
/// Name of a reimbursement formula: column ExpressionsName.
[[nodiscard]] QString formulaName(const QString &expressionsId);

// `prefix` chooses the tables (see tablePrefix() and approvalTablePrefix()).

/// Header of the settlement sheet.
[[nodiscard]] QString settlementSheet(const QString &prefix, const RecordKey &key, const QString &homePropertyText);
/// Amounts by fee type: FeeTypeCode, Fee, CanFreeFee, FreeFee.
[[nodiscard]] QString settlementFees(const QString &prefix, const RecordKey &key);
/// Top-level fee types; the sheet and the form spell the same query differently.
[[nodiscard]] QString sheetFeeTypes(LengthFunction length);
[[nodiscard]] QString formFeeTypes(LengthFunction length);

/// Texts that the approval form's header carries along.
struct ApprovalTexts {
    QString limit;
    QString formula;
    QString printInfo;
};

/// Header of the approval form, with the member's sums over all stays, in use and archived.
[[nodiscard]] QString approvalForm(const QString &prefix, const RecordKey &key, const ApprovalTexts &texts);

/// Keeps the amounts of one fee type.
[[nodiscard]] QString settlementFeeFilter(const QString &feeTypeCode);

/// Call of the settlement procedure; archived records (type 2) have one of their own.
[[nodiscard]] QString settlementCall(int billType, const RecordKey &key);

} // namespace data
