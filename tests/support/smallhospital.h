// SPDX-License-Identifier: MIT
// A database small enough to know every row of it.
#pragma once

#include <QString>

/// Creates `file`. Institutions 42990101 (甲镇卫生院) and 42990102 (乙镇卫生院) under the area 429901; user 01 may bill
/// for all, user 02 for 42990101 only. Candidates in the order of settlement:
///
///   | OrgCode  | CoopMedCode | IDNo | DiagNo | patient | OutDate    | TotalFee | CanFreeFee | FreeFee |
///   | 42990101 | 0012        | 1    | 3      | 王建国  | 2026-03-01 | 100.10   | 80.05      | 50.02   |
///   | 42990101 | 0040        | 2    | 1      | 李秀英  | 2026-03-05 | 200.20   | 150.00     | 100.00  |
///   | 42990102 | 00'7        | 1    | 1      | 张伟    | 2026-03-06 | 1300.30  | 1000.00    | 600.50  |
///   | 42990101 | 0012        | 1    | 4      | 王建国  | 2026-03-08 | null     | null       | null    |
///
/// One more patient of 42990101 (赵敏) is still in hospital, and one of 42990103, an institution without a name (钱多).
/// Bill 7 of 42990101 stands in the archive, with one record; bill 3 of 42990102 is current, with one record.
void createSmallHospital(const QString &file);
