// SPDX-License-Identifier: MIT
// Workload "candidate page": 100,000 records of 30 columns from the page's statement to its first painted rows, against
// SQLite's bare step and copy; and what it costs to fill the usual widget. Prints ratios; ends with 1 when a bound is
// missed. Run a release build with QT_QPA_PLATFORM=offscreen.
#include "bench/support/candidatequery.h"
#include "bench/support/hospital.h"
#include "bench/support/measuredhost.h"
#include "bench/support/measuring.h"
#include "bench/support/plainsqlite.h"
#include "data/statements/candidates.h"
#include "host/clientdataset.h"
#include "host/loaddataset.h"
#include "toolkit/TdxTreeList.h"
#include "toolkit/TreeListUpdate.h"
#include "uMain/BillMakingPage.h"
#include "uMain/workbench.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <QApplication>
#include <QTreeWidget>

#include <cstdio>
#include <cstdlib>

namespace {

using bench::Hospital;
using bench::median;
using bench::milliseconds;
using bench::peakMemory;

constexpr int Candidates = 100000;
constexpr int Columns = bench::CandidateColumns;
constexpr int Rounds = 5;
constexpr double TimeBound = 1.6;
constexpr double WidgetBound = 10;
constexpr double MemoryBound = 2;

/// The page in a window of its own, as the main form shows it.
class Page {
public:
    explicit Page(const Hospital &hospital)
        : m_host(vortaq::openSqlite(hospital.file()))
        , m_page(m_workbench, m_scratch)
        , m_grid(*m_page.findChild<TdxTreeList *>(QStringLiteral("dxTLUp")))
    {
        m_page.resize(1366, 700);
        m_page.show();
        QCoreApplication::processEvents();
    }

    void load()
    {
        m_page.LoadUpCandidates();
        paint();
        if (m_grid.count() != Candidates)
            std::abort();
    }
    /// Fills the grid once more with rows that are there.
    void fill(const automation::DataPacketPtr &rows)
    {
        {
            const TreeListUpdate update(m_grid);
            m_grid.clearNodes();
            m_grid.addRows(rows);
        }
        paint();
    }
    [[nodiscard]] automation::DataPacketPtr rows()
    {
        host::loadDataSet(host::shared().DataCtl, data::billCandidates(std::nullopt), m_scratch);
        return m_scratch.packet();
    }

private:
    void paint()
    {
        QCoreApplication::processEvents();
        m_grid.viewport()->repaint();
    }

    bench::MeasuredHost m_host;
    Workbench m_workbench;
    TClientDataSet m_scratch;
    BillMakingPage m_page;
    TdxTreeList &m_grid;
};

void fillWidget(QTreeWidget &widget, const automation::DataPacket &packet)
{
    widget.clear();
    QList<QTreeWidgetItem *> items;
    items.reserve(packet.rowCount());
    for (int row = 0; row < packet.rowCount(); ++row) {
        auto *item = new QTreeWidgetItem; // the widget's own, once it is added
        for (int column = 0; column < Columns; ++column) {
            const std::string_view text = packet.text(row, column);
            item->setText(column, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
        }
        items.append(item);
    }
    widget.addTopLevelItems(items);
    QCoreApplication::processEvents();
    widget.viewport()->repaint();
}

/// To be asked before this process has a window of its own.
double memoryRatio(const Hospital &hospital, int argc, char **argv)
{
    const double idle = peakMemory([&] { (void)bench::openTuned(hospital.file()); });
    const double bare =
        peakMemory([&] { (void)bench::stepAndCopy(bench::openTuned(hospital.file()).get(), bench::BareCandidates); })
        - idle;
    const auto page = [&](bool loaded) {
        return peakMemory([&] {
            const QApplication application(argc, argv);
            Page shown(hospital);
            if (loaded)
                shown.load();
        });
    };
    return (page(true) - page(false)) / bare;
}

double widgetRatio(Page &page)
{
    const automation::DataPacketPtr rows = page.rows();
    QTreeWidget widget;
    widget.setColumnCount(Columns);
    widget.setUniformRowHeights(true);
    widget.resize(1366, 700);
    widget.show();
    std::vector<double> own;
    std::vector<double> peer;
    for (int round = 0; round < Rounds; ++round) {
        own.push_back(milliseconds([&] { page.fill(rows); }));
        peer.push_back(milliseconds([&] { fillWidget(widget, *rows); }));
    }
    return median(peer) / median(own);
}

} // namespace

int main(int argc, char **argv)
{
    const Hospital hospital(Candidates, 10);
    const double memory = memoryRatio(hospital, argc, argv);

    const QApplication application(argc, argv);
    Page page(hospital);
    const bench::Plain database = bench::openTuned(hospital.file());
    std::vector<double> own;
    std::vector<double> bare;
    for (int round = 0; round < Rounds; ++round) {
        bare.push_back(milliseconds([&] { (void)bench::stepAndCopy(database.get(), bench::BareCandidates); }));
        own.push_back(milliseconds([&] { page.load(); }));
    }
    const double time = median(own) / median(bare);
    const double widget = widgetRatio(page);

    std::printf("candidate page, %d records x %d columns\n", Candidates, Columns);
    std::printf("  statement to first paint / bare step and copy  %6.2f  (at most %.1f)\n", time, TimeBound);
    std::printf("  filling a QTreeWidget / filling the grid       %6.2f  (at least %.0f)\n", widget, WidgetBound);
    std::printf("  peak memory of the page / of the bare loop     %6.2f  (at most %.0f)\n", memory, MemoryBound);
    return time <= TimeBound && widget >= WidgetBound && memory <= MemoryBound ? 0 : 1;
}
