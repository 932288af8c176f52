// SPDX-License-Identifier: MIT
// Workload "history": the tree of 20,000 bills over a million records, from the statement to its first painted rows,
// and opening a bill of 500 records: until they stand in the grid with their totals, and until they are painted.
// Painting a screen takes longer than reading 500 records, so the latter has a repaint of the same screen in its lower
// bound. Prints ratios; ends with 1 when a bound is missed. Run a release build with QT_QPA_PLATFORM=offscreen; the
// database takes a while and is kept under the name given, or not kept.
#include "bench/support/measuredhost.h"
#include "bench/support/measuring.h"
#include "bench/support/plainsqlite.h"
#include "toolkit/TdxTreeList.h"
#include "uMain/HistoryPage.h"
#include "uMain/workbench.h"
#include "vortaq/schema/schema.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using bench::median;
using bench::milliseconds;
using bench::Plain;
using bench::run;

constexpr int Bills = 20000; // half of them archived
constexpr int LargeBillRecords = 500; // of the newest bill, which is current; the others have 50 each
constexpr int Rounds = 7;
constexpr double TreeBound = 2;
constexpr double OpeningBound = 2;

const char *const BareBills =
    "select BillCode,BillName,BillNo,WriteDate,CheckStatus,1,printf('%.2f',Fee),printf('%.2f',CanFreeFee),"
    "printf('%.2f',CheckFee1),printf('%.2f',CheckFee) from o_CbZyZdb a where BillCode='420101' and exists (select 1 "
    "from "
    "o_CbZyBxDj b where b.BillCode=a.BillCode and b.BillNo=a.BillNo) union all "
    "select BillCode,BillName,BillNo,WriteDate,CheckStatus,2,printf('%.2f',Fee),printf('%.2f',CanFreeFee),"
    "printf('%.2f',CheckFee1),printf('%.2f',CheckFee) from s_CbZyZdb a where BillCode='420101' and exists (select 1 "
    "from "
    "s_CbZyBxDj b where b.BillCode=a.BillCode and b.BillNo=a.BillNo) order by 1,3 desc";
const char *const BareRecords =
    "select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,Age||AgeUnit,InDate,"
    "DayCount,OutDate,PatientNo,IllCode,IllName,printf('%15.2f',TotalFee),printf('%15.2f',CanFreeFee),"
    "printf('%15.2f',FreeFee),DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode,"
    "case when CheckerCode1 is null then '2' else '1' end,InputerCode,InputerName,case ExpenseKind when '21' then "
    "'普通住院' when '22' then '单病种住院' when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then "
    "'其他' "
    "end,ExpressionsID,LimitDef from o_CbZyBxDj where BillCode='420101' and BillNo=20000 order by OutDate";

/// Bills 1 to 10,000 in the archive, 10,001 to 20,000 current.
void fillTables(sqlite3 *database, const char *prefix, const char *firstBill, const char *lastBill)
{
    const std::string from = "with recursive bill(n) as (select " + std::string(firstBill)
        + " union all select n + 1 from bill where n < " + lastBill + ") ";
    const std::string table = prefix;
    run(database,
        from + "insert into " + table
            + "_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,CheckFee,CheckStatus,PrincipalName)"
              " "
              "select '420101',n,'城关镇中心卫生院',date('2000-01-01', (n / 2) || ' days'),n * 1.07,n * 0.71,n * 0.53,"
              "n * 0.31,substr('12349', 1 + n % 5, 1),'管理员' from bill");
    run(database,
        from + ", stay(i) as (select 1 union all select i + 1 from stay where i < 500) insert into " + table
            + "_CbZyBxDj(OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,Age,"
              "AgeUnit,InDate,OutDate,DayCount,JsDate,PatientNo,IllCode,IllName,ExpenseKind,TotalFee,CanFreeFee,"
              "FreeFee,"
              "DoctorName,InputerCode,InputerName,InterfaceIn,AreaCode,ExpressionsID,LimitDef,Ke,BillCode,BillNo) "
              "select '420101',printf('42010%09d', n),i,1,'420101','城关镇中心卫生院','病人' || i,'户主' || n,'男',i % "
              "90,"
              "'岁',date('2000-01-01', (n / 2) || ' days'),date('2000-01-09', (n / 2 + i % 17) || ' days'),8,null,"
              "'Z' || n,'J18.900','支气管肺炎','2' || (1 + i % 3),100 + i * 1.37,80 + i * 1.01,i * 0.9,'王医生','01',"
              "'管理员','2','420101','01','0',20.5,'420101',n from bill join stay on i <= 50 or n = 20000");
}

void makeDatabase(const QString &file)
{
    const Plain database = bench::openPlain(file);
    run(database.get(), "pragma synchronous = off; pragma journal_mode = wal; begin");
    for (const std::string &statement : vortaq::schemaStatements())
        run(database.get(), statement);
    fillTables(database.get(), "s", "1", "10000");
    fillTables(database.get(), "o", "10001", "20000");
    run(database.get(), "commit; analyze; pragma wal_checkpoint(truncate)");
}

void paint()
{
    QCoreApplication::processEvents();
}

void repaint(QWidget &page)
{
    for (QWidget *widget : page.findChildren<QWidget *>())
        widget->update();
    paint();
}

bool report(const char *what, const std::vector<double> &own, const std::vector<double> &bare, double bound)
{
    const double ratio = median(own) / median(bare);
    std::printf("  %-62s %6.2f  (at most %.0f)\n", what, ratio, bound);
    return ratio <= bound;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString file = argc > 1 ? QString::fromLocal8Bit(argv[1]) : folder.filePath(QStringLiteral("history.db"));
    if (!QFile::exists(file))
        makeDatabase(file);
    const Plain database = bench::openTuned(file);

    const bench::MeasuredHost host(vortaq::openSqlite(file));
    Workbench workbench;
    HistoryPage page(workbench);
    page.resize(1366, 700);
    page.show();
    page.start();
    paint();
    auto &bills = *page.findChild<TdxTreeList *>(QStringLiteral("dxTLOldOrg"));
    auto &grid = *page.findChild<TdxTreeList *>(QStringLiteral("dxTLOldBill"));

    std::vector<double> bareBills;
    std::vector<double> tree;
    std::vector<double> bareRecords;
    std::vector<double> opening;
    std::vector<double> bareRecordsAndPaint;
    std::vector<double> openingAndPaint;
    for (int round = 0; round < Rounds; ++round) {
        bareBills.push_back(milliseconds([&] { (void)bench::stepAndCopy(database.get(), BareBills); }));
        tree.push_back(milliseconds([&] {
            page.LoadOldBills();
            paint();
        }));
        bareRecords.push_back(milliseconds([&] { (void)bench::stepAndCopy(database.get(), BareRecords); }));
        opening.push_back(milliseconds([&] { bills.setFocusedNode(bills.topNode().child(0)); }));
        openingAndPaint.push_back(opening.back() + milliseconds(paint));
        bareRecordsAndPaint.push_back(bareRecords.back() + milliseconds([&] { repaint(page); }));
        if (bills.topNode().childCount() != Bills || grid.count() != LargeBillRecords)
            std::abort();
    }
    std::printf("history, %d bills over a million records\n", Bills);
    const bool kept[] = {
        report("tree, to its first paint / bare step and copy", tree, bareBills, TreeBound),
        report("opening a bill of 500 / bare step and copy", opening, bareRecords, OpeningBound),
        report("the same to its first paint / bare step and copy, a repaint", openingAndPaint, bareRecordsAndPaint,
               OpeningBound),
    };
    return kept[0] && kept[1] && kept[2] ? 0 : 1;
}
