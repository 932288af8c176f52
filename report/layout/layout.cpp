// SPDX-License-Identifier: MIT
#include "report/layout/layout.h"

#include "report/template/templateerror.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace report {

namespace {

constexpr Unit NoEnd = std::numeric_limits<Unit>::max() / 2;

Unit heightOf(const std::optional<Band> &band)
{
    return band ? band->height : 0;
}

} // namespace

Layout::Layout(TemplatePtr source, const Evaluator &evaluator, const Fonts &fonts, Paging paging)
    : m_template(std::move(source))
    , m_evaluator(evaluator)
    , m_fonts(fonts)
    , m_paging(paging)
{
}

Page Layout::next(const AfterRow &afterRow)
{
    beginPage();
    if (m_stage == Stage::Rows)
        layOutRows(afterRow);
    if (m_stage == Stage::Footer)
        layOutFooter();
    endPage();
    return m_builder.finish();
}

void Layout::beginPage()
{
    ++m_pageNumber;
    m_pageFirstRow = m_row;
    m_bodyStarted = false;
    m_top = m_template->marginTop;
    m_end = m_paging == Paging::Endless
        ? NoEnd
        : m_template->pageHeight - m_template->marginBottom - heightOf(m_template->pageFooter);
    if (m_pageNumber == 1 && m_template->titleBand) {
        putCut(m_template->titleBand, everyRow());
        m_bodyStarted = true;
    }
    if (m_paging == Paging::Sheets && (m_pageNumber > 1 || m_template->pageHeaderOnFirstPage))
        putCut(m_template->pageHeader, everyRow());
}

void Layout::layOutRows(const AfterRow &afterRow)
{
    if (!m_template->detail) {
        m_stage = Stage::Footer;
        return;
    }
    putCut(m_template->columnHeader, everyRow());
    if (isGrouped() && m_row > m_groupFirstRow && m_row < m_groupEndRow)
        putCut(m_template->groupHeader, groupRows());
    while (m_row < m_evaluator.rowCount()) {
        if (!layOutRow() || (afterRow && !afterRow(m_row)))
            return;
    }
    m_stage = Stage::Footer;
}

bool Layout::layOutRow()
{
    if (isGrouped() && m_row >= m_groupEndRow)
        findGroup();
    Place place = everyRow();
    place.row = m_row;
    std::optional<MeasuredBand> header;
    std::optional<MeasuredBand> footer;
    MeasuredBand row = measured(*m_template->detail, place);
    Unit around = 0;
    if (isGrouped() && m_template->groupHeader && m_row == m_groupFirstRow) {
        header = measured(*m_template->groupHeader, groupRows());
        around += header->height;
    }
    if (isGrouped() && m_template->groupFooter && m_row + 1 == m_groupEndRow) {
        footer = measured(*m_template->groupFooter, groupRows());
        around += footer->height;
    }
    const Unit room = m_end - m_top - around;
    if (m_bodyStarted && row.height > room - keptWithLastRow())
        return false;
    cutBand(row, std::max(room, 0), m_fonts);
    if (header)
        put(std::move(*header));
    put(std::move(row));
    if (footer)
        put(std::move(*footer));
    m_bodyStarted = true;
    ++m_row;
    return true;
}

/// A footer alone on a page would close a list that nobody sees there.
Unit Layout::keptWithLastRow() const
{
    if (!m_template->footer || m_row + 1 < m_evaluator.rowCount())
        return 0;
    return measured(*m_template->footer, everyRow()).height;
}

void Layout::layOutFooter()
{
    if (m_template->footer) {
        MeasuredBand footer = measured(*m_template->footer, everyRow());
        if (footer.height > m_end - m_top) {
            if (m_bodyStarted)
                return;
            cutBand(footer, m_end - m_top, m_fonts);
        }
        put(std::move(footer));
    }
    m_stage = Stage::Finished;
}

void Layout::endPage()
{
    if (m_paging == Paging::Endless || !m_template->pageFooter)
        return;
    Place place = everyRow();
    place.row = m_pageFirstRow;
    place.firstRow = m_pageFirstRow;
    place.endRow = m_row;
    MeasuredBand footer = measured(*m_template->pageFooter, place);
    cutBand(footer, m_template->pageFooter->height, m_fonts);
    m_builder.add(std::move(footer), m_template->marginLeft, m_end);
}

void Layout::put(MeasuredBand band)
{
    const Unit top = m_top;
    m_top += band.height;
    m_builder.add(std::move(band), m_template->marginLeft, top);
}

void Layout::putCut(const std::optional<Band> &band, const Place &place)
{
    if (!band)
        return;
    MeasuredBand heading = measured(*band, place);
    cutBand(heading, std::max(0, m_end - m_top), m_fonts);
    put(std::move(heading));
}

void Layout::findGroup()
{
    m_groupFirstRow = m_row;
    m_groupEndRow = m_row + 1;
    const QString text = groupText(m_row);
    while (m_groupEndRow < m_evaluator.rowCount() && groupText(m_groupEndRow) == text)
        ++m_groupEndRow;
}

QString Layout::groupText(int row) const
{
    try {
        return m_evaluator.listField(m_template->groupField, row);
    } catch (const ValueError &error) {
        throw TemplateError(m_template->file, m_template->sourceLine, QString::fromUtf8(error.what()));
    }
}

MeasuredBand Layout::measured(const Band &band, const Place &place) const
{
    return measureBand(*m_template, band, m_evaluator, place, m_fonts);
}

Place Layout::everyRow() const
{
    const int count = m_evaluator.rowCount();
    const bool onRows = m_stage == Stage::Rows && m_pageNumber > 1;
    return {onRows ? std::min(m_row, count - 1) : 0, 0, count, m_pageNumber};
}

Place Layout::groupRows() const
{
    return {m_groupFirstRow, m_groupFirstRow, m_groupEndRow, m_pageNumber};
}

} // namespace report
