// SPDX-License-Identifier: MIT
// What a stay costs, what the scheme pays of it, and what the reviewers strike out.
#pragma once

#include "vortaq/demo/calendar.h"
#include "vortaq/demo/catalogue.h"
#include "vortaq/demo/diagnoses.h"

#include <array>
#include <vector>

namespace vortaq::demo {

class Random;

struct FeeLine {
    const FeeItem *item;
    std::int64_t quantity; ///< hundredths
    bool compensable;
    Cents fee;
    Cents reimbursable;
    Cents firstStruck = 0;
    Cents secondStruck = 0;
    Day used;
    Day entered;
};

struct Approval {
    const FeeItem *item;
    char status; ///< '1' asked for, '2' refused, '3' granted
};

struct TypeSum {
    Cents fee = 0;
    Cents reimbursable = 0;
    Cents reimbursed = 0;
};

struct Fees {
    std::vector<FeeLine> lines; ///< by day of use
    std::vector<Approval> approvals; ///< one an item
    Cents total = 0;
    Cents reimbursable = 0;
    Cents firstApproved = 0; ///< what the reviews left of the reimbursable cost
    Cents secondApproved = 0;
};

/// Fees used from the first to the last day, `averageLines` of them on average.
[[nodiscard]] Fees makeFees(Day first, Day last, const Diagnosis &diagnosis, int averageLines, Random &random);

/// Strikes out amounts at the first review and, where it has taken place, the second.
void review(Fees &fees, bool second, Random &random);

struct Reimbursement {
    Cents deducted = 0;
    Cents reimbursed = 0;
    std::array<TypeSum, topLevelTypes> types; ///< a type without fee has no row
};

/// The formula for a diagnosis at an institution of this level.
[[nodiscard]] const Formula &formulaFor(const Diagnosis &diagnosis, Level level);

/// Settles a stay; the amounts by type add up to those of the stay.
[[nodiscard]] Reimbursement settle(const Fees &fees, const Formula &formula, std::string_view limit);

} // namespace vortaq::demo
