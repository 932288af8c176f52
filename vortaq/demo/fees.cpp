// SPDX-License-Identifier: MIT
// Amounts are whole cents throughout, so that every sum is exact.
#include "vortaq/demo/fees.h"

#include "vortaq/demo/random.h"

#include <algorithm>
#include <charconv>

namespace vortaq::demo {
namespace {

constexpr int usualLines = 12;

bool isGranted(Fees &fees, const FeeItem &item, Random &random)
{
    const auto known = std::find_if(fees.approvals.begin(), fees.approvals.end(),
                                    [&item](const Approval &approval) { return approval.item == &item; });
    if (known != fees.approvals.end())
        return known->status == '3';
    constexpr std::array<char, 5> outcomes = {'3', '3', '3', '1', '2'};
    const char status = random.pick(outcomes);
    fees.approvals.push_back({&item, status});
    return status == '3';
}

void addLine(Fees &fees, const FeeItem &item, std::int64_t quantity, Day used, Day entered, Random &random)
{
    const bool compensable = item.rate > 0 && (!item.needsApproval || isGranted(fees, item, random));
    // Ten-thousandths times hundredths of a yuan, rounded to the cent.
    const Cents fee = (item.price * quantity + 5000) / 10000;
    const Cents reimbursable = compensable ? (fee * item.rate + 50) / 100 : 0;
    fees.lines.push_back({&item, quantity, compensable, fee, reimbursable, 0, 0, used, entered});
    fees.total += fee;
    fees.reimbursable += reimbursable;
}

const FeeItem &randomItem(const Diagnosis &diagnosis, Random &random)
{
    for (;;) {
        const FeeItem &item = random.pick(feeItems());
        const bool daily = &item == &feeItems()[bedItem] || &item == &feeItems()[nursingItem];
        if (!daily && diagnosis.code.starts_with(item.onlyFor))
            return item;
    }
}

Cents limitOf(std::string_view limit)
{
    Cents yuan = 0;
    std::from_chars(limit.data() + 1, limit.data() + limit.size(), yuan);
    return yuan * 100;
}

} // namespace

Fees makeFees(Day first, Day last, const Diagnosis &diagnosis, int averageLines, Random &random)
{
    Fees fees;
    const int days = std::max(1, last - first);
    const int count = random.between(1, 2 * averageLines - 1);
    fees.lines.reserve(static_cast<std::size_t>(count));
    if (count >= 3) {
        addLine(fees, feeItems()[bedItem], days * std::int64_t{100}, first, first, random);
        addLine(fees, feeItems()[nursingItem], days * std::int64_t{100}, first, first, random);
    }
    // Where few lines stand for a whole stay, each of them is larger.
    const int scale = std::max(1, usualLines / averageLines);
    while (static_cast<int>(fees.lines.size()) < count) {
        const FeeItem &item = randomItem(diagnosis, random);
        const Day used = first + random.below(last - first + 1);
        const Day entered = std::min(last, used + random.below(2));
        const int half = item.unit == "克" ? 50 * random.below(2) : 0;
        addLine(fees, item, random.between(1, item.most) * scale * 100 + half, used, entered, random);
    }
    std::stable_sort(fees.lines.begin(), fees.lines.end(),
                     [](const FeeLine &left, const FeeLine &right) { return left.used < right.used; });
    fees.firstApproved = fees.reimbursable;
    fees.secondApproved = fees.reimbursable;
    return fees;
}

void review(Fees &fees, bool second, Random &random)
{
    constexpr std::array<int, 4> percentages = {20, 50, 50, 100};
    fees.firstApproved = fees.reimbursable;
    for (FeeLine &line : fees.lines) {
        if (random.percent(10))
            line.firstStruck = line.reimbursable * random.pick(percentages) / 100;
        fees.firstApproved -= line.firstStruck;
    }
    fees.secondApproved = fees.firstApproved;
    if (!second)
        return;
    for (FeeLine &line : fees.lines) {
        if (random.percent(8))
            line.secondStruck = (line.reimbursable - line.firstStruck) * random.pick(percentages) / 100;
        fees.secondApproved -= line.secondStruck;
    }
}

const Formula &formulaFor(const Diagnosis &diagnosis, Level level)
{
    if (diagnosis.expenseKind == "22")
        return formulas()[3];
    if (diagnosis.expenseKind == "23")
        return formulas()[4];
    if (diagnosis.expenseKind == "29" || diagnosis.expenseKind == "90")
        return formulas()[5];
    return formulas()[static_cast<std::size_t>(level) - 1];
}

Reimbursement settle(const Fees &fees, const Formula &formula, std::string_view limit)
{
    Reimbursement result;
    result.deducted = std::min(formula.deductible, fees.reimbursable);
    result.reimbursed = ((fees.reimbursable - result.deducted) * formula.rate + 50) / 100;
    if (limit.front() != '0')
        result.reimbursed = std::min(result.reimbursed, limitOf(limit));

    for (const FeeLine &line : fees.lines) {
        TypeSum &sum =
            result
                .types[static_cast<std::size_t>(topLevelOf(feeTypes()[static_cast<std::size_t>(line.item->feeType)]))];
        sum.fee += line.fee;
        sum.reimbursable += line.reimbursable;
    }
    // Each type gets its share of the running total, so the shares add up whatever the rounding.
    Cents before = 0;
    for (TypeSum &sum : result.types) {
        const Cents upTo = before + sum.reimbursable;
        if (sum.reimbursable > 0)
            sum.reimbursed =
                result.reimbursed * upTo / fees.reimbursable - result.reimbursed * before / fees.reimbursable;
        before = upTo;
    }
    return result;
}

} // namespace vortaq::demo
