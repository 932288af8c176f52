// SPDX-License-Identifier: MIT
// Stays and bills are dealt out completely, whatever their number.
#include "vortaq/demo/plan.h"
#include "vortaq/demo/random.h"

#include <algorithm>
#include <map>
#include <set>

#include <gtest/gtest.h>

namespace vortaq::demo {
namespace {

constexpr Day today = 20'000;

Plan planOf(int records, int archived)
{
    Random random(1);
    return makePlan(records, archived, today, random);
}

TEST(Plan, DealsOutExactlyTheStaysAskedFor)
{
    for (const auto &[records, archived] :
         std::to_array<std::pair<int, int>>({{0, 0}, {1, 0}, {0, 1}, {2, 3}, {17, 9}, {600, 400}, {20'000, 5'001}})) {
        const Plan plan = planOf(records, archived);
        EXPECT_EQ(plan.stays.size(), static_cast<std::size_t>(records + archived));
        EXPECT_EQ(std::count_if(plan.stays.begin(), plan.stays.end(),
                                [](const StayPlan &stay) { return stay.kind == StayKind::Archived; }),
                  archived);
    }
}

TEST(Plan, LeavesNoBillEmptyAndNoStayInAForeignBill)
{
    for (const int records : {5, 40, 300, 30'000}) {
        const Plan plan = planOf(records, records);
        std::set<std::uint32_t> used;
        for (const StayPlan &stay : plan.stays) {
            if (!isBilled(stay.kind))
                continue;
            used.insert(stay.bill);
            const Bill &bill = plan.bills.at(stay.bill);
            EXPECT_EQ(bill.institution, stay.institution);
            EXPECT_EQ(bill.archived, stay.kind == StayKind::Archived);
        }
        EXPECT_EQ(used.size(), plan.bills.size()) << records;
    }
}

TEST(Plan, NumbersBillsInTheOrderOfTheirDates)
{
    const Plan plan = planOf(2'000, 1'000);
    std::map<int, Bill> last;
    for (const Bill &bill : plan.bills) {
        EXPECT_LE(bill.writeDate, today);
        const auto previous = last.find(bill.institution);
        if (previous == last.end()) {
            EXPECT_EQ(bill.number, 1);
        } else {
            EXPECT_LE(previous->second.writeDate, bill.writeDate);
            const bool repeats = bill.institution == countyHospital && previous->second.archived && !bill.archived;
            EXPECT_EQ(bill.number, previous->second.number + (repeats ? 0 : 1));
        }
        last.insert_or_assign(bill.institution, bill);
    }
}

TEST(Plan, KeepsItsWordAboutTheSpecialInstitutions)
{
    const Plan plan = planOf(6'000, 2'000);
    for (const Bill &bill : plan.bills)
        EXPECT_TRUE(bill.institution != archiveOnlyHospital || bill.archived);
    for (const StayPlan &stay : plan.stays)
        EXPECT_TRUE(stay.institution != inHospitalOnlyHospital || isInHospital(stay.kind));
}

} // namespace
} // namespace vortaq::demo
