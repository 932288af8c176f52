// SPDX-License-Identifier: MIT
// Workload "saving a bill": thousands of ticked records, against the same statements given to SQLite as they are
// written.
#include "bench/support/hospital.h"
#include "bench/support/measuring.h"
#include "bench/support/plainsqlite.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace bench;
using vortaq::Engine;
using vortaq::openSqlite;

constexpr int candidates = 20000;
constexpr int ticked = 5000;
constexpr double speedBound = 20;
constexpr double linearBound = 1.5;

const std::string highestNumber = " select max(BillNo) as BillNo  from  (         select isnull(max(BillNo),0) as "
                                  "BillNo          from o_CbZyZdb          "
                                  "where BillCode='420101'         union all          select isnull(max(BillNo),0) as "
                                  "BillNo          from s_CbZyZdb         "
                                  " where BillCode='420101') a";

/// As the module writes it: one key behind the other, joined by or.
std::string chain(int records)
{
    std::string condition;
    for (int i = 0; i < records; ++i)
        condition += (i == 0 ? " " : " or ") + keyOf(i);
    return condition;
}

/// SQLite takes a chain of that length only as a tree.
std::string tree(int first, int behind)
{
    if (behind - first == 1)
        return keyOf(first);
    const int middle = (first + behind) / 2;
    return "(" + tree(first, middle) + " or " + tree(middle, behind) + ")";
}

std::string dischargedLater(const std::string &condition, const std::string &day)
{
    return " select CoopMedCode from o_CbZyBxDj  where (" + condition + ")  and " + day + " > '2025-12-31'";
}

std::string insertBill(const std::string &condition, const std::string &sums)
{
    return " insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,                       "
           "CheckFee,CheckStatus,PrincipalName)  select '420101',1,'城关镇中心卫生院' ,'2025-12-31',"
        + sums + ",0,0,1,'王医生' from o_CbZyBxDj where " + condition;
}

std::string stampRecords(const std::string &condition)
{
    return " update o_CbZyBxDj  set BillCode ='420101',BillNo=1 where " + condition;
}

/// The whole conversation of a save; the bill is taken back, so that every round finds the same records.
double saveThroughEngine(Engine &engine, int records)
{
    const std::string condition = chain(records);
    const double time = milliseconds([&] {
        (void)engine.query(QString::fromStdString(dischargedLater(condition, "convert(varchar(10),OutDate,126)")));
        engine.begin();
        (void)engine.query(QString::fromStdString(highestNumber));
        engine.execute(
            QString::fromStdString(insertBill(condition, "sum(isnull(TotalFee,0)),sum(isnull(CanFreeFee,0))")));
        if (engine.execute(QString::fromStdString(stampRecords(condition))) != records)
            std::abort();
    });
    engine.rollback();
    return time;
}

double saveAsWritten(sqlite3 *database, int records)
{
    const std::string condition = tree(0, records);
    const double time = milliseconds([&] {
        run(database, dischargedLater(condition, "OutDate"));
        run(database, "begin immediate");
        run(database, insertBill(condition, "sum(ifnull(TotalFee,0)),sum(ifnull(CanFreeFee,0))"));
        run(database, stampRecords(condition));
    });
    if (sqlite3_changes(database) != records)
        std::abort();
    run(database, "rollback");
    return time;
}

double usualTime(Engine &engine, int records)
{
    std::vector<double> times;
    for (int round = 0; round < 7; ++round)
        times.push_back(saveThroughEngine(engine, records));
    return median(times);
}

} // namespace

int main()
{
    const Hospital hospital(candidates, 2);
    const auto engine = openSqlite(hospital.file());
    const double few = usualTime(*engine, 1000);
    const double usual = usualTime(*engine, ticked);
    const double many = usualTime(*engine, candidates);
    engine->rollback();
    const double written = saveAsWritten(openPlain(hospital.file()).get(), ticked);

    const double speed = written / usual;
    const double growth = many / few / (candidates / 1000.0);
    std::printf("saving a bill of %d records\n", ticked);
    std::printf("  as written / engine                     %.0f  (bound at least %.0f; engine %.0f ms)\n", speed,
                speedBound, usual);
    std::printf("  time a record, %d records / 1000     %.2f  (bound %.2f)\n", candidates, growth, linearBound);
    return speed >= speedBound && growth <= linearBound ? 0 : 1;
}
