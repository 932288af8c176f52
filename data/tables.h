// SPDX-License-Identifier: MIT
// Which of the two sets of tables a statement addresses: names begin with "o" (in use) or "s" (archive).
#pragma once

#include <QString>

namespace data {

/// "o" for 1, "s" for 2, empty for any other type.
[[nodiscard]] QString tablePrefix(int billType);
/// The approval form reads the archive for every type but 1.
[[nodiscard]] QString approvalTablePrefix(int billType);
/// The history dialog's prefix carries a leading blank, so that its statements keep two blanks before the table name.
/// Any text but "1" and "2" gives no prefix, and the database refuses the statement.
[[nodiscard]] QString historyTablePrefix(const QString &billType);
/// The history tab reads the archived records for every type but "1".
[[nodiscard]] QString historyRecordTable(const QString &billType);

} // namespace data
