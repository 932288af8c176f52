// SPDX-License-Identifier: MIT
// Reads what stands inside one band of a template.
#pragma once

#include "report/template/attributes.h"
#include "report/template/template.h"
#include "report/template/templatestyle.h"

#include <QString>

#include <vector>

class QXmlStreamReader;

namespace report {

class TablePlaces;

/// All of it throws TemplateError. The reader stands on the band's start element, and on its end element afterwards.
class BandReader {
public:
    /// `columns` are the widths of tables that name none.
    BandReader(QXmlStreamReader &xml, Template &target, std::vector<Unit> columns);

    /// `attributes` are those of the band that are not yet taken.
    [[nodiscard]] Band read(Attributes attributes, TemplateStyle style);

private:
    struct TableCell {
        std::size_t text; ///< index into Band::texts
        int firstRow;
        int rows;
        int sourceLine;
    };
    struct TableState {
        TablePlaces &places;
        std::vector<TableCell> cells;
        Unit rowHeight;
    };

    void readText(TemplateStyle style);
    void readLine();
    void readTable(TemplateStyle style);
    void readRow(TableState &table, TemplateStyle style);
    void readCell(TableState &table, TemplateStyle style);
    void closeTable(const TableState &table, const TemplateStyle &style, Unit frame);
    void closeBand(std::optional<Unit> height);
    void addText(const Rect &box, const TemplateStyle &style, Unit padding, std::optional<QRgb> fill, int line);

    [[nodiscard]] Attributes attributes() const;
    [[nodiscard]] int line() const;
    [[noreturn]] void fail(int line, const QString &reason) const;

    QXmlStreamReader &m_xml;
    Template &m_template;
    std::vector<Unit> m_columns;
    Band m_band;
};

} // namespace report
