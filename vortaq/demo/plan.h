// SPDX-License-Identifier: MIT
// Which stays and bills the demo hospitals have, before anybody has a name.
#pragma once

#include "vortaq/demo/calendar.h"
#include "vortaq/demo/catalogue.h"

#include <cstdint>
#include <vector>

namespace vortaq::demo {

class Random;

enum class StayKind : std::uint8_t {
    Archived,
    Billed,
    Discharged, ///< the kinds from here on belong to no bill
    DischargedToday,
    BothToday, ///< admitted and discharged today
    AdmittedToday, ///< in hospital since today
    InHospital
};

[[nodiscard]] constexpr bool isBilled(StayKind kind)
{
    return kind == StayKind::Archived || kind == StayKind::Billed;
}
[[nodiscard]] constexpr bool isInHospital(StayKind kind)
{
    return kind == StayKind::AdmittedToday || kind == StayKind::InHospital;
}

struct Bill {
    int institution; ///< position in institutions()
    bool archived;
    int number;
    Day writeDate;
    char status; ///< '1' made, '2' reported, '3' first review, '4' second review, '9' returned
    // What its stays come to; counted while they are written.
    Cents fee = 0;
    Cents reimbursable = 0;
    Cents firstApproved = 0;
    Cents secondApproved = 0;
};

struct StayPlan {
    StayKind kind;
    std::uint8_t institution; ///< position in institutions()
    std::uint32_t bill; ///< position in Plan::bills; without meaning unless the stay is billed
};

struct Plan {
    std::vector<Bill> bills; ///< by institution and number, archived ones first
    std::vector<StayPlan> stays; ///< in no order
};

[[nodiscard]] Plan makePlan(int records, int archived, Day today, Random &random);

} // namespace vortaq::demo
