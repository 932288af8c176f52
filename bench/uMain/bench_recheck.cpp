// SPDX-License-Identifier: MIT
// Workload "re-check before saving": thousands of records ticked, thousands of them billed elsewhere meanwhile, against
// the same three statements by themselves; and whether cutting the lost records out stays in proportion. Prints ratios;
// ends with 1 when a bound is missed. Run a release build with QT_QPA_PLATFORM=offscreen.
#include "bench/support/hospital.h"
#include "bench/support/measuredhost.h"
#include "bench/support/measuring.h"
#include "bench/support/plainsqlite.h"
#include "host/clientdataset.h"
#include "toolkit/messageboxes.h"
#include "uMain/SavingBill.h"
#include "uMain/workbench.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

using bench::median;
using bench::milliseconds;

constexpr int Candidates = 76800;
constexpr int Ticked = 19200;
constexpr int Lost = 4783;
constexpr int Rounds = 5;
constexpr double CheckBound = 1.5;
constexpr double GrowthBound = 1.5;

/// The clerk goes on without what was lost.
class YesMan final : public toolkit::MessageBoxes {
public:
    bool ask(QWidget *, const QString &, const QString &) override { return true; }
    void tell(QWidget *, const QString &, const QString &) override { std::abort(); }
};

/// The keys of the first candidates, in the order of the list.
std::vector<data::RecordKey> keysOf(int records)
{
    std::vector<data::RecordKey> keys;
    for (int i = 0; i < records; ++i) {
        keys.push_back({QStringLiteral("4201%1").arg(i % 20, 2, 10, QLatin1Char('0')),
                        QStringLiteral("42010%1").arg(i / 4, 9, 10, QLatin1Char('0')), QString::number(i % 4),
                        QStringLiteral("0")});
    }
    return keys;
}

/// Every fourth record was billed elsewhere: the first of the list is not, or nothing could be saved.
std::vector<data::RecordKey> lostOf(const std::vector<data::RecordKey> &keys, std::size_t count)
{
    std::vector<data::RecordKey> lost;
    for (std::size_t i = 1; lost.size() < count; i += 4)
        lost.push_back(keys.at(i));
    return lost;
}

double cuttingTime(int records)
{
    const std::vector<data::RecordKey> keys = keysOf(records);
    const std::vector<data::RecordKey> lost = lostOf(keys, keys.size() / 5);
    qsizetype length = 0;
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        times.push_back(milliseconds([&] {
            data::RecordChoice choice(keys);
            for (const data::RecordKey &key : lost)
                choice.cut(key);
            length = choice.text().size();
        }));
    }
    if (length == 0)
        std::abort();
    return median(times);
}

void billElsewhere(const QString &file, const std::vector<data::RecordKey> &lost)
{
    const bench::Plain database = bench::openPlain(file);
    bench::run(database.get(), "begin");
    for (const data::RecordKey &key : lost) {
        bench::run(database.get(),
                   "update o_CbZyBxDj set BillCode='420101',BillNo=1 where " + data::recordClause(key).toStdString());
    }
    bench::run(database.get(), "commit");
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const bench::Hospital hospital(Candidates, 1);
    const std::vector<data::RecordKey> ticked = keysOf(Ticked);
    const std::vector<data::RecordKey> lost = lostOf(ticked, Lost);
    billElsewhere(hospital.file(), lost);

    YesMan boxes;
    toolkit::setMessageBoxes(&boxes);
    const QString date = QStringLiteral("2026-12-31");
    std::vector<double> checks;
    std::vector<double> statements;
    {
        const bench::MeasuredHost host(vortaq::openSqlite(hospital.file()));
        Workbench workbench;
        workbench.session.connStyle = 1;
        TClientDataSet scratch;
        data::RecordChoice left(ticked);
        for (const data::RecordKey &key : lost)
            left.cut(key);
        for (int round = 0; round < Rounds; ++round) {
            checks.push_back(milliseconds([&] {
                if (SavingBill(workbench, scratch, nullptr).check(ticked, date) != SavingBill::Check::Passed)
                    std::abort();
            }));
            statements.push_back(milliseconds([&] {
                workbench.LoadDataSet(data::alreadyBilled(data::anyOfRecords(ticked)), scratch);
                if (scratch.recordCount() != Lost)
                    std::abort();
                workbench.LoadDataSet(data::noLongerDischarged(left.text()), scratch);
                workbench.LoadDataSet(data::dischargedAfter(left.text(), date), scratch);
            }));
        }
    }
    toolkit::setMessageBoxes(nullptr);

    const double check = median(checks) / median(statements);
    const double growth = cuttingTime(Candidates) / cuttingTime(Ticked) / (double(Candidates) / Ticked);
    std::printf("re-check of %d records, %d of them billed meanwhile\n", Ticked, Lost);
    std::printf("  re-check / its statements               %.2f  (bound %.2f; %.0f ms)\n", check, CheckBound,
                median(checks));
    std::printf("  time a cut, %d records / %d         %.2f  (bound %.2f; %.1f ms)\n", Candidates, Ticked, growth,
                GrowthBound, cuttingTime(Ticked));
    return check <= CheckBound && growth <= GrowthBound ? 0 : 1;
}
