// SPDX-License-Identifier: MIT
// Lays a report out, one page after the other.
#pragma once

#include "report/layout/measuredband.h"
#include "report/layout/pagebuilder.h"
#include "report/values/evaluator.h"

#include <deque>
#include <functional>

namespace report {

class Fonts;

enum class Paging {
    Sheets, ///< pages of the template's size
    Endless ///< one page without an end, without page headers and footers
};

/// Nothing is left out: a title that is too long for its page goes on on the next one. A row that does not fit goes to
/// the next page, where the headings stand again; only one too tall for any page goes on on the next. The last row of a
/// group keeps the group's footer with it, and the last row of all the footer. A heading or a page's footer, which
/// stands on every page, may be as high as its texts need; when it leaves no room for anything else, that is a
/// TemplateError.
class Layout {
public:
    /// Told the number of rows done; false stops before the next row.
    using AfterRow = std::function<bool(int rows)>;

    /// Borrows the evaluator and the fonts.
    Layout(TemplatePtr source, const Evaluator &evaluator, const Fonts &fonts, Paging paging);

    [[nodiscard]] bool finished() const noexcept { return m_at.stage == Stage::Finished; }
    [[nodiscard]] int rowsDone() const noexcept { return m_at.row; }
    /// The next page; there must be one. Stopped by `afterRow`, it holds the rows so far.
    [[nodiscard]] Page next(const AfterRow &afterRow = {});

private:
    enum class Stage { Title, Rows, Footer, Finished };
    /// Where the next page goes on.
    struct Position {
        Stage stage = Stage::Title;
        int row = 0; ///< the next one
        int groupFirstRow = 0;
        int groupEndRow = 0;
        std::deque<MeasuredBand> pending; ///< what is left of a band, and what follows it without a break
    };
    /// A row with the bands of its group, which must stand on the same page.
    struct RowBands {
        std::optional<MeasuredBand> header;
        MeasuredBand row;
        std::optional<MeasuredBand> footer;
        Unit kept = 0; ///< height of the footer of all rows, which follows the last one
        [[nodiscard]] Unit height() const noexcept;
    };

    void beginPage(Unit footerHeight);
    void layOutBody(const AfterRow &afterRow);
    // Each is false when the page is full before its end.
    [[nodiscard]] bool layOutTitle();
    [[nodiscard]] bool layOutRows(const AfterRow &afterRow);
    [[nodiscard]] bool layOutRow(RowBands bands);
    [[nodiscard]] bool layOutFooter();
    [[nodiscard]] bool placePending();
    [[nodiscard]] bool place(MeasuredBand &band);
    /// Height that the page's footer needs; it stands on the page when that is what it was given.
    [[nodiscard]] Unit endPage(Unit footerHeight);

    void put(MeasuredBand band);
    void putHeading(MeasuredBand heading);
    [[nodiscard]] Unit room() const noexcept { return m_end - m_top; }
    [[nodiscard]] MeasuredBand measuredTitle(const std::vector<TextBox> &values) const;
    [[nodiscard]] std::vector<MeasuredBand> rowHeadings() const;
    [[nodiscard]] RowBands rowBands();
    void findGroup();
    [[nodiscard]] bool isGrouped() const noexcept { return !m_template->groupField.isEmpty(); }
    [[nodiscard]] QString groupText(int row) const;
    [[nodiscard]] MeasuredBand measured(const Band &band, const Place &place) const;
    [[noreturn]] void failTooHigh(const MeasuredBand &band) const;
    [[nodiscard]] Place everyRow() const;
    [[nodiscard]] Place groupRows() const;

    TemplatePtr m_template;
    const Evaluator &m_evaluator;
    const Fonts &m_fonts;
    Paging m_paging;
    PageBuilder m_builder;
    Position m_at;
    Unit m_top = 0; ///< where the next band stands
    Unit m_end = 0; ///< where the body of the page ends
    bool m_bodyStarted = false; ///< the page holds more than headings
    int m_pageNumber = 0;
    int m_pageFirstRow = 0;
};

} // namespace report
