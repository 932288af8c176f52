// SPDX-License-Identifier: MIT
// The statement of the page "未制单病人查询"; its tree is filled by data/rightsfilter.h.
#pragma once

#include <QString>

namespace data {

/// An institution's records without a bill, those of patients still in hospital included; latest discharge first.
[[nodiscard]] QString unbilledRecords(const QString &orgCode);

} // namespace data
