// SPDX-License-Identifier: MIT
#include "report/output/spreadsheetgrid.h"

#include <algorithm>

namespace report {

namespace {

constexpr Unit Near = 150;

std::vector<Unit> withoutNearOnes(std::vector<Unit> edges)
{
    std::sort(edges.begin(), edges.end());
    std::vector<Unit> result;
    for (const Unit edge : edges) {
        if (result.empty() || edge - result.back() > Near)
            result.push_back(edge);
    }
    return result;
}

/// Index of the edge that stands for this one.
int indexOf(const std::vector<Unit> &edges, Unit edge)
{
    return static_cast<int>(std::upper_bound(edges.begin(), edges.end(), edge) - edges.begin()) - 1;
}

/// Thousands are asked for by a comma anywhere in a display format, but between its places in a spreadsheet's.
QString sectionFormat(QStringView section)
{
    const bool thousands = section.contains(u',');
    bool placed = false;
    QChar quote;
    QString result;
    for (const QChar character : section) {
        const bool place = character == u'0' || character == u'#';
        if (!quote.isNull() || character == u'\'' || character == u'"') {
            if (quote.isNull())
                quote = character;
            else if (character == quote)
                quote = QChar();
            else
                result += u'"' + QString(character) + u'"';
        } else if (place || character == u'.') {
            if (place && thousands && !placed)
                result += u"#,##";
            placed = true;
            result += character;
        } else if (character == u'-' || character == u'+' || character == u' ') {
            result += character;
        } else if (character != u',') {
            result += u'"' + QString(character) + u'"';
        }
    }
    return result;
}

} // namespace

SpreadsheetGrid::SpreadsheetGrid(const Page &page)
{
    std::vector<Unit> columns;
    std::vector<Unit> rows;
    for (const TextBox &text : page.texts) {
        columns.insert(columns.end(), {text.box.left, text.box.right()});
        rows.insert(rows.end(), {text.box.top, text.box.bottom()});
    }
    m_columnEdges = withoutNearOnes(std::move(columns));
    m_rowEdges = withoutNearOnes(std::move(rows));
}

std::optional<CellRange> SpreadsheetGrid::take(const TextBox &text)
{
    CellRange range;
    range.firstColumn = indexOf(m_columnEdges, text.box.left);
    range.firstRow = indexOf(m_rowEdges, text.box.top);
    range.lastColumn = std::max(range.firstColumn, indexOf(m_columnEdges, text.box.right()) - 1);
    range.lastRow = std::max(range.firstRow, indexOf(m_rowEdges, text.box.bottom()) - 1);
    bool free = true;
    for (int row = range.firstRow; row <= range.lastRow; ++row) {
        for (int column = range.firstColumn; column <= range.lastColumn; ++column)
            free = free && !m_taken.contains({row, column});
    }
    if (!free) {
        if (m_taken.contains({range.firstRow, range.firstColumn}) || text.text.isEmpty())
            return std::nullopt;
        range.lastRow = range.firstRow;
        range.lastColumn = range.firstColumn;
    }
    for (int row = range.firstRow; row <= range.lastRow; ++row) {
        for (int column = range.firstColumn; column <= range.lastColumn; ++column)
            m_taken.insert({row, column});
    }
    return range;
}

QString spreadsheetFormat(const QString &displayFormat)
{
    QStringList sections;
    for (const QStringView section : QStringView(displayFormat).split(u';'))
        sections.append(sectionFormat(section));
    return sections.join(u';');
}

} // namespace report
