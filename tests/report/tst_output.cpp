// SPDX-License-Identifier: MIT
// Documents as PDF files, pictures and spreadsheets.
#include "report/output/paint.h"
#include "report/output/print.h"
#include "report/output/spreadsheet.h"
#include "report/output/spreadsheetgrid.h"
#include "report/output/target.h"
#include "report/template/templatereader.h"

#include "host/clientdataset.h"
#include "tests/report/samplepaper.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <stdexcept>

namespace {

using namespace report;

QString run(const char *program, const QStringList &arguments)
{
    QProcess process;
    process.start(QString::fromLatin1(program), arguments);
    process.waitForFinished(-1);
    EXPECT_EQ(process.exitCode(), 0) << program << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

const char *const SmallList = "<report title='小单' paper='A5' margins='10,10,10,10' columns='25,25,20'>"
                              "<title><text x='0' y='0' w='70' h='10' bold='yes'>[Hospital]清单</text></title>"
                              "<columnHeader><table rowHeight='8'><row><cell>名称</cell><cell>日期</cell>"
                              "<cell>金额</cell></row></table></columnHeader>"
                              "<detail><table rowHeight='60'><row><cell>[Name]</cell><cell>[Day]</cell>"
                              "<cell>[Fee|,0.00;-,0.00]</cell></row></table></detail>"
                              "<footer><table rowHeight='8'><row><cell span='2'>合计&lt;元&gt;</cell>"
                              "<cell>[Sum(Fee)|,0.00]</cell></row></table></footer>"
                              "<pageFooter height='6'><text x='0' y='0' w='70' h='6'>第 [Page] 页共 [Pages] 页</text>"
                              "</pageFooter></report>";

class Output : public testing::Test {
protected:
    Output()
        : document(parseTemplate(SmallList, QStringLiteral("小单.rmf")), list(), {header()}, {})
    {
    }

    static RowSource list()
    {
        TClientDataSet rows;
        samplepaper::fill(rows, samplepaper::names("Name,Day,Fee"),
                          {{"氯化钠", "2026-11-01", "1234.5000"},
                           {"退费", "2026-11-02", "-0.2500"},
                           {"未定价", "2026-11-02", ""},
                           {"00123", "2026-11-03", "7"}});
        return RowSource(rows);
    }
    static RowSource header()
    {
        TClientDataSet row;
        samplepaper::fill(row, samplepaper::names("Hospital"), {{"卫生院"}});
        return RowSource(row);
    }

    QString path(const char *name) const { return folder.filePath(QString::fromUtf8(name)); }

    QTemporaryDir folder;
    Document document;
};

TEST_F(Output, PdfHoldsTheTextInChinese)
{
    ASSERT_TRUE(writePdf(document, path("单.pdf")));
    EXPECT_EQ(document.pageCount(), 2);
    const QString text = run(PDFTOTEXT, {QStringLiteral("-layout"), path("单.pdf"), QStringLiteral("-")});
    QStringList words = text.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    EXPECT_EQ(words.join(u' ').toStdString(),
              "卫生院清单 名称 日期 金额 氯化钠 2026-11-01 1,234.50 退费 2026-11-02 -0.25 第 1 页共 2 页 "
              "名称 日期 金额 未定价 2026-11-02 00123 2026-11-03 7.00 合计<元> 1,241.25 第 2 页共 2 页");
}

/// Characters beyond the basic plane, alone and among the shapes of radicals, in a font and its bold face.
TEST_F(Output, RareCharactersAreInThePdfAndInTheSheet)
{
    TClientDataSet rows;
    samplepaper::fill(rows, samplepaper::names("Name,Day,Fee"),
                      {{"𠮷田生", "𡈽", "1"}, {"欧阳𠮷𡈽", "田", "2"}, {"𡉀龙𠮷", "甲", "3"}});
    TClientDataSet row;
    samplepaper::fill(row, samplepaper::names("Hospital"), {{"𡈽口𠮷院"}});
    Document rare(parseTemplate(SmallList, QStringLiteral("小单.rmf")), RowSource(rows), {RowSource(row)}, {});
    ASSERT_TRUE(writePdf(rare, path("罕.pdf")));
    const QString text = run(PDFTOTEXT, {QStringLiteral("-layout"), path("罕.pdf"), QStringLiteral("-")});
    for (const char *wanted : {"𠮷田生", "𡈽 ", "欧阳𠮷𡈽", "𡈽口𠮷院清单", "合计<元>", "龙𠮷"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(wanted))) << wanted << '\n' << text.toStdString();
    ASSERT_TRUE(writeSpreadsheet(rare, path("罕.xlsx")));
    const QString texts = run(UNZIP, {QStringLiteral("-p"), path("罕.xlsx"), QStringLiteral("xl/sharedStrings.xml")});
    for (const char *wanted : {"<t>𠮷田生</t>", "<t>欧阳𠮷𡈽</t>", "<t>𡈽口𠮷院清单</t>"})
        EXPECT_TRUE(texts.contains(QString::fromUtf8(wanted))) << wanted;
}

/// A reader finds every object where the table says, and every stream as long as it says.
TEST_F(Output, APdfWithOtherMeaningsIsStillInOrder)
{
    TClientDataSet rows;
    samplepaper::fill(rows, samplepaper::names("Name,Day,Fee"), {{"𠮷生𡈽", "田", "1"}});
    Document rare(parseTemplate(SmallList, QStringLiteral("小单.rmf")), RowSource(rows), {header()}, {});
    ASSERT_TRUE(writePdf(rare, path("罕.pdf")));
    QFile file(path("罕.pdf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray pdf = file.readAll();
    const qsizetype start = pdf.lastIndexOf("startxref\n") + 10;
    const qsizetype table = pdf.mid(start, pdf.indexOf('\n', start) - start).trimmed().toLongLong();
    ASSERT_EQ(pdf.mid(table, 5), "xref\n");
    const QList<QByteArray> lines = pdf.mid(table).split('\n');
    const int count = lines.at(1).split(' ').at(1).toInt();
    ASSERT_GT(count, 5);
    for (int number = 1; number < count; ++number) {
        const QByteArray begin = QByteArray::number(number) + " 0 obj\n";
        EXPECT_EQ(pdf.mid(lines.at(2 + number).left(10).toLongLong(), begin.size()), begin);
    }
    int meanings = 0;
    for (qsizetype at = pdf.indexOf("begincmap"); at >= 0; at = pdf.indexOf("begincmap", at + 1)) {
        const qsizetype stream = pdf.lastIndexOf("stream\n", at) + 7;
        const qsizetype length = pdf.lastIndexOf("/Length ", stream) + 8;
        const qsizetype told = pdf.mid(length, pdf.indexOf(' ', length) - length).toLongLong();
        EXPECT_EQ(pdf.mid(stream + told).trimmed().left(9), "endstream");
        meanings += static_cast<int>(pdf.mid(stream, told).count("D842DFB7"));
    }
    EXPECT_EQ(meanings, 1);
}

TEST_F(Output, PrinterGetsThePagesThatWereChosen)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path("纸.pdf"));
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 2);
    ASSERT_TRUE(printDocument(document, printer));
    const QString text = run(PDFTOTEXT, {path("纸.pdf"), QStringLiteral("-")});
    EXPECT_TRUE(text.contains(QStringLiteral("00123"))) << text.toStdString();
    EXPECT_FALSE(text.contains(QStringLiteral("氯化钠"))) << text.toStdString();
    EXPECT_EQ(text.count(u'\f'), 1);
}

TEST_F(Output, StoppedJobsLeaveNoFile)
{
    const auto stopLate = [](int permille) { return permille < 900; };
    EXPECT_FALSE(writePdf(document, path("a.pdf"), stopLate));
    EXPECT_FALSE(writeSpreadsheet(document, path("a.xlsx"), stopLate));
    EXPECT_FALSE(writeSpreadsheet(document, path("a.xlsx"), [](int) { return false; }));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

TEST_F(Output, ProgressRunsUpToTheEnd)
{
    std::vector<int> seen;
    const auto note = [&seen](int permille) {
        seen.push_back(permille);
        return true;
    };
    ASSERT_TRUE(writePdf(document, path("a.pdf"), note));
    EXPECT_EQ(seen, (std::vector<int>{250, 500, 750, 1000}));
    seen.clear();
    ASSERT_TRUE(writeSpreadsheet(document, path("a.xlsx"), note));
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
    EXPECT_EQ(seen.back(), 1000);
}

TEST_F(Output, UnwritableFilesAreNamed)
{
    const QString nowhere = path("没有/单.pdf");
    for (const auto &write : {std::function<void()>([&] { (void)writePdf(document, nowhere); }),
                              std::function<void()>([&] { (void)writeSpreadsheet(document, nowhere); })}) {
        try {
            write();
            ADD_FAILURE() << "written";
        } catch (const std::runtime_error &error) {
            EXPECT_TRUE(QString::fromUtf8(error.what()).startsWith(QStringLiteral("无法写入文件“%1”：").arg(nowhere)))
                << error.what();
        }
    }
}

TEST_F(Output, SpreadsheetHoldsNumbersAsNumbers)
{
    ASSERT_TRUE(writeSpreadsheet(document, path("单.xlsx")));
    const QString sheet =
        run(UNZIP, {QStringLiteral("-p"), path("单.xlsx"), QStringLiteral("xl/worksheets/sheet1.xml")});
    const QString texts = run(UNZIP, {QStringLiteral("-p"), path("单.xlsx"), QStringLiteral("xl/sharedStrings.xml")});
    QStringList shared;
    for (const auto &match : QRegularExpression(QStringLiteral("<t>([^<]*)</t>")).globalMatch(texts))
        shared.append(match.captured(1));
    QStringList cells;
    const QRegularExpression cell(QStringLiteral("<c r=\"([A-Z]+\\d+)\" s=\"\\d+\"( t=\"s\")?><v>([^<]*)</v></c>"));
    for (const auto &match : cell.globalMatch(sheet)) {
        const bool text = !match.captured(2).isEmpty();
        cells.append(match.captured(1) + QString(text ? u':' : u'=')
                     + (text ? shared.at(match.captured(3).toInt()) : match.captured(3)));
    }
    EXPECT_EQ(cells.join(u' ').toStdString(),
              "A1:卫生院清单 A2:名称 B2:日期 C2:金额 A3:氯化钠 B3:2026-11-01 C3=1234.5 A4:退费 B4:2026-11-02 C4=-0.25 "
              "A5:未定价 B5:2026-11-02 A6:00123 B6:2026-11-03 C6=7 A7:合计&lt;元&gt; C7=1241.25");
    EXPECT_TRUE(sheet.contains(QStringLiteral("<mergeCell ref=\"A1:C1\"/><mergeCell ref=\"A7:B7\"/>")))
        << sheet.toStdString();
    const QString styles = run(UNZIP, {QStringLiteral("-p"), path("单.xlsx"), QStringLiteral("xl/styles.xml")});
    EXPECT_TRUE(styles.contains(QStringLiteral("formatCode=\"#,##0.00;-#,##0.00\""))) << styles.toStdString();
    const QString book = run(UNZIP, {QStringLiteral("-p"), path("单.xlsx"), QStringLiteral("xl/workbook.xml")});
    EXPECT_TRUE(book.contains(QStringLiteral("<sheet name=\"小单\""))) << book.toStdString();
    EXPECT_TRUE(book.contains(QStringLiteral("'小单'!$2:$2"))) << book.toStdString();
}

TEST_F(Output, AnExistingFileIsReplaced)
{
    for (const char *name : {"a.pdf", "a.xlsx"}) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("alt");
    }
    ASSERT_TRUE(writePdf(document, path("a.pdf")));
    ASSERT_TRUE(writeSpreadsheet(document, path("a.xlsx")));
    EXPECT_GT(QFile(path("a.pdf")).size(), 1000);
    EXPECT_GT(QFile(path("a.xlsx")).size(), 1000);
}

TEST_F(Output, PdfFolderKeepsDocumentsOfOneTitleApart)
{
    PdfFolder target(path("输出/今天"));
    target.show(document, nullptr);
    target.show(document, nullptr);
    EXPECT_EQ(QDir(path("输出/今天")).entryList(QDir::Files),
              (QStringList{QStringLiteral("小单-2.pdf"), QStringLiteral("小单.pdf")}));
}

TEST(SpreadsheetFormats, AreSpelledTheSpreadsheetsWay)
{
    const struct {
        const char *display;
        const char *sheet;
    } rows[] = {{"0.00", "0.00"},
                {",0.00;-,0.00", "#,##0.00;-#,##0.00"},
                {"￥,0.0000;-￥,0.0000", "\"￥\"#,##0.0000;-\"￥\"#,##0.0000"},
                {"0.##", "0.##"},
                {"0'元'", "0\"元\""}};
    for (const auto &[display, sheet] : rows)
        EXPECT_EQ(spreadsheetFormat(QString::fromUtf8(display)).toStdString(), sheet);
}

TextBox box(Rect place, const char *text = "x")
{
    TextBox result;
    result.box = place;
    result.text = QString::fromUtf8(text);
    return result;
}

TEST(SpreadsheetGrids, SnapNearEdgesAndNeverOverlap)
{
    Page page;
    page.texts = {box({0, 0, 1000, 500}), box({1000, 0, 1000, 500}), box({60, 500, 1900, 500}),
                  box({0, 0, 2000, 1000}, ""), box({500, 0, 400, 500})};
    SpreadsheetGrid grid(page);
    EXPECT_EQ(grid.columnEdges(), (std::vector<Unit>{0, 500, 900, 1960}));
    EXPECT_EQ(grid.rowEdges(), (std::vector<Unit>{0, 500, 1000}));
    EXPECT_EQ(grid.take(page.texts[0]), (CellRange{0, 0, 0, 1}));
    EXPECT_EQ(grid.take(page.texts[1]), (CellRange{0, 2, 0, 2}));
    EXPECT_EQ(grid.take(page.texts[2]), (CellRange{1, 0, 1, 2}));
    EXPECT_EQ(grid.take(page.texts[3]), std::nullopt);
    EXPECT_EQ(grid.take(page.texts[4]), std::nullopt);
}

/// Strokes, fills and letters at the right places: in every square of the page the mean darkness is about right.
TEST_F(Output, APaintedPageLooksAsItShould)
{
    ASSERT_TRUE(document.finish());
    constexpr int Dots = 72;
    const double scale = double(Dots) / UnitsPerInch;
    QImage image(qRound(14800 * scale), qRound(21000 * scale), QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter.scale(scale, scale);
        paintPage(painter, document.page(0), document.fonts());
    }
    const QImage sample(QStringLiteral(SAMPLES "/small-list.png"));
    ASSERT_EQ(sample.size(), image.size());
    const QSize squares = image.size() / 4;
    const auto small = [&squares](const QImage &from) {
        return from.convertToFormat(QImage::Format_Grayscale8)
            .scaled(squares, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage seen = small(image);
    const QImage wanted = small(sample);
    int worst = 0;
    for (int y = 0; y < squares.height(); ++y) {
        for (int x = 0; x < squares.width(); ++x)
            worst = std::max(worst, std::abs(qGray(seen.pixel(x, y)) - qGray(wanted.pixel(x, y))));
    }
    EXPECT_LE(worst, 24);
}

} // namespace
