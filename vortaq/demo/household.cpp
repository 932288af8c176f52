// SPDX-License-Identifier: MIT
// Invents families and puts their stays in the order of time.
#include "vortaq/demo/household.h"

#include "vortaq/demo/people.h"
#include "vortaq/demo/random.h"

#include <algorithm>

namespace vortaq::demo {
namespace {

// One code, several codes, and one that is in no list.
constexpr auto properties = std::to_array<std::string_view>({"01", "02", "0103", "04", "0205", "99"});

struct Relative {
    std::string_view relation;
    std::string_view sex; ///< empty: the householder either, and the spouse the other
    bool bearsSurname; ///< the householder's
    int leastYears; ///< older than the householder
    int mostYears;
};

/// In the order in which households grow.
constexpr std::array<Relative, 6> relativeTable = {{
    {"户主", "", true, 0, 0},
    {"配偶", "", false, -3, 3},
    {"子", male, true, -27, -22},
    {"母亲", female, false, 20, 26},
    {"女", female, true, -27, -22},
    {"父亲", male, true, 21, 28},
}};
constexpr std::span<const Relative> relatives = relativeTable;

std::string padded(int number, std::size_t digits)
{
    const std::string plain = std::to_string(number);
    return std::string(digits - plain.size(), '0') + plain;
}

int townOf(const Institution &institution, Random &random)
{
    const auto towns = demo::towns();
    const auto own = std::find(towns.begin(), towns.end(), institution.town);
    return own == towns.end() ? random.below(static_cast<int>(towns.size())) : static_cast<int>(own - towns.begin());
}

std::string_view otherSex(std::string_view sex)
{
    return sex == male ? female : male;
}

} // namespace

HouseholdMaker::HouseholdMaker(const Plan &plan, Day today, Random &random)
    : m_plan(plan)
    , m_today(today)
    , m_random(random)
{
}

Household HouseholdMaker::make(std::span<const StayPlan> stays)
{
    Household household;
    settleDown(household, stays.front());
    for (const StayPlan &plan : stays) {
        Stay &stay = household.stays.emplace_back();
        stay.plan = &plan;
        dateStay(stay);
    }
    std::stable_sort(household.stays.begin(), household.stays.end(),
                     [](const Stay &left, const Stay &right) { return left.admitted < right.admitted; });
    const bool hasBaby = m_random.below(15) == 0;
    addMembers(household, stays.size());
    if (hasBaby)
        addBaby(household);
    dealStays(household, hasBaby);
    return household;
}

void HouseholdMaker::settleDown(Household &household, const StayPlan &firstStay)
{
    const int town = townOf(institutions()[firstStay.institution], m_random);
    const int village = m_random.below(static_cast<int>(villages().size()));
    const int number = ++m_households[{town, village}];
    household.certificate = std::string(areaCode) + padded(town + 1, 2) + padded(village + 1, 2) + padded(number, 5);
    household.address = std::string(countyName);
    household.address += towns()[static_cast<std::size_t>(town)];
    household.address += villages()[static_cast<std::size_t>(village)];
    household.address += std::to_string(1 + number % 12) + "组" + std::to_string(1 + m_random.below(60)) + "号";
    if (m_random.percent(25))
        household.property = m_random.pick(properties);
}

void HouseholdMaker::addMembers(Household &household, std::size_t atLeast)
{
    const std::size_t count =
        std::max(atLeast, static_cast<std::size_t>(m_random.between(1, static_cast<int>(relatives.size()))));
    const std::string_view surname = randomSurname(m_random);
    const std::string_view headSex = m_random.percent(85) ? male : female;
    const int headYears = m_random.between(32, 68);
    for (const Relative &relative : relatives.first(count)) {
        const int years = headYears + m_random.between(relative.leastYears, relative.mostYears);
        const std::string_view family = relative.bearsSurname ? surname : randomSurname(m_random);
        std::string_view sex = relative.sex;
        if (household.members.empty())
            sex = headSex;
        else if (sex.empty())
            sex = otherSex(headSex);
        // Braces evaluate from left to right everywhere; the arguments of a call need not.
        household.members.push_back(
            {personName(family, sex, m_random), sex, relative.relation, m_today - years * 365 - m_random.below(365)});
    }
}

void HouseholdMaker::addBaby(Household &household)
{
    const std::string_view sex = m_random.percent(50) ? male : female;
    const int days = m_random.percent(50) ? m_random.between(2, 25) : m_random.between(45, 340);
    household.members.push_back({personName(randomSurname(m_random), sex, m_random), sex, sex == male ? "孙子" : "孙女",
                                 household.stays.front().admitted - days});
}

void HouseholdMaker::dateStay(Stay &stay) const
{
    const StayPlan &plan = *stay.plan;
    stay.discharged = m_today;
    switch (plan.kind) {
    case StayKind::Archived:
    case StayKind::Billed:
        stay.discharged = m_plan.bills[plan.bill].writeDate - m_random.between(1, 25);
        stay.admitted = stay.discharged - m_random.between(1, 18);
        break;
    case StayKind::Discharged:
        stay.discharged = m_today - m_random.between(1, 35);
        stay.admitted = stay.discharged - m_random.between(0, 18);
        break;
    case StayKind::DischargedToday:
        stay.admitted = m_today - m_random.between(1, 14);
        break;
    case StayKind::BothToday:
    case StayKind::AdmittedToday:
        stay.admitted = m_today;
        break;
    case StayKind::InHospital:
        stay.admitted = m_today - m_random.between(1, 25);
        break;
    }
    // The cashier may settle a day late, but never later than the bill or today.
    stay.settled = std::min(m_today, stay.discharged + m_random.below(2));
}

void HouseholdMaker::dealStays(Household &household, bool hasBaby)
{
    const std::size_t grownUps = household.members.size() - (hasBaby ? 1 : 0);
    auto next = static_cast<std::size_t>(m_random.below(static_cast<int>(grownUps)));
    const Stay *previous = nullptr;
    for (Stay &stay : household.stays) {
        // Nobody lies in two beds at once.
        const bool again = previous != nullptr && !isInHospital(previous->plan->kind)
            && previous->discharged < stay.admitted && m_random.percent(40);
        if (again)
            stay.member = previous->member;
        else if (hasBaby && previous == nullptr)
            stay.member = household.members.size() - 1;
        else
            stay.member = next++ % grownUps;
        stay.visit = ++household.members[stay.member].stays;
        previous = &stay;
    }
}

} // namespace vortaq::demo
