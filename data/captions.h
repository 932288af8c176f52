// SPDX-License-Identifier: MIT
// Texts that pages compose from data: tree nodes and the vertical titles of the narrow panels.
#pragma once

#include <QString>

namespace data {

/// "(code)name", without a blank between them.
[[nodiscard]] QString organisationCaption(const QString &code, const QString &name);
/// "date【status】"; the brackets stay when the status has no name.
[[nodiscard]] QString historyBillCaption(const QString &writeDate, const QString &checkStatus);

/// One character a line with a blank line between: "住院登记信息表".
[[nodiscard]] QString registrationTitle();
/// "住院报销登记表" in the same way.
[[nodiscard]] QString reimbursementTitle();

} // namespace data
