// SPDX-License-Identifier: MIT
#include "report/template/bandreader.h"

#include "report/template/tableplaces.h"
#include "report/template/templateerror.h"
#include "report/template/xmlsteps.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace report {

namespace {

constexpr Unit CellPadding = 100;
constexpr Unit ThinLine = 20;
constexpr int MostRows = 1000;
constexpr Unit MostHeight = 2000 * UnitsPerMillimetre;

} // namespace

BandReader::BandReader(QXmlStreamReader &xml, Template &target, std::vector<Unit> columns)
    : m_xml(xml)
    , m_template(target)
    , m_columns(std::move(columns))
{
}

Attributes BandReader::attributes() const
{
    return {m_xml.attributes(), m_template.file, line(), m_xml.name().toString()};
}

int BandReader::line() const
{
    return static_cast<int>(m_xml.lineNumber());
}

void BandReader::fail(int line, const QString &reason) const
{
    throw TemplateError(m_template.file, line, reason);
}

Band BandReader::read(Attributes attributes, TemplateStyle style)
{
    m_band = {};
    m_band.sourceLine = line();
    const auto height = attributes.length("height");
    style.take(attributes, m_template.families);
    attributes.checkAllTaken();
    while (nextElement(m_xml, m_template.file)) {
        if (m_xml.name() == u"text")
            readText(style);
        else if (m_xml.name() == u"line")
            readLine();
        else if (m_xml.name() == u"table")
            readTable(style);
        else
            fail(line(), QStringLiteral("版面带中不能有 <%1>").arg(m_xml.name()));
    }
    closeBand(height);
    return std::move(m_band);
}

void BandReader::closeBand(std::optional<Unit> height)
{
    Unit bottom = 0;
    for (const TextItem &text : m_band.texts) {
        bottom = std::max(bottom, text.box.bottom());
        if (text.box.right() > m_template.bodyWidth())
            fail(text.sourceLine, QStringLiteral("超出纸张的右边距"));
    }
    for (const LineItem &line : m_band.lines)
        bottom = std::max({bottom, line.top, line.bottom});
    m_band.height = height.value_or(bottom);
    if (m_band.height < bottom)
        fail(m_band.sourceLine, QStringLiteral("内容高 %1 毫米，超出版面带的高度").arg(bottom / 100.0));
}

void BandReader::readText(TemplateStyle style)
{
    Attributes given = attributes();
    const int start = line();
    Rect box;
    box.left = given.requiredLength("x");
    box.top = given.requiredLength("y");
    box.width = given.requiredLength("w");
    box.height = given.requiredLength("h");
    const auto fill = given.colour("fill");
    const auto hidesEmpty = given.yesOrNo("hideEmpty");
    style.take(given, m_template.families);
    given.checkAllTaken();
    addText(box, style, style.sides == NoSide ? 0 : CellPadding, fill, start);
    m_band.texts.back().text.hidesEmpty = hidesEmpty.value_or(false);
}

void BandReader::addText(const Rect &box, const TemplateStyle &style, Unit padding, std::optional<QRgb> fill, int line)
{
    TextPattern pattern;
    try {
        pattern = parsePattern(readContent(m_xml, m_template.file));
    } catch (const std::invalid_argument &error) {
        fail(line, QString::fromUtf8(error.what()));
    }
    TextItem item = style.item(box, std::move(pattern));
    item.padding = padding;
    item.fill = fill;
    item.sourceLine = line;
    m_band.texts.push_back(std::move(item));
}

void BandReader::readLine()
{
    Attributes given = attributes();
    LineItem item;
    item.left = given.requiredLength("x1");
    item.top = given.requiredLength("y1");
    item.right = given.requiredLength("x2");
    item.bottom = given.requiredLength("y2");
    item.width = given.length("line").value_or(ThinLine);
    if (item.left != item.right && item.top != item.bottom)
        given.fail("y2", QStringLiteral("不对：线只能是水平或垂直的"));
    if (item.left > item.right)
        std::swap(item.left, item.right);
    if (item.top > item.bottom)
        std::swap(item.top, item.bottom);
    if (item.right > m_template.bodyWidth())
        given.fail("x2", QStringLiteral("超出纸张的右边距"));
    given.checkAllTaken();
    endElement(m_xml, m_template.file);
    m_band.lines.push_back(item);
}

void BandReader::readTable(TemplateStyle style)
{
    Attributes given = attributes();
    const int start = line();
    const Unit left = given.length("x").value_or(0);
    const Unit top = given.length("y").value_or(0);
    const Unit available = std::max(0, m_template.bodyWidth() - left);
    const auto columns = given.widths("columns", available).value_or(m_columns);
    const Unit rowHeight = given.length("rowHeight").value_or(0);
    const Unit frame = given.length("frame").value_or(0);
    if (columns.empty())
        given.fail("columns", QStringLiteral("没有写"));
    style.sides = AllSides;
    style.lineWidth = ThinLine;
    style.take(given, m_template.families);
    given.checkAllTaken();

    TablePlaces places(left, top, columns);
    TableState table{places, {}, rowHeight};
    while (nextElement(m_xml, m_template.file)) {
        if (m_xml.name() != u"row")
            fail(line(), QStringLiteral("<table> 中只能有 <row>，不能有 <%1>").arg(m_xml.name()));
        readRow(table, style);
    }
    if (places.outline().right() > m_template.bodyWidth())
        fail(start, QStringLiteral("表格超出纸张的右边距"));
    closeTable(table, style, frame);
}

void BandReader::readRow(TableState &table, TemplateStyle style)
{
    Attributes given = attributes();
    const Unit height = given.length("height").value_or(table.rowHeight);
    if (height == 0)
        given.fail("height", QStringLiteral("没有写（<table> 也没有 rowHeight）"));
    style.take(given, m_template.families);
    given.checkAllTaken();
    table.places.addRow(height);
    if (table.places.rowCount() > MostRows || table.places.outline().bottom() > MostHeight)
        fail(line(), QStringLiteral("表格太高"));
    while (nextElement(m_xml, m_template.file)) {
        if (m_xml.name() != u"cell")
            fail(line(), QStringLiteral("<row> 中只能有 <cell>，不能有 <%1>").arg(m_xml.name()));
        readCell(table, style);
    }
}

void BandReader::readCell(TableState &table, TemplateStyle style)
{
    Attributes given = attributes();
    const int start = line();
    const int columns = given.count("span", table.places.columnCount()).value_or(1);
    const int rows = given.count("rows", MostRows).value_or(1);
    const auto fill = given.colour("fill");
    const auto hidesEmpty = given.yesOrNo("hideEmpty");
    style.take(given, m_template.families);
    given.checkAllTaken();
    const int row = table.places.rowCount() - 1;
    if (table.places.columnCount() == 0)
        fail(start, QStringLiteral("表格没有栏"));
    const Rect box = table.places.addCell(columns, rows);
    if (box.width == 0)
        fail(start, QStringLiteral("这一行放不下这个单元格，表格共 %1 栏").arg(table.places.columnCount()));
    table.cells.push_back({m_band.texts.size(), row, rows, start});
    addText(box, style, CellPadding, fill, start);
    m_band.texts.back().text.hidesEmpty = hidesEmpty.value_or(false);
}

void BandReader::closeTable(const TableState &table, const TemplateStyle &style, Unit frame)
{
    const std::vector<Unit> &ends = table.places.rowEnds();
    for (const TableCell &cell : table.cells) {
        const auto last = static_cast<std::size_t>(cell.firstRow + cell.rows - 1);
        if (last >= ends.size())
            fail(cell.sourceLine, QStringLiteral("单元格占 %1 行，下面没有这么多行").arg(cell.rows));
        Rect &box = m_band.texts[cell.text].box;
        box.height = ends[last] - box.top;
    }
    if (frame == 0)
        return;
    TextItem outline = style.item(table.places.outline(), {});
    outline.sides = AllSides;
    outline.lineWidth = frame;
    outline.overflow = Overflow::Clip;
    m_band.texts.push_back(std::move(outline));
}

} // namespace report
