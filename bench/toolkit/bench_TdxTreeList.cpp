// SPDX-License-Identifier: MIT
// How long a clerk waits for the candidate list at 100,000 rows, each workload beside a peer measured in the same run.
// Prints ratios; ends with 1 when a bound is missed. Run a release build with QT_QPA_PLATFORM=offscreen.
#include "bench/support/measuring.h"
#include "toolkit/TdxTreeList.h"
#include "values/displayformat.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTreeWidget>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

namespace {

using bench::shortest;

constexpr int Rows = 100000;
constexpr int Columns = 30;
constexpr std::array AmountColumns = {12, 13, 14};

using Definitions = std::vector<toolkit::ColumnDefinition>;

bool isAmount(int column)
{
    return std::find(AmountColumns.begin(), AmountColumns.end(), column) != AmountColumns.end();
}

std::string columnName(int column)
{
    return "column" + std::to_string(column);
}

std::string cellText(int row, int column)
{
    if (isAmount(column)) {
        std::array<char, 32> text{};
        std::snprintf(text.data(), text.size(), "%15.2f", row * 0.37 + column);
        return text.data();
    }
    return (column % 3 == 0 ? "住院" : "ZY0") + std::to_string(row * 31 % 99991 + column);
}

automation::DataPacketPtr makePacket()
{
    std::vector<QString> names;
    for (int column = 0; column < Columns; ++column)
        names.push_back(QString::fromStdString(columnName(column)));
    automation::DataPacketBuilder builder(names);
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column)
            builder.append(cellText(row, column));
    }
    return builder.finish();
}

/// A check column without a field, then the packet's columns. Names outlive the definitions.
Definitions makeColumns(std::vector<std::string> &names)
{
    names.clear();
    for (int column = 0; column < Columns; ++column)
        names.push_back(columnName(column));
    Definitions columns{{.name = "check", .caption = "选择", .kind = toolkit::ColumnKind::Check, .editable = true}};
    for (int column = 0; column < Columns; ++column) {
        const char *name = names[static_cast<std::size_t>(column)].c_str();
        columns.push_back({.name = name,
                           .caption = name,
                           .field = name,
                           .kind = isAmount(column) ? toolkit::ColumnKind::Currency : toolkit::ColumnKind::Text});
    }
    return columns;
}

class PaintCounter final : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
    int paints = 0;
};

void fillTreeWidget(QTreeWidget &widget, const automation::DataPacket &packet)
{
    widget.clear();
    QList<QTreeWidgetItem *> items;
    items.reserve(packet.rowCount());
    for (int row = 0; row < packet.rowCount(); ++row) {
        auto *item = new QTreeWidgetItem;
        for (int column = 0; column < Columns; ++column) {
            const std::string_view text = packet.text(row, column);
            item->setText(column, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
        }
        items.append(item);
    }
    widget.addTopLevelItems(items);
}

long double sumTicked(const TdxTreeList &list)
{
    long double sum = 0;
    std::string tick;
    std::string scratch;
    for (int row = 0; row < list.count(); ++row) {
        const TdxTreeListNode node = list.node(row);
        if (node.utf8(0, tick) != "1")
            continue;
        for (const int column : AmountColumns)
            sum += values::parseAmount(node.utf8(column + 1, scratch));
    }
    return sum;
}

long double sumPacket(const automation::DataPacket &packet)
{
    long double sum = 0;
    for (int row = 0; row < packet.rowCount(); ++row) {
        for (const int column : AmountColumns)
            sum += values::parseAmount(packet.text(row, column));
    }
    return sum;
}

bool report(const char *what, double ratio, bool good, const char *bound)
{
    std::printf("%-58s %8.2f   %s  %s\n", what, ratio, bound, good ? "ok" : "MISSED");
    return good;
}

void load(TdxTreeList &list, const automation::DataPacketPtr &packet)
{
    list.beginUpdate();
    list.clearNodes();
    list.addRows(packet);
    list.endUpdate();
}

bool benchLoad(TdxTreeList &list, const automation::DataPacketPtr &packet)
{
    QTreeWidget widget;
    widget.setColumnCount(Columns);
    widget.setUniformRowHeights(true);
    widget.resize(1200, 600);
    widget.show();
    const double peer = shortest(2, [&] {
        fillTreeWidget(widget, *packet);
        QCoreApplication::processEvents();
        widget.viewport()->repaint();
    });
    const double own = shortest(5, [&] {
        load(list, packet);
        QCoreApplication::processEvents();
        list.viewport()->repaint();
    });
    return report("load to first paint: QTreeWidget / list", peer / own, peer >= 10 * own, ">= 10");
}

bool benchTick(TdxTreeList &list, const automation::DataPacketPtr &packet)
{
    PaintCounter counter;
    list.viewport()->installEventFilter(&counter);
    QCoreApplication::processEvents();
    counter.paints = 0;
    int runs = 0;
    long double ticked = 0;
    const double own = shortest(7, [&] {
        list.setValueOfAll(0, QStringLiteral("1"));
        ticked = sumTicked(list);
        ++runs;
        QCoreApplication::processEvents();
    });
    const bool oncePainted = counter.paints == runs;
    long double plain = 0;
    const double peer = shortest(7, [&] { plain = sumPacket(*packet); });
    bool good = report("tick all, sums and repaint: list / loop over the texts", own / peer, own <= 3 * peer, "<= 3");
    good = report("repaints for each tick of all", static_cast<double>(counter.paints) / runs, oncePainted, "== 1")
        && good;
    return report("sums agree", ticked == plain ? 1 : 0, ticked == plain, "== 1") && good;
}

void benchSort(TdxTreeList &list, double loadTime)
{
    bool descending = false;
    for (const auto &[what, column] :
         {std::pair("sort by amounts / load", 13), std::pair("sort by Chinese / load", 1)}) {
        const double time = shortest(3, [&, column = column] {
            descending = !descending;
            list.header()->setSortIndicator(column, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
            QCoreApplication::processEvents();
        });
        report(what, time / loadTime, true, "-");
    }
    list.header()->setSortIndicator(-1, Qt::AscendingOrder);
}

void benchScroll(TdxTreeList &list, double loadTime)
{
    constexpr int steps = 50;
    const double jumps = shortest(3, [&] {
        for (int step = 0; step < steps; ++step) {
            list.verticalScrollBar()->setValue(step * Rows / steps);
            list.viewport()->repaint();
        }
    });
    report("one jump through the list with its paint / load", jumps / steps / loadTime, true, "-");
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const automation::DataPacketPtr packet = makePacket();
    std::vector<std::string> names;
    TdxTreeList list;
    list.setColumns(makeColumns(names));
    list.setFixedBand(4);
    list.resize(1200, 600);
    list.show();
    QCoreApplication::processEvents();

    std::printf("%-58s %8s   bound\n", "100,000 rows x 30 columns", "ratio");
    bool good = benchLoad(list, packet);
    good = benchTick(list, packet) && good;
    const double loadTime = shortest(3, [&] { load(list, packet); });
    benchSort(list, loadTime);
    benchScroll(list, loadTime);
    return good ? 0 : 1;
}
