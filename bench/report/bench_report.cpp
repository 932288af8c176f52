// SPDX-License-Identifier: MIT
// How long a clerk waits for a fee list of 5,000 lines: its first page on the screen, and the whole as a PDF file
// beside the same list as HTML through QTextDocument, in the same run. Prints ratios; ends with 1 when a bound is
// missed. Run a release build with QT_QPA_PLATFORM=offscreen.
#include "bench/support/measuring.h"
#include "report/document.h"
#include "report/output/paint.h"
#include "report/output/print.h"
#include "report/template/templatereader.h"

#include "host/clientdataset.h"
#include "tests/report/samplepaper.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTextDocument>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

using bench::shortest;

constexpr int Lines = 5000;

std::unique_ptr<report::Document> makeDocument()
{
    TClientDataSet items;
    TClientDataSet header;
    samplepaper::fillFeeItems(items, Lines);
    samplepaper::fillFeeHeader(header);
    return std::make_unique<report::Document>(
        report::loadTemplate(QStringLiteral(TEMPLATES "/费用清单(总).rmf")), report::RowSource(items),
        std::vector<report::RowSource>{report::RowSource(header)}, samplepaper::answerUser);
}

/// The same columns, widths and borders.
QString makeHtml()
{
    TClientDataSet items;
    samplepaper::fillFeeItems(items, Lines);
    static const char *const Fields[] = {"YyDate", "ItemName", "Gg", "Unit", "Num", "Price", "Fee", "IfPass"};
    static const int Widths[] = {11, 28, 14, 6, 8, 10, 11, 6};
    QString html = QStringLiteral("<table border='1' cellspacing='0' width='100%' style='border-collapse:collapse'>");
    html += QStringLiteral("<thead><tr><th width='6%'>序号</th>");
    for (const int width : Widths)
        html += QStringLiteral("<th width='%1%'>项目</th>").arg(width);
    html += QStringLiteral("</tr></thead>");
    for (int row = 1; !items.eof(); items.next(), ++row) {
        html += QStringLiteral("<tr><td align='center'>%1</td>").arg(row);
        for (const char *field : Fields)
            html += QStringLiteral("<td>%1</td>").arg(items.text(QString::fromLatin1(field)).toHtmlEscaped());
        html += QStringLiteral("</tr>");
    }
    return html + QStringLiteral("</table>");
}

void writeHtml(const QString &html, const QString &path)
{
    QPdfWriter writer(path);
    writer.setResolution(600);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    QTextDocument document;
    QFont font(QStringLiteral("Noto Sans CJK SC"));
    font.setPointSizeF(9);
    document.setDefaultFont(font);
    document.setHtml(html);
    document.print(&writer);
}

bool check(const char *what, double ratio, bool good, const char *bound)
{
    std::printf("%-66s %8.2f   %s  %s\n", what, ratio, bound, good ? "ok" : "MISSED");
    return good;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString pdf = folder.filePath(QStringLiteral("list.pdf"));
    (void)report::writePdf(*makeDocument(), pdf); // fonts are loaded once a program

    const double own = shortest(3, [&] { (void)report::writePdf(*makeDocument(), pdf); });
    const QString html = makeHtml();
    const double peer = shortest(1, [&] { writeHtml(html, pdf); });
    const double whole = shortest(3, [&] { (void)makeDocument()->finish(); });
    const double rows = shortest(3, [&] { (void)makeDocument(); });
    QImage screen(800, 1130, QImage::Format_RGB32);
    const double first = shortest(5, [&] {
        const auto document = makeDocument();
        document->layOutNext();
        screen.fill(Qt::white);
        QPainter painter(&screen);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        const double scale = 800.0 / document->source().pageWidth;
        painter.scale(scale, scale);
        report::paintPage(painter, document->page(0), document->fonts());
    });
    // Making the sample rows is no part of either.
    bool good = check("5,000 lines to PDF: HTML / report", peer / own, peer >= 10 * own, ">= 10");
    good = check("first page laid out and painted / whole layout", (first - rows) / (whole - rows),
                 10 * (first - rows) <= whole - rows, "<= 0.1")
        && good;
    return good ? 0 : 1;
}
