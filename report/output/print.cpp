// SPDX-License-Identifier: MIT
#include "report/output/print.h"

#include "report/output/paint.h"
#include "report/output/pdfcharacters.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include <algorithm>
#include <stdexcept>

namespace report {

namespace {

/// Laying out counts as the first half of the work.
constexpr int HalfWay = 500;

[[noreturn]] void fail(const QString &reason)
{
    throw std::runtime_error(reason.toStdString());
}

QPageLayout pageLayout(const Template &source)
{
    const QSizeF portrait(std::min(source.pageWidth, source.pageHeight) / double(UnitsPerMillimetre),
                          std::max(source.pageWidth, source.pageHeight) / double(UnitsPerMillimetre));
    const bool landscape = source.pageWidth > source.pageHeight;
    return {QPageSize(portrait, QPageSize::Millimeter, {}, QPageSize::FuzzyMatch),
            landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

bool finishFirst(Document &document, const Progress &progress)
{
    return document.finish([&](int permille) { return !progress || progress(permille * HalfWay / 1000); });
}

/// False when it was stopped.
bool paintPages(const Document &document, QPagedPaintDevice &device, QPainter &painter, int first, int last,
                const Progress &progress)
{
    for (int index = first; index <= last; ++index) {
        if (index > first && !device.newPage())
            fail(QStringLiteral("打印机不能继续打印。"));
        paintPage(painter, document.page(index), document.fonts());
        if (progress && !progress(HalfWay + HalfWay * (index + 1 - first) / (last + 1 - first)))
            return false;
    }
    return true;
}

} // namespace

bool writePdf(Document &document, const QString &path, const Progress &progress)
{
    if (!finishFirst(document, progress))
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        fail(QStringLiteral("无法写入文件“%1”：%2").arg(path, file.errorString()));
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&pdf);
        writer.setResolution(UnitsPerInch);
        writer.setTitle(document.source().title);
        writer.setPageLayout(pageLayout(document.source()));
        QPainter painter(&writer);
        if (!paintPages(document, writer, painter, 0, document.pageCount() - 1, progress)) {
            file.cancelWriting();
            return false;
        }
    }
    nameThePrintedCharacters(pdf.buffer(), document);
    if (file.write(pdf.data()) != pdf.size() || !file.commit())
        fail(QStringLiteral("无法写入文件“%1”：%2").arg(path, file.errorString()));
    return true;
}

bool printDocument(Document &document, QPrinter &printer, const Progress &progress)
{
    if (!finishFirst(document, progress))
        return false;
    printer.setDocName(document.source().title);
    printer.setFullPage(true);
    printer.setPageLayout(pageLayout(document.source()));
    int first = 0;
    int last = document.pageCount() - 1;
    if (printer.printRange() == QPrinter::PageRange) {
        first = std::max(first, printer.fromPage() - 1);
        if (printer.toPage() > 0)
            last = std::min(last, printer.toPage() - 1);
    }
    if (first > last)
        return true;
    QPainter painter;
    if (!painter.begin(&printer))
        fail(QStringLiteral("打印机“%1”没有接受打印任务。").arg(printer.printerName()));
    const double scale = printer.resolution() / double(UnitsPerInch);
    painter.scale(scale, scale);
    if (!paintPages(document, printer, painter, first, last, progress)) {
        printer.abort();
        return false;
    }
    return true;
}

} // namespace report
