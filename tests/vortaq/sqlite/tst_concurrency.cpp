// SPDX-License-Identifier: MIT
// Several clerks save bills at the same time, each in a program of his own.
#include "tests/vortaq/sqlite/testdatabase.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>

namespace {

using namespace vortaq;
using namespace vortaq::test;

constexpr int clerks = 4;
constexpr int billsEach = 60;

/// The record that a clerk ticks for a bill of his.
std::string recordOf(int clerk, int bill)
{
    return " (OrgCode='4201' and CoopMedCode='K" + std::to_string(clerk) + "' and IDNo=" + std::to_string(bill)
        + " and DiagNo=1)";
}

void saveBill(Engine &engine, int clerk, int bill)
{
    engine.begin();
    const std::string highest = ask(
        engine,
        " select max(BillNo) as BillNo  from  (         select isnull(max(BillNo),0) as BillNo          from o_CbZyZdb"
        "          where BillCode='4201'         union all          select isnull(max(BillNo),0) as BillNo"
        "          from s_CbZyZdb          where BillCode='4201') a");
    const std::string number = std::to_string(std::stoi(highest) + 1);
    const std::string condition = recordOf(clerk, bill);
    change(engine,
           " insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,                       "
           "CheckFee,CheckStatus,PrincipalName)  select '4201',"
               + number
               + ",'城关镇卫生院' ,'2024-02-06',sum(isnull(TotalFee,0)),sum(isnull(CanFreeFee,0)),0,0,1,'甲' from"
               + " o_CbZyBxDj where " + condition);
    change(engine, " update o_CbZyBxDj  set BillCode ='4201',BillNo=" + number + " where " + condition);
    engine.commit();
}

/// Saves all bills of one clerk in a process of his own; its exit code is the number of failures.
pid_t startClerk(const TestDatabase &database, int clerk)
{
    const pid_t process = fork();
    if (process != 0)
        return process;
    int failures = 0;
    try {
        const auto engine = database.open();
        for (int bill = 0; bill < billsEach; ++bill)
            saveBill(*engine, clerk, bill);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "clerk %d: %s\n", clerk, error.what());
        ++failures;
    }
    _exit(failures);
}

TEST(Concurrency, FourClerksSaveWithoutLossOrDuplicate)
{
    const TestDatabase database;
    // The file is as a tool left it, so the four also meet while they turn its journal over.
    database.run("insert into s_CbZyZdb (BillCode, BillNo) values ('4201', 100);"
                 "with recursive n(i) as (select 0 union all select i + 1 from n where i + 1 < 240)"
                 " insert into o_CbZyBxDj (OrgCode, CoopMedCode, IDNo, DiagNo, TotalFee, CanFreeFee)"
                 " select '4201', 'K' || (i / 60), i % 60, 1, 1.1, 0.1 from n");
    std::array<pid_t, clerks> processes{};
    for (int clerk = 0; clerk < clerks; ++clerk)
        processes[static_cast<std::size_t>(clerk)] = startClerk(database, clerk);
    for (const pid_t process : processes) {
        int status = -1;
        ASSERT_GT(process, 0);
        ASSERT_EQ(waitpid(process, &status, 0), process);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(database.look("select count(*) || ' ' || min(BillNo) || ' ' || max(BillNo) || ' ' || count(distinct "
                            "BillNo) from o_CbZyZdb"),
              "240 101 340 240");
    EXPECT_EQ(database.look("select count(*) || ' ' || count(distinct BillNo) from o_CbZyBxDj"), "240 240");
    EXPECT_EQ(
        database.look("select count(*) from o_CbZyZdb b where Fee <> 1.1 or 1 <>"
                      " (select count(*) from o_CbZyBxDj r where r.BillCode = b.BillCode and r.BillNo = b.BillNo)"),
        "0");
    EXPECT_EQ(database.look("pragma integrity_check"), "ok");
}

} // namespace
