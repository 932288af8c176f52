// SPDX-License-Identifier: MIT
// Amounts of a single stay.
#include "vortaq/demo/fees.h"
#include "vortaq/demo/random.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

namespace vortaq::demo {
namespace {

const FeeItem cheap{"A", "", "", "支", 10'000, 0, 100, 1};
const FeeItem bed{"B", "", "", "床日", 10'000, 3, 100, 1};
const FeeItem own{"C", "", "", "次", 10'000, 11, 0, 1};

Fees feesOf(Cents first, Cents second, Cents notCompensable)
{
    Fees fees;
    fees.lines = {{&cheap, 100, true, first, first, 0, 0, 0, 0},
                  {&bed, 100, true, second, second, 0, 0, 0, 0},
                  {&own, 100, false, notCompensable, 0, 0, 0, 0, 0}};
    fees.total = first + second + notCompensable;
    fees.reimbursable = first + second;
    return fees;
}

TEST(Settlement, TakesTheDeductibleAndTheRate)
{
    const Reimbursement result = settle(feesOf(50'000, 10'000, 7'000), formulas()[0], "0");
    EXPECT_EQ(result.deducted, 10'000);
    EXPECT_EQ(result.reimbursed, 40'000);
    EXPECT_EQ(result.types[0].fee, 50'000);
    EXPECT_EQ(result.types[0].reimbursed + result.types[3].reimbursed, 40'000);
    EXPECT_EQ(result.types[11].fee, 7'000);
    EXPECT_EQ(result.types[11].reimbursed, 0);
    EXPECT_EQ(result.types[1].fee, 0);
}

TEST(Settlement, PaysNothingBelowTheDeductible)
{
    const Reimbursement result = settle(feesOf(9'000, 900, 0), formulas()[0], "0");
    EXPECT_EQ(result.deducted, 9'900);
    EXPECT_EQ(result.reimbursed, 0);
}

TEST(Settlement, KeepsToTheLimit)
{
    EXPECT_EQ(settle(feesOf(500'000, 0, 0), formulas()[5], "1500").reimbursed, 50'000);
    EXPECT_EQ(settle(feesOf(60'000, 0, 0), formulas()[5], "1500").reimbursed, 20'000);
    EXPECT_EQ(settle(feesOf(500'000, 0, 0), formulas()[3], "2800").reimbursed, 80'000);
    EXPECT_EQ(settle(feesOf(70'000, 0, 0), formulas()[3], "2800").reimbursed, 70'000);
}

TEST(Settlement, SharesEveryCentAmongTheTypes)
{
    for (Cents odd = 10'001; odd < 10'400; ++odd) {
        const Fees fees = feesOf(odd, 3'333, 0);
        const Reimbursement result = settle(fees, formulas()[3], "0");
        EXPECT_EQ(result.types[0].reimbursed, odd);
        const Reimbursement partly = settle(fees, formulas()[0], "0");
        EXPECT_EQ(partly.types[0].reimbursed + partly.types[3].reimbursed, partly.reimbursed);
        EXPECT_GE(partly.types[3].reimbursed, 0);
    }
}

TEST(Fees, HoldTheAverageAndTheDays)
{
    Random random(2);
    int lines = 0;
    for (int i = 0; i < 2'000; ++i) {
        const Fees fees = makeFees(100, 104, diagnoses()[0], 6, random);
        lines += static_cast<int>(fees.lines.size());
        ASSERT_FALSE(fees.lines.empty());
        Cents total = 0;
        Day before = 100;
        for (const FeeLine &line : fees.lines) {
            total += line.fee;
            EXPECT_GT(line.fee, 0);
            EXPECT_GE(line.used, before);
            EXPECT_GE(line.entered, line.used);
            EXPECT_LE(line.entered, 104);
            EXPECT_TRUE(diagnoses()[0].code.starts_with(line.item->onlyFor));
            before = line.used;
        }
        EXPECT_EQ(fees.total, total);
    }
    EXPECT_NEAR(lines / 2'000.0, 6.0, 0.3);
}

TEST(Fees, CompensateAnApprovalItemOnlyWhereItWasGranted)
{
    Random random(4);
    std::set<char> outcomes;
    for (int i = 0; i < 500; ++i) {
        const Fees fees = makeFees(0, 9, diagnoses()[0], 12, random);
        for (const FeeLine &line : fees.lines) {
            if (!line.item->needsApproval)
                continue;
            const auto approval = std::find_if(fees.approvals.begin(), fees.approvals.end(),
                                               [&line](const Approval &each) { return each.item == line.item; });
            ASSERT_NE(approval, fees.approvals.end());
            EXPECT_EQ(line.compensable, approval->status == '3');
            outcomes.insert(approval->status);
        }
    }
    EXPECT_EQ(outcomes, (std::set<char>{'1', '2', '3'}));
}

TEST(Review, StrikesOutNoMoreThanThereIs)
{
    Random random(6);
    bool struckFirst = false;
    bool struckSecond = false;
    for (int i = 0; i < 300; ++i) {
        Fees fees = makeFees(0, 5, diagnoses()[0], 12, random);
        review(fees, true, random);
        Cents first = fees.reimbursable;
        Cents second = fees.reimbursable;
        for (const FeeLine &line : fees.lines) {
            EXPECT_LE(line.firstStruck + line.secondStruck, line.reimbursable);
            first -= line.firstStruck;
            second -= line.firstStruck + line.secondStruck;
            struckFirst = struckFirst || line.firstStruck > 0;
            struckSecond = struckSecond || line.secondStruck > 0;
        }
        EXPECT_EQ(fees.firstApproved, first);
        EXPECT_EQ(fees.secondApproved, second);
    }
    EXPECT_TRUE(struckFirst);
    EXPECT_TRUE(struckSecond);
}

TEST(Review, LeavesTheSecondColumnAloneAfterTheFirst)
{
    Random random(8);
    for (int i = 0; i < 100; ++i) {
        Fees fees = makeFees(0, 5, diagnoses()[0], 12, random);
        review(fees, false, random);
        for (const FeeLine &line : fees.lines)
            EXPECT_EQ(line.secondStruck, 0);
        EXPECT_EQ(fees.secondApproved, fees.firstApproved);
    }
}

} // namespace
} // namespace vortaq::demo
