// SPDX-License-Identifier: MIT
// Workload "fee detail": the dialog over a stay of 20,000 fee lines, from the double-click to its first painted rows,
// and switching between all fees and those of one type. Prints ratios; ends with 1 when a bound is missed. Run a
// release build with QT_QPA_PLATFORM=offscreen.
#include "bench/support/hospital.h"
#include "bench/support/measuredhost.h"
#include "bench/support/measuring.h"
#include "bench/support/plainsqlite.h"
#include "toolkit/TdxTreeList.h"
#include "uDjDetail/TfrmDjDetail.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QRadioButton>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

using bench::Hospital;
using bench::milliseconds;
using bench::Plain;

constexpr int Lines = 20000;
constexpr int Types = 10;
constexpr int Rounds = 7;
constexpr double OpeningBound = 2;
constexpr double SwitchingBound = 3;

// The first candidate of the hospital has all the lines.
const char *const FeeLines =
    "with recursive n(i) as (select 1 union all select i + 1 from n where i < 20000) insert into o_CbZyBxDjZb"
    "(OrgCode,CoopMedCode,IDNo,DiagNo,FeeNo,ItemCode,ItemName,FeeTypeCode,FeeTypeName,IfPass,Unit,Price,Num,Fee,"
    "CanFreeFee,YyDate,InputDate) select '420100','42010000000000',0,0,i,'X' || (i % 900),'注射用青霉素钠' || (i % "
    "900),"
    "printf('%02d', i % 10),'费用' || (i % 10),1 + (i % 7 = 0),'支',round(i % 500 / 7.0, 4),1 + i % 5,"
    "round(i % 500 / 7.0 * (1 + i % 5), 4),round(i % 500 / 9.0, 4),date('2026-01-01', (i % 90) || ' days'),"
    "date('2026-01-01', (i % 90) || ' days') from n; analyze";

const char *const BareTypes =
    "select FeeTypeCode,FeeTypeName,sum(Fee) from o_CbZyBxDjZb where OrgCode='420100' and CoopMedCode='42010000000000' "
    "and IDNo=0 and DiagNo=0 group by FeeTypeCode,FeeTypeName order by FeeTypeCode";
const char *const BareItems =
    "select printf('%15.4f',a.FeeNo),a.ItemCode,a.ItemName,a.IfPass,a.Unit,printf('%15.4f',a.Price),"
    "printf('%15.4f',a.Num),printf('%15.4f',a.Fee),printf('%15.4f',a.CanFreeFee),a.FeeTypeCode,a.YyDate,a.InputDate,"
    "case ifnull(c.Status,'') when '' then 2 else 1 end from o_CbZyBxDjZb a left join o_CbZyBxTpb c on "
    "a.OrgCode=c.OrgCode and a.CoopMedCode=c.CoopMedCode and a.IDNo=c.IDNo and a.DiagNo=c.DiagNo and "
    "a.ItemCode=c.ItemCode and c.Status='3' where a.OrgCode='420100' and a.CoopMedCode='42010000000000' and a.IDNo=0 "
    "and a.DiagNo=0 order by a.FeeNo";
constexpr std::size_t ItemColumns = 13;
constexpr std::size_t TypeColumn = 9;

/// Opens the dialog, waits for its first paint, works in it and closes it. Returns the time until that paint.
double opening(QWidget &window, const std::function<void(QDialog &)> &work)
{
    QElapsedTimer timer;
    timer.start();
    double time = 0;
    QTimer::singleShot(0, &window, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            std::abort();
        QCoreApplication::processEvents();
        dialog->repaint();
        time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        work(*dialog);
        dialog->reject();
    });
    showFeeDetail(
        {QStringLiteral("420100"), QStringLiteral("42010000000000"), QStringLiteral("0"), QStringLiteral("0")},
        &window);
    return time;
}

using Cells = std::vector<std::string_view>;

/// Goes over the rows once and shows the cells of those of one type (empty: of all) to `visit`.
template <typename Visit> void scan(const bench::Arena &lines, std::string_view type, Visit &&visit)
{
    const auto cell = [&](std::size_t index) {
        const std::size_t end = index + 1 < lines.offsets.size() ? lines.offsets[index + 1] : lines.text.size();
        return std::string_view(lines.text).substr(lines.offsets[index], end - lines.offsets[index]);
    };
    Cells cells(ItemColumns);
    for (std::size_t row = 0; row < lines.offsets.size(); row += ItemColumns) {
        if (!type.empty() && cell(row + TypeColumn) != type)
            continue;
        for (std::size_t column = 0; column < ItemColumns; ++column)
            cells[column] = cell(row + column);
        visit(cells);
    }
}

/// Reads the texts and keeps nothing.
std::size_t readRows(const bench::Arena &lines, std::string_view type)
{
    std::size_t sum = 0;
    scan(lines, type, [&](const Cells &cells) {
        for (const std::string_view text : cells) {
            for (const char character : text)
                sum = sum * 31 + static_cast<unsigned char>(character);
        }
    });
    return sum;
}

/// Makes a list of rows of their own, as somebody would without a grid.
std::size_t listRows(const bench::Arena &lines, std::string_view type)
{
    std::vector<std::vector<std::string>> kept;
    scan(lines, type, [&](const Cells &cells) { kept.emplace_back(cells.begin(), cells.end()); });
    return kept.size();
}

/// Times of one way to a single type and back to all.
struct Switching {
    std::vector<double> refilled; ///< until the grid holds the rows
    std::vector<double> painted; ///< and shows them
    std::vector<double> read;
    std::vector<double> listed;
};

Switching switchFilter(QDialog &dialog, const bench::Arena &lines)
{
    auto &local = *dialog.findChild<QRadioButton *>(QStringLiteral("rbLocal"));
    auto &all = *dialog.findChild<QRadioButton *>(QStringLiteral("rbAll"));
    auto &items = *dialog.findChild<TdxTreeList *>(QStringLiteral("dxTLFeeInfo"));
    Switching times;
    std::size_t sum = 0;
    for (int round = 0; round < Rounds; ++round) {
        double refilled = 0;
        double painting = 0;
        for (auto [choice, wanted] : {std::pair(&local, Lines / Types), std::pair(&all, Lines)}) {
            refilled += milliseconds([choice = choice] { choice->setChecked(true); });
            painting += milliseconds([] { QCoreApplication::processEvents(); });
            if (items.count() != wanted)
                std::abort();
        }
        times.refilled.push_back(refilled);
        times.painted.push_back(refilled + painting);
        times.read.push_back(milliseconds([&] { sum += readRows(lines, "00") + readRows(lines, {}); }));
        times.listed.push_back(milliseconds([&] { sum += listRows(lines, "00") + listRows(lines, {}); }));
    }
    if (sum == 0)
        std::abort();
    return times;
}

bool report(const char *what, double ratio, double bound)
{
    std::printf("  %-60s %6.2f  (at most %.0f)\n", what, ratio, bound);
    return ratio <= bound;
}

double shortest(const std::vector<double> &times)
{
    return *std::min_element(times.begin(), times.end());
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const Hospital hospital(100, 10);
    const Plain database = bench::openTuned(hospital.file());
    bench::run(database.get(), FeeLines);

    const bench::MeasuredHost host(vortaq::openSqlite(hospital.file()));
    QWidget window;
    window.resize(1366, 700);
    window.show();
    QCoreApplication::processEvents();

    std::vector<double> own;
    std::vector<double> bare;
    bench::Arena lines;
    for (int round = 0; round < Rounds; ++round) {
        bare.push_back(milliseconds([&] {
            (void)bench::stepAndCopy(database.get(), BareTypes);
            lines = bench::stepAndCopy(database.get(), BareItems);
        }));
        own.push_back(opening(window, [](QDialog &) {}));
    }
    if (lines.offsets.size() != Lines * ItemColumns)
        std::abort();
    Switching times;
    int statements = 0;
    (void)opening(window, [&](QDialog &dialog) {
        const int before = host.queries();
        times = switchFilter(dialog, lines);
        statements = host.queries() - before;
    });

    std::printf("fee detail, %d lines\n", Lines);
    bool good = report("opening to first paint / bare step and copy", shortest(own) / shortest(bare), OpeningBound);
    good = report("switching the filter / plain scan that reads the rows",
                  shortest(times.refilled) / shortest(times.read), SwitchingBound)
        && good;
    good = report("switching and painting / plain scan that lists the rows",
                  shortest(times.painted) / shortest(times.listed), SwitchingBound)
        && good;
    good = report("statements sent by switching", statements, 0) && good;
    return good ? 0 : 1;
}
