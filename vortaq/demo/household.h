// SPDX-License-Identifier: MIT
// Households, their members and who of them was in hospital when.
#pragma once

#include "vortaq/demo/calendar.h"
#include "vortaq/demo/plan.h"

#include <array>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vortaq::demo {

class Random;

struct Member {
    std::string name;
    std::string_view sex;
    std::string_view relation; ///< to the householder
    Day birthDay;
    int stays = 0;
};

struct Stay {
    const StayPlan *plan = nullptr;
    std::size_t member = 0;
    int visit = 0; ///< which stay of the member this is, from 1
    Day admitted = 0;
    Day discharged = 0; ///< for a patient in hospital: today
    Day settled = 0; ///< without meaning for a patient in hospital
};

struct Household {
    std::string certificate; ///< CoopMedCode
    std::string address;
    std::string_view property; ///< HomeProperty; empty: none
    std::vector<Member> members; ///< the householder first; IDNo is the place from 1
    std::vector<Stay> stays; ///< by admission
};

/// Makes one household after the other, each with a certificate number of its own.
class HouseholdMaker {
public:
    /// Plan and random numbers are borrowed.
    HouseholdMaker(const Plan &plan, Day today, Random &random);

    /// The household that has these stays (at least one), which are borrowed too.
    [[nodiscard]] Household make(std::span<const StayPlan> stays);

private:
    void settleDown(Household &household, const StayPlan &firstStay);
    void addMembers(Household &household, std::size_t atLeast);
    void addBaby(Household &household);
    void dateStay(Stay &stay) const;
    void dealStays(Household &household, bool hasBaby);

    const Plan &m_plan;
    Day m_today;
    Random &m_random;
    std::map<std::pair<int, int>, int> m_households; // by township and village
};

} // namespace vortaq::demo
