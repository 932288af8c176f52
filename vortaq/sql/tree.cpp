// SPDX-License-Identifier: MIT
// What of the tree needs complete types.
#include "vortaq/sql/tree.h"

#include <utility>

namespace vortaq::sql {

Subquery::Subquery(std::unique_ptr<Query> bound)
    : query(std::move(bound))
{
}

Subquery::Subquery(Subquery &&) noexcept = default;
Subquery &Subquery::operator=(Subquery &&) noexcept = default;
Subquery::~Subquery() = default;

Case::Case() = default;
Case::Case(Case &&) noexcept = default;
Case &Case::operator=(Case &&) noexcept = default;
Case::~Case() = default;

} // namespace vortaq::sql
