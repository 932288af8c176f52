// SPDX-License-Identifier: MIT
// Workload "candidate load": 100,000 records of 30 columns through the engine, against SQLite's bare step and copy.
#include "bench/support/candidatequery.h"
#include "bench/support/hospital.h"
#include "bench/support/measuring.h"
#include "bench/support/plainsqlite.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <cstdio>
#include <cstdlib>

namespace {

using namespace bench;
using vortaq::openSqlite;

constexpr int candidates = 100000;
constexpr int rounds = 5;
constexpr double timeBound = 1.25;
constexpr double memoryBound = 2;

const char *const asWritten =
    " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex, cast(Age as "
    "varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName, Str(TotalFee,15,2) as "
    "TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,DoctorName,CheckOneFee,InputerCode,"
    "InputerName,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else '1' end) as isCheck,ExpressionsID,"
    "LimitDef,Ke, (case ExpenseKind when '21' then '普通住院' when '22' then '单病种住院'     when '23' then "
    "'正常分娩住院' "
    "when '29' then '其他住院' when '90' then '其他' end) as ExpenseName from o_CbZyBxDj  where BillNo is null and "
    "OutDate "
    "is not null  order by JsDate ";

} // namespace

int main()
{
    const Hospital hospital(candidates, 10);

    const double idle = peakMemory([] {});
    const double bareMemory =
        peakMemory([&] { (void)stepAndCopy(openTuned(hospital.file()).get(), BareCandidates); }) - idle;
    const double engineMemory =
        peakMemory([&] { (void)openSqlite(hospital.file())->query(QString::fromUtf8(asWritten)); }) - idle;

    const Plain database = openTuned(hospital.file());
    const auto engine = openSqlite(hospital.file());
    std::vector<double> bareTimes;
    std::vector<double> engineTimes;
    std::size_t cells = 0;
    for (int round = 0; round < rounds; ++round) {
        bareTimes.push_back(milliseconds([&] { cells = stepAndCopy(database.get(), BareCandidates).offsets.size(); }));
        engineTimes.push_back(milliseconds([&] {
            const auto packet = engine->query(QString::fromUtf8(asWritten));
            if (static_cast<std::size_t>(packet->rowCount()) * static_cast<std::size_t>(packet->columnCount()) != cells)
                std::abort();
        }));
    }
    if (cells != std::size_t{candidates} * CandidateColumns)
        std::abort();
    const double timeRatio = median(engineTimes) / median(bareTimes);
    const double memoryRatio = engineMemory / bareMemory;
    std::printf("candidate load, %zu cells\n", cells);
    std::printf("  time    engine / bare step and copy  %.2f  (bound %.2f; bare %.0f ms)\n", timeRatio, timeBound,
                median(bareTimes));
    std::printf("  memory  engine / bare step and copy  %.2f  (bound %.2f; bare %.0f MB)\n", memoryRatio, memoryBound,
                bareMemory / 1024);
    return timeRatio <= timeBound && memoryRatio <= memoryBound ? 0 : 1;
}
