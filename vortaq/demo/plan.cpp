// SPDX-License-Identifier: MIT
// Deals stays out to institutions and bills.
#include "vortaq/demo/plan.h"

#include "vortaq/demo/random.h"

#include <algorithm>

namespace vortaq::demo {
namespace {

// Days before today between which bills were written.
constexpr int archiveBegins = 900;
constexpr int archiveEnds = 200;
constexpr int currentBegins = 180;

/// The stays of each institution; the county hospital takes what rounding leaves over.
std::vector<int> sharesOf(int stays, bool archived)
{
    std::vector<int> shares;
    int left = stays;
    for (const Institution &institution : institutions()) {
        const std::int64_t percent = archived ? institution.archivedShare : institution.currentShare;
        shares.push_back(static_cast<int>(stays * percent / 100));
        left -= shares.back();
    }
    shares[countyHospital] += left;
    return shares;
}

/// Splits the stays of an institution into bills of about the usual size, none of them empty.
std::vector<int> billSizes(int stays, int usualSize, Random &random)
{
    const int bills = std::max(1, stays / usualSize);
    std::vector<int> sizes;
    sizes.reserve(static_cast<std::size_t>(bills));
    for (int i = 0; i < bills; ++i)
        sizes.push_back(stays / bills + (i < stays % bills ? 1 : 0));
    for (std::size_t i = 0; i + 1 < sizes.size(); i += 2) {
        const int moved = random.below(sizes[i + 1] / 3 + 1);
        sizes[i] += moved;
        sizes[i + 1] -= moved;
    }
    return sizes;
}

/// The older a bill, the further it has come; `position` counts from the newest.
char statusAt(int position, int bills)
{
    const int percent = position * 100 / bills;
    if (percent < 20)
        return '1';
    if (percent < 33)
        return '2';
    if (percent < 43)
        return '9';
    return percent < 65 ? '3' : '4';
}

class Planner {
public:
    Planner(Day today, Random &random)
        : m_today(today)
        , m_random(random)
    {
    }

    void addBilled(int stays, bool archived)
    {
        const std::vector<int> shares = sharesOf(stays, archived);
        const int usualSize = std::clamp(stays / 30, 3, 50);
        for (std::size_t i = 0; i < shares.size(); ++i)
            if (shares[i] > 0)
                addInstitution(static_cast<int>(i), billSizes(shares[i], usualSize, m_random), archived);
    }

    void addUnbilled(int stays)
    {
        // The special days recur, so that they also occur in small databases.
        for (int i = 0; i < stays; ++i) {
            const int turn = i % 20;
            StayKind kind = StayKind::Discharged;
            if (turn == 0)
                kind = StayKind::DischargedToday;
            else if (turn == 1)
                kind = StayKind::AdmittedToday;
            else if (turn == 2)
                kind = StayKind::BothToday;
            else if (turn < 6)
                kind = StayKind::InHospital;
            m_plan.stays.push_back({kind, nextInstitution(isInHospital(kind)), 0});
        }
    }

    Plan finish()
    {
        m_random.shuffle(m_plan.stays);
        return std::move(m_plan);
    }

private:
    void addInstitution(int institution, const std::vector<int> &sizes, bool archived)
    {
        const int bills = static_cast<int>(sizes.size());
        const int before = lastNumber(institution);
        // At the county hospital the numbering once began one too low: one number exists in both tables.
        const int first = institution == countyHospital && before > 0 && !archived ? before : before + 1;
        for (int i = 0; i < bills; ++i) {
            const auto bill = static_cast<std::uint32_t>(m_plan.bills.size());
            m_plan.bills.push_back({institution, archived, first + i, writeDate(i, bills, archived),
                                    archived ? '4' : statusAt(bills - 1 - i, bills)});
            const StayPlan stay{archived ? StayKind::Archived : StayKind::Billed,
                                static_cast<std::uint8_t>(institution), bill};
            m_plan.stays.insert(m_plan.stays.end(), static_cast<std::size_t>(sizes[static_cast<std::size_t>(i)]), stay);
        }
    }

    int lastNumber(int institution) const
    {
        int last = 0;
        for (const Bill &bill : m_plan.bills)
            if (bill.institution == institution)
                last = std::max(last, bill.number);
        return last;
    }

    Day writeDate(int index, int bills, bool archived)
    {
        const int begins = archived ? archiveBegins : currentBegins;
        const int ends = archived ? archiveEnds : 0;
        const std::int64_t span = begins - ends;
        const int step = static_cast<int>(span / bills);
        return m_today - begins + static_cast<int>(span * (index + 1) / bills) - m_random.below(std::clamp(step, 1, 5));
    }

    /// Institutions take turns according to their weights.
    std::uint8_t nextInstitution(bool inHospital)
    {
        std::vector<std::uint8_t> &turns = inHospital ? m_inHospitalTurns : m_dischargedTurns;
        if (turns.empty()) {
            for (std::size_t i = 0; i < institutions().size(); ++i) {
                const Institution &institution = institutions()[i];
                const int weight = inHospital ? institution.inHospitalWeight : institution.dischargedWeight;
                turns.insert(turns.end(), static_cast<std::size_t>(weight), static_cast<std::uint8_t>(i));
            }
            m_random.shuffle(turns);
        }
        const std::uint8_t institution = turns.back();
        turns.pop_back();
        return institution;
    }

    Day m_today;
    Random &m_random;
    Plan m_plan;
    std::vector<std::uint8_t> m_dischargedTurns;
    std::vector<std::uint8_t> m_inHospitalTurns;
};

} // namespace

Plan makePlan(int records, int archived, Day today, Random &random)
{
    const int billed = static_cast<int>(static_cast<std::int64_t>(records) * 6 / 10);
    Planner planner(today, random);
    planner.addBilled(archived, true);
    planner.addBilled(billed, false);
    planner.addUnbilled(records - billed);
    return planner.finish();
}

} // namespace vortaq::demo
