// SPDX-License-Identifier: MIT
// What a user may see: the institutions that he may bill.
#pragma once

#include <QString>

namespace data {

/// A user and the right he works under, as the rights tables know them.
struct Grant {
    QString userCode;
    QString rightCode;
};

/// Every institution with an unbilled record, discharged or not: columns OrgCode, OrgName.
[[nodiscard]] QString institutionsWithUnbilled();
/// Those of them that the user's roles are granted.
[[nodiscard]] QString grantedInstitutionsWithUnbilled(const Grant &grant);

/// Blanks before the parts of the record filter: the same text is set differently in two queries.
struct RecordFilterIndent {
    int tables = 0;
    int conditions = 0;
};

/// Appended to a query of records, to keep those of granted institutions.
[[nodiscard]] QString recordFilter(const Grant &grant, const RecordFilterIndent &indent);

} // namespace data
