// SPDX-License-Identifier: MIT
#include "report/layout/layout.h"

#include "report/layout/bandbreak.h"
#include "report/layout/textfit.h"
#include "report/template/templateerror.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace report {

namespace {

constexpr Unit NoEnd = std::numeric_limits<Unit>::max() / 2;
/// Tenths of a point that a form's long text gives up to keep the form on one page.
constexpr int MostSmaller = 40;

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
    const Position before = m_at;
    Unit footerHeight = m_template->pageFooter ? m_template->pageFooter->height : 0;
    ++m_pageNumber;
    for (;;) {
        beginPage(footerHeight);
        layOutBody(afterRow);
        // What a page's footer holds, such as sums, is known last; when it needs more room the page is made again.
        const Unit needed = endPage(footerHeight);
        Page page = m_builder.finish();
        if (needed <= footerHeight)
            return page;
        footerHeight = needed;
        m_at = before;
    }
}

void Layout::beginPage(Unit footerHeight)
{
    m_pageFirstRow = m_at.row;
    m_bodyStarted = false;
    m_top = m_template->marginTop;
    m_end = m_paging == Paging::Endless ? NoEnd : m_template->pageHeight - m_template->marginBottom - footerHeight;
    if (m_paging == Paging::Sheets && m_pageNumber > 1 && m_template->pageHeader)
        putHeading(measured(*m_template->pageHeader, everyRow()));
}

void Layout::layOutBody(const AfterRow &afterRow)
{
    if (m_at.stage == Stage::Title && !layOutTitle())
        return;
    if (m_at.stage == Stage::Rows && !layOutRows(afterRow))
        return;
    if (m_at.stage == Stage::Footer && layOutFooter())
        m_at.stage = Stage::Finished;
}

bool Layout::layOutTitle()
{
    const bool begins = m_pageNumber == 1;
    std::vector<TextBox> values;
    if (begins && m_template->titleBand)
        values = valuesOf(*m_template, *m_template->titleBand, m_evaluator, everyRow());
    std::optional<MeasuredBand> header; // stands below the title on the page where that begins
    if (begins && m_paging == Paging::Sheets && m_template->pageHeader && m_template->pageHeaderOnFirstPage)
        header = measured(*m_template->pageHeader, everyRow());
    const Unit headerHeight = header ? header->height : 0;
    m_end -= headerHeight;
    if (begins && m_template->titleBand)
        m_at.pending.push_back(measuredTitle(values));
    const bool whole = placePending();
    m_end += headerHeight;
    if (header)
        putHeading(std::move(*header));
    if (whole)
        m_at.stage = Stage::Rows;
    return whole;
}

bool Layout::layOutRows(const AfterRow &afterRow)
{
    if (!m_template->detail) {
        m_at.stage = Stage::Footer;
        return true;
    }
    std::vector<MeasuredBand> headings = rowHeadings();
    std::optional<RowBands> row;
    if (m_at.pending.empty() && m_at.row < m_evaluator.rowCount())
        row = rowBands();
    if (m_bodyStarted) {
        // Headings alone at the end of a page would announce rows that nobody sees there.
        Unit needed = row ? row->height() : 0;
        for (const MeasuredBand &heading : headings)
            needed += heading.height;
        if (needed > room())
            return false;
    }
    for (MeasuredBand &heading : headings)
        putHeading(std::move(heading));
    if (!placePending())
        return false;
    while (m_at.row < m_evaluator.rowCount()) {
        if (!layOutRow(row ? std::move(*row) : rowBands()) || (afterRow && !afterRow(m_at.row)))
            return false;
        row.reset();
    }
    m_at.stage = Stage::Footer;
    return true;
}

bool Layout::layOutRow(RowBands bands)
{
    if (m_bodyStarted && bands.height() > room())
        return false;
    if (bands.header)
        putHeading(std::move(*bands.header));
    m_at.pending.push_back(std::move(bands.row));
    if (bands.footer)
        m_at.pending.push_back(std::move(*bands.footer));
    ++m_at.row;
    return placePending();
}

bool Layout::layOutFooter()
{
    if (m_at.pending.empty()) {
        if (!m_template->footer)
            return true;
        MeasuredBand footer = measured(*m_template->footer, everyRow());
        if (m_bodyStarted && footer.height > room())
            return false;
        m_at.pending.push_back(std::move(footer));
    }
    return placePending();
}

bool Layout::placePending()
{
    while (!m_at.pending.empty()) {
        if (!place(m_at.pending.front()))
            return false;
        m_at.pending.pop_front();
    }
    return true;
}

/// Where even an empty page has not enough room, a part of the band is put there and the rest stays.
bool Layout::place(MeasuredBand &band)
{
    if (band.height <= room()) {
        put(std::move(band));
        m_bodyStarted = true;
        return true;
    }
    if (m_bodyStarted)
        return false;
    MeasuredBand upper = takeUpperPart(band, room(), m_fonts);
    if (upper.height == 0)
        failTooHigh(band);
    put(std::move(upper));
    m_bodyStarted = true;
    return band.texts.empty() && band.lines.empty(); // blank room at the end of a band needs no page
}

Unit Layout::endPage(Unit footerHeight)
{
    if (m_paging == Paging::Endless || !m_template->pageFooter)
        return 0;
    Place place = everyRow();
    place.row = m_pageFirstRow;
    place.firstRow = m_pageFirstRow;
    place.endRow = m_at.row;
    MeasuredBand footer = measured(*m_template->pageFooter, place);
    const Unit needed = footer.height;
    if (needed > m_template->pageHeight - m_template->marginTop - m_template->marginBottom)
        failTooHigh(footer);
    if (needed <= footerHeight)
        m_builder.add(std::move(footer), m_template->marginLeft, m_end);
    return needed;
}

void Layout::put(MeasuredBand band)
{
    const Unit top = m_top;
    m_top += band.height;
    m_builder.add(std::move(band), m_template->marginLeft, top);
}

void Layout::putHeading(MeasuredBand heading)
{
    if (heading.height > room())
        failTooHigh(heading);
    put(std::move(heading));
}

/// A form stays on one page, with its signatures below its amounts, as long as smaller type can keep it there.
MeasuredBand Layout::measuredTitle(const std::vector<TextBox> &values) const
{
    MeasuredBand title = measureBand(*m_template->titleBand, values, m_fonts);
    for (int smaller = ShrinkStep; title.height > room() && smaller <= MostSmaller; smaller += ShrinkStep) {
        MeasuredBand closer = measureBand(*m_template->titleBand, values, m_fonts, smaller);
        if (closer.height <= room())
            title = std::move(closer);
    }
    return title;
}

std::vector<MeasuredBand> Layout::rowHeadings() const
{
    std::vector<MeasuredBand> headings;
    if (m_template->columnHeader)
        headings.push_back(measured(*m_template->columnHeader, everyRow()));
    const bool insideGroup = m_at.row > m_at.groupFirstRow && (m_at.row < m_at.groupEndRow || !m_at.pending.empty());
    if (isGrouped() && m_template->groupHeader && insideGroup)
        headings.push_back(measured(*m_template->groupHeader, groupRows()));
    return headings;
}

Layout::RowBands Layout::rowBands()
{
    if (isGrouped() && m_at.row >= m_at.groupEndRow)
        findGroup();
    Place place = everyRow();
    place.row = m_at.row;
    RowBands bands{{}, measured(*m_template->detail, place), {}, 0};
    if (isGrouped() && m_template->groupHeader && m_at.row == m_at.groupFirstRow)
        bands.header = measured(*m_template->groupHeader, groupRows());
    if (isGrouped() && m_template->groupFooter && m_at.row + 1 == m_at.groupEndRow)
        bands.footer = measured(*m_template->groupFooter, groupRows());
    // A footer alone on a page would close a list that nobody sees there.
    if (m_bodyStarted && m_template->footer && m_at.row + 1 == m_evaluator.rowCount())
        bands.kept = measured(*m_template->footer, everyRow()).height;
    return bands;
}

Unit Layout::RowBands::height() const noexcept
{
    return (header ? header->height : 0) + row.height + (footer ? footer->height : 0) + kept;
}

void Layout::findGroup()
{
    m_at.groupFirstRow = m_at.row;
    m_at.groupEndRow = m_at.row + 1;
    const QString text = groupText(m_at.row);
    while (m_at.groupEndRow < m_evaluator.rowCount() && groupText(m_at.groupEndRow) == text)
        ++m_at.groupEndRow;
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
    return measureBand(band, valuesOf(*m_template, band, m_evaluator, place), m_fonts);
}

void Layout::failTooHigh(const MeasuredBand &band) const
{
    throw TemplateError(m_template->file, band.source->sourceLine,
                        QStringLiteral("这个版面带的内容太长，一页放不下，也不能分到两页"));
}

Place Layout::everyRow() const
{
    const int count = m_evaluator.rowCount();
    const bool onRows = m_at.stage == Stage::Rows && m_pageNumber > 1;
    return {onRows ? std::max(0, std::min(m_at.row, count - 1)) : 0, 0, count, m_pageNumber};
}

Place Layout::groupRows() const
{
    return {m_at.groupFirstRow, m_at.groupFirstRow, m_at.groupEndRow, m_pageNumber};
}

} // namespace report
