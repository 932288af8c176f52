// SPDX-License-Identifier: MIT
// Workload "fee detail": the dialog over a stay of 20,000 fee lines, from the double-click to its first painted rows,
// and switching between all fees and those of one type. Prints ratios; ends with 1 when a bound is missed. Run a
// release build with QT_QPA_PLATFORM=offscreen.
#include "bench/uMain/bareloop.h"
#include "bench/uMain/measuredhost.h"
#include "bench/vortaq/hospital.h"
#include "toolkit/TdxTreeList.h"
#include "uDjDetail/TfrmDjDetail.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <QApplication>
#include <QRadioButton>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

using vortaq::bench::Hospital;
using vortaq::bench::median;
using vortaq::bench::milliseconds;
using vortaq::bench::Plain;

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
    const auto begin = std::chrono::steady_clock::now();
    double time = 0;
    QTimer::singleShot(0, &window, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            std::abort();
        QCoreApplication::processEvents();
        dialog->repaint();
        time = vortaq::bench::Milliseconds(std::chrono::steady_clock::now() - begin).count();
        work(*dialog);
        dialog->reject();
    });
    showFeeDetail(
        {QStringLiteral("420100"), QStringLiteral("42010000000000"), QStringLiteral("0"), QStringLiteral("0")},
        &window);
    return time;
}

/// Reads every row once and keeps those of one type, as somebody would without any grid.
std::size_t scan(const bench::Arena &lines, std::string_view type)
{
    const auto cell = [&](std::size_t index) {
        const std::size_t end = index + 1 < lines.offsets.size() ? lines.offsets[index + 1] : lines.text.size();
        return std::string_view(lines.text).substr(lines.offsets[index], end - lines.offsets[index]);
    };
    std::vector<std::vector<std::string>> kept;
    for (std::size_t row = 0; row < lines.offsets.size(); row += ItemColumns) {
        if (!type.empty() && cell(row + TypeColumn) != type)
            continue;
        std::vector<std::string> &texts = kept.emplace_back();
        for (std::size_t column = 0; column < ItemColumns; ++column)
            texts.emplace_back(cell(row + column));
    }
    return kept.size();
}

struct Switching {
    std::vector<double> own;
    std::vector<double> plain;
};

/// To one type and back to all, both with the paint that follows.
Switching switchFilter(QDialog &dialog, const bench::Arena &lines)
{
    auto &local = *dialog.findChild<QRadioButton *>(QStringLiteral("rbLocal"));
    auto &all = *dialog.findChild<QRadioButton *>(QStringLiteral("rbAll"));
    auto &items = *dialog.findChild<TdxTreeList *>(QStringLiteral("dxTLFeeInfo"));
    const auto choose = [&](QRadioButton &choice, int wanted) {
        choice.click();
        QCoreApplication::processEvents();
        if (items.count() != wanted)
            std::abort();
    };
    Switching times;
    for (int round = 0; round < Rounds; ++round) {
        times.own.push_back(milliseconds([&] {
            choose(local, Lines / Types);
            choose(all, Lines);
        }));
        times.plain.push_back(milliseconds([&] {
            if (scan(lines, "00") != Lines / Types || scan(lines, {}) != Lines)
                std::abort();
        }));
    }
    return times;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const Hospital hospital(100, 10);
    const Plain database = hospital.plain();
    vortaq::bench::run(database.get(), FeeLines);
    bench::tuneAsTheEngineDoes(database.get());

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

    const double openingRatio = median(own) / median(bare);
    const double switchingRatio = median(times.own) / median(times.plain);
    std::printf("fee detail, %d lines\n", Lines);
    std::printf("  opening to first paint / bare step and copy    %6.2f  (at most %.0f)\n", openingRatio, OpeningBound);
    std::printf("  switching the filter / plain scan of the rows  %6.2f  (at most %.0f)\n", switchingRatio,
                SwitchingBound);
    std::printf("  statements sent by switching                   %6d  (none)\n", statements);
    return openingRatio <= OpeningBound && switchingRatio <= SwitchingBound && statements == 0 ? 0 : 1;
}
