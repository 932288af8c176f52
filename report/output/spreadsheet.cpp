// SPDX-License-Identifier: MIT
#include "report/output/spreadsheet.h"

#include "report/output/spreadsheetgrid.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <xlsxwriter.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <tuple>

namespace report {

namespace {

constexpr int HalfWay = 500;
constexpr double PointsPerUnit = 72.0 / UnitsPerInch;
/// Width of a digit of the sheet's font, which columns are measured in.
constexpr double UnitsPerCharacter = 195;
/// Points; spreadsheets know no higher row.
constexpr double HighestRow = 409;
constexpr qsizetype LongestSheetName = 31;

[[noreturn]] void fail(const QString &path, const QString &reason)
{
    throw std::runtime_error(QStringLiteral("无法写入文件“%1”：%2").arg(path, reason).toStdString());
}

QByteArray sheetName(QString title)
{
    for (const QChar forbidden : QStringView(u"[]:*?/\\'"))
        title.remove(forbidden);
    title.truncate(LongestSheetName);
    return title.isEmpty() ? QByteArrayLiteral("Sheet1") : title.toUtf8();
}

class SheetWriter {
public:
    SheetWriter(lxw_workbook *book, const Document &document, const Page &page)
        : m_book(book)
        , m_source(document.source())
        , m_page(page)
        , m_grid(page)
        , m_sheet(workbook_add_worksheet(book, sheetName(m_source.title).constData()))
    {
    }

    /// False when it was stopped.
    [[nodiscard]] bool write(const Progress &progress);

private:
    using FormatKey = std::tuple<int, bool, HorizontalAlign, VerticalAlign, bool, Sides, unsigned, QString>;

    void setUpPage();
    void setSizes();
    void writeCell(const TextBox &text);
    [[nodiscard]] lxw_format *format(const TextBox &text);
    void check(lxw_error error);

    lxw_workbook *m_book;
    const Template &m_source;
    const Page &m_page;
    SpreadsheetGrid m_grid;
    lxw_worksheet *m_sheet;
    std::map<FormatKey, lxw_format *> m_formats;
    lxw_row_t m_headerFirst = 0;
    lxw_row_t m_headerLast = 0;
    bool m_hasHeader = false;
};

void SheetWriter::check(lxw_error error)
{
    if (error != LXW_NO_ERROR)
        throw std::runtime_error(
            QStringLiteral("无法写入表格：%1").arg(QString::fromUtf8(lxw_strerror(error))).toStdString());
}

bool SheetWriter::write(const Progress &progress)
{
    setUpPage();
    setSizes();
    std::size_t done = 0;
    for (const TextBox &text : m_page.texts) {
        writeCell(text);
        ++done;
        if (progress && !progress(HalfWay + static_cast<int>(HalfWay * done / m_page.texts.size())))
            return false;
    }
    if (m_hasHeader)
        check(worksheet_repeat_rows(m_sheet, m_headerFirst, m_headerLast));
    return true;
}

void SheetWriter::setUpPage()
{
    constexpr int A3 = 8;
    constexpr int A4 = 9;
    constexpr int A5 = 11;
    constexpr int B5 = 13;
    const Unit length = std::max(m_source.pageWidth, m_source.pageHeight) / UnitsPerMillimetre;
    worksheet_set_paper(m_sheet,
                        static_cast<uint8_t>(length == 420       ? A3
                                                 : length == 297 ? A4
                                                 : length == 210 ? A5
                                                                 : B5));
    if (m_source.pageWidth > m_source.pageHeight)
        worksheet_set_landscape(m_sheet);
    const auto inches = [](Unit units) { return units / double(UnitsPerInch); };
    worksheet_set_margins(m_sheet, inches(m_source.marginLeft), inches(m_source.marginRight),
                          inches(m_source.marginTop), inches(m_source.marginBottom));
    worksheet_fit_to_pages(m_sheet, 1, 0);
    worksheet_gridlines(m_sheet, LXW_HIDE_ALL_GRIDLINES);
}

void SheetWriter::setSizes()
{
    const std::vector<Unit> &columns = m_grid.columnEdges();
    for (std::size_t at = 0; at + 1 < columns.size(); ++at)
        check(worksheet_set_column(m_sheet, static_cast<lxw_col_t>(at), static_cast<lxw_col_t>(at),
                                   (columns[at + 1] - columns[at]) / UnitsPerCharacter, nullptr));
    const std::vector<Unit> &rows = m_grid.rowEdges();
    for (std::size_t at = 0; at + 1 < rows.size(); ++at)
        check(worksheet_set_row(m_sheet, static_cast<lxw_row_t>(at),
                                std::min(HighestRow, (rows[at + 1] - rows[at]) * PointsPerUnit), nullptr));
}

lxw_format *SheetWriter::format(const TextBox &text)
{
    const TextItem &item = *text.item;
    const QString numberFormat =
        text.number ? spreadsheetFormat(item.text.pieces.front().expression.format) : QString();
    const FormatKey key{
        item.font.size, item.font.bold,        item.horizontal, item.vertical, item.wrap || text.text.contains(u'\n'),
        item.sides,     item.fill.value_or(0), numberFormat};
    lxw_format *&format = m_formats[key];
    if (format != nullptr)
        return format;
    format = workbook_add_format(m_book);
    format_set_font_name(format, "宋体");
    format_set_font_size(format, item.font.size / 10.0);
    if (item.font.bold)
        format_set_bold(format);
    constexpr lxw_format_alignments Horizontal[] = {LXW_ALIGN_LEFT, LXW_ALIGN_CENTER, LXW_ALIGN_RIGHT};
    constexpr lxw_format_alignments Vertical[] = {LXW_ALIGN_VERTICAL_TOP, LXW_ALIGN_VERTICAL_CENTER,
                                                  LXW_ALIGN_VERTICAL_BOTTOM};
    format_set_align(format, static_cast<uint8_t>(Horizontal[static_cast<int>(item.horizontal)]));
    format_set_align(format, static_cast<uint8_t>(Vertical[static_cast<int>(item.vertical)]));
    if (std::get<4>(key))
        format_set_text_wrap(format);
    if ((item.sides & LeftSide) != 0)
        format_set_left(format, LXW_BORDER_THIN);
    if ((item.sides & TopSide) != 0)
        format_set_top(format, LXW_BORDER_THIN);
    if ((item.sides & RightSide) != 0)
        format_set_right(format, LXW_BORDER_THIN);
    if ((item.sides & BottomSide) != 0)
        format_set_bottom(format, LXW_BORDER_THIN);
    if (item.fill) {
        format_set_pattern(format, LXW_PATTERN_SOLID);
        format_set_fg_color(format, *item.fill & 0xFFFFFFU);
    }
    if (!numberFormat.isEmpty())
        format_set_num_format(format, numberFormat.toUtf8().constData());
    return format;
}

void SheetWriter::writeCell(const TextBox &text)
{
    const auto range = m_grid.take(text);
    if (!range)
        return;
    lxw_format *cellFormat = format(text);
    const auto row = static_cast<lxw_row_t>(range->firstRow);
    const auto column = static_cast<lxw_col_t>(range->firstColumn);
    const auto lastRow = static_cast<lxw_row_t>(range->lastRow);
    const auto lastColumn = static_cast<lxw_col_t>(range->lastColumn);
    if (row != lastRow || column != lastColumn)
        check(worksheet_merge_range(m_sheet, row, column, lastRow, lastColumn, "", cellFormat));
    QString content = text.text;
    content.remove(QChar(PageCountMark));
    if (text.number)
        check(worksheet_write_number(m_sheet, row, column, *text.number, cellFormat));
    else if (content.isEmpty())
        check(worksheet_write_blank(m_sheet, row, column, cellFormat));
    else
        check(worksheet_write_string(m_sheet, row, column, content.toUtf8().constData(), cellFormat));
    const auto &header = m_source.columnHeader;
    if (header && !header->texts.empty() && text.item >= header->texts.data()
        && text.item < header->texts.data() + header->texts.size()) {
        m_headerFirst = m_hasHeader ? std::min(m_headerFirst, row) : row;
        m_headerLast = std::max(m_headerLast, lastRow);
        m_hasHeader = true;
    }
}

} // namespace

bool writeSpreadsheet(const Document &document, const QString &path, const Progress &progress)
{
    const auto page =
        document.endless([&progress](int permille) { return !progress || progress(permille * HalfWay / 1000); });
    if (!page)
        return false;
    // Moved into place when complete; a folder beside the file is on the same disk.
    const QTemporaryDir folder(QFileInfo(path).absolutePath() + QStringLiteral("/.xlsx-XXXXXX"));
    if (!folder.isValid())
        fail(path, folder.errorString());
    const QString written = folder.filePath(QStringLiteral("report.xlsx"));
    lxw_workbook *book = workbook_new(QFile::encodeName(written).constData());
    if (book == nullptr)
        fail(path, QStringLiteral("内存不足"));
    bool complete = false;
    try {
        complete = SheetWriter(book, document, *page).write(progress);
    } catch (...) {
        (void)workbook_close(book);
        throw;
    }
    const lxw_error error = workbook_close(book);
    if (!complete)
        return false;
    if (error != LXW_NO_ERROR)
        fail(path, QString::fromUtf8(lxw_strerror(error)));
    std::error_code failure;
    std::filesystem::rename(written.toStdU16String(), path.toStdU16String(), failure);
    if (failure)
        fail(path, QString::fromLocal8Bit(failure.message().c_str()));
    return true;
}

} // namespace report
