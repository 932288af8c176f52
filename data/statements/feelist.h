// SPDX-License-Identifier: MIT
// The statements of the printed fee list.
#pragma once

#include "data/recordkey.h"

#include <QString>

namespace data {

/// Header of the list, with the householder's address. `prefix` chooses the tables (see tablePrefix()).
[[nodiscard]] QString feeListHeader(const QString &prefix, const RecordKey &key);
/// Fee lines used between two dates (texts, compared as texts); items missing from the catalogue do not appear.
[[nodiscard]] QString feeListItems(const QString &prefix, const RecordKey &key, const QString &begin,
                                   const QString &end);

} // namespace data
