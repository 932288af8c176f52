// SPDX-License-Identifier: MIT
// Code values stored in the tables and the words that clerks see for them.
#pragma once

#include <QString>
#include <QStringView>

namespace data {

/// CheckStatus of a bill.
inline constexpr QStringView StatusMade = u"1";
inline constexpr QStringView StatusReported = u"2";
inline constexpr QStringView StatusFirstReview = u"3";
inline constexpr QStringView StatusSecondReview = u"4";
inline constexpr QStringView StatusReturned = u"9";

/// Value of a ticked check cell, and of one that was unticked.
inline constexpr QStringView Checked = u"1";
inline constexpr QStringView Unchecked = u"2";

/// "isBillAll": the user makes bills for every institution, or for those that the rights tables grant.
inline constexpr QStringView BillAll = u"1";
inline constexpr QStringView BillGranted = u"2";

/// Where a bill and its records stand: the tables in use ("o_"), or the archive ("s_").
enum class BillType { Current = 1, Archived = 2 };

/// The status word in the history tree; empty for a status outside the list.
[[nodiscard]] QString statusName(const QString &checkStatus);
/// The word in "该单据现在状态为:" when a report is refused. A bill without status was cancelled; the second review and
/// every other status have no word there.
[[nodiscard]] QString refusedStatusName(const QString &checkStatus);
/// The compensation category; empty for an unknown code. The lists get the same words from the database.
[[nodiscard]] QString expenseKindName(const QString &expenseKind);

} // namespace data
