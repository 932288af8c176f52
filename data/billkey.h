// SPDX-License-Identifier: MIT
// The key of a bill and the condition that statements build from it.
#pragma once

#include <QString>
#include <QStringView>

namespace data {

/// `code` is the billing institution and is quoted in statements; `number` is decimal text and goes in as it stands.
struct BillKey {
    QString code;
    QString number;

    friend bool operator==(const BillKey &, const BillKey &) = default;
};

/// The text before the number is one blank or three wide, as each statement has it.
inline constexpr QStringView AndBillNo = u" and BillNo=";
inline constexpr QStringView WideAndBillNo = u"   and BillNo=";

[[nodiscard]] QString billCondition(const BillKey &bill, QStringView andBillNo = AndBillNo);

} // namespace data
