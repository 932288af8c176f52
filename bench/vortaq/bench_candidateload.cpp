// SPDX-License-Identifier: MIT
// Workload "candidate load": 100,000 records of 30 columns through the engine, against SQLite's bare step and copy.
#include "bench/vortaq/hospital.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <sqlite3.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace vortaq;
using namespace vortaq::bench;

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

// The same rows with what SQLite itself has for it.
const char *const bare =
    "select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,Age||AgeUnit,InDate,"
    "DayCount,OutDate,PatientNo,IllCode,IllName,printf('%15.2f',TotalFee),printf('%15.2f',CanFreeFee),"
    "printf('%15.2f',FreeFee),DoctorName,CheckOneFee,InputerCode,InputerName,InterfaceIn,AreaCode,"
    "case when CheckerCode1 is null then '2' else '1' end,ExpressionsID,LimitDef,Ke,"
    "case ExpenseKind when '21' then '普通住院' when '22' then '单病种住院' when '23' then '正常分娩住院' "
    "when '29' then '其他住院' when '90' then '其他' end from o_CbZyBxDj where BillNo is null and OutDate is not null "
    "order by JsDate";

struct Arena {
    std::string text;
    std::vector<std::uint32_t> offsets;
};

Arena stepAndCopy(sqlite3 *database)
{
    Arena arena;
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(database, bare, -1, &statement, nullptr) != SQLITE_OK)
        std::abort();
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = 0; column < columns; ++column) {
            arena.offsets.push_back(static_cast<std::uint32_t>(arena.text.size()));
            if (const auto *cell = reinterpret_cast<const char *>(sqlite3_column_text(statement, column)))
                arena.text.append(cell, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
        }
    }
    sqlite3_finalize(statement);
    return arena;
}

Plain openAsTheEngineDoes(const Hospital &hospital)
{
    Plain database = hospital.plain();
    run(database.get(), "pragma temp_store = memory; pragma cache_size = -65536");
    return database;
}

/// The most memory that a process of its own needs for the work, in KiB.
template <typename Work> double peakMemory(Work &&work)
{
    const pid_t process = fork();
    if (process == 0) {
        work();
        _exit(0);
    }
    rusage usage{};
    int status = 0;
    if (wait4(process, &status, 0, &usage) != process || status != 0)
        std::abort();
    return static_cast<double>(usage.ru_maxrss);
}

} // namespace

int main()
{
    const Hospital hospital(candidates, 10);

    const double idle = peakMemory([] {});
    const double bareMemory = peakMemory([&] { (void)stepAndCopy(openAsTheEngineDoes(hospital).get()); }) - idle;
    const double engineMemory =
        peakMemory([&] { (void)openSqlite(hospital.file())->query(QString::fromUtf8(asWritten)); }) - idle;

    const Plain database = openAsTheEngineDoes(hospital);
    const auto engine = openSqlite(hospital.file());
    std::vector<double> bareTimes;
    std::vector<double> engineTimes;
    std::size_t cells = 0;
    for (int round = 0; round < rounds; ++round) {
        bareTimes.push_back(milliseconds([&] { cells = stepAndCopy(database.get()).offsets.size(); }));
        engineTimes.push_back(milliseconds([&] {
            const auto packet = engine->query(QString::fromUtf8(asWritten));
            if (static_cast<std::size_t>(packet->rowCount()) * static_cast<std::size_t>(packet->columnCount()) != cells)
                std::abort();
        }));
    }
    if (cells != candidates * 30U)
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
