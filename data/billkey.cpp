// SPDX-License-Identifier: MIT
// The key of a bill and the condition that statements build from it.
#include "data/billkey.h"

#include "data/quoting.h"

namespace data {

QString billCondition(const BillKey &bill, QStringView andBillNo)
{
    QString text = QStringLiteral("BillCode=");
    text.append(quotedStr(bill.code)).append(andBillNo).append(bill.number);
    return text;
}

} // namespace data
