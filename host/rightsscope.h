// SPDX-License-Identifier: MIT
// How far the user's rights reach, asked of the host anew each time a list is built.
#pragma once

#include "data/rightsfilter.h"

#include <optional>

namespace host {

class FuncStorageProxy;

/// The statement of the institution list: all with unbilled records ("isBillAll" 1), or the granted ones (2). Nothing
/// for any other value: the caller then runs the statement it already holds.
[[nodiscard]] std::optional<QString> institutionList(FuncStorageProxy &funcStorage);

/// The grant that narrows lists of records; nothing unless "isBillAll" is 2.
[[nodiscard]] std::optional<data::Grant> recordGrant(FuncStorageProxy &funcStorage);

} // namespace host
