// SPDX-License-Identifier: MIT
// Lays a report out, one page after the other.
#pragma once

#include "report/layout/measuredband.h"
#include "report/layout/pagebuilder.h"
#include "report/values/evaluator.h"

#include <functional>

namespace report {

class Fonts;

enum class Paging {
    Sheets, ///< pages of the template's size
    Endless ///< one page without an end, without page headers and footers
};

/// A row is never split: what does not fit goes to the next page, where the headings stand again. A row too tall for
/// any page stands alone on one and is cut at its end. The last row of a group keeps the group's footer with it, and
/// the last row of all the footer.
class Layout {
public:
    /// Told the number of rows done; false stops before the next row.
    using AfterRow = std::function<bool(int rows)>;

    /// Borrows the evaluator and the fonts.
    Layout(TemplatePtr source, const Evaluator &evaluator, const Fonts &fonts, Paging paging);

    [[nodiscard]] bool finished() const noexcept { return m_stage == Stage::Finished; }
    [[nodiscard]] int rowsDone() const noexcept { return m_row; }
    /// The next page; there must be one. Stopped by `afterRow`, it holds the rows so far.
    [[nodiscard]] Page next(const AfterRow &afterRow = {});

private:
    enum class Stage { Rows, Footer, Finished };

    void beginPage();
    void layOutRows(const AfterRow &afterRow);
    /// False when the row belongs on the next page.
    [[nodiscard]] bool layOutRow();
    [[nodiscard]] Unit keptWithLastRow() const;
    void layOutFooter();
    void endPage();
    void put(MeasuredBand band);
    void putCut(const std::optional<Band> &band, const Place &place);
    void findGroup();
    [[nodiscard]] bool isGrouped() const noexcept { return !m_template->groupField.isEmpty(); }
    [[nodiscard]] QString groupText(int row) const;
    [[nodiscard]] MeasuredBand measured(const Band &band, const Place &place) const;
    [[nodiscard]] Place everyRow() const;
    [[nodiscard]] Place groupRows() const;

    TemplatePtr m_template;
    const Evaluator &m_evaluator;
    const Fonts &m_fonts;
    Paging m_paging;
    Stage m_stage = Stage::Rows;
    PageBuilder m_builder;
    Unit m_top = 0; ///< where the next band stands
    Unit m_end = 0; ///< where the body of the page ends
    bool m_bodyStarted = false; ///< the page holds more than headings
    int m_pageNumber = 0;
    int m_row = 0; ///< the next one
    int m_pageFirstRow = 0;
    int m_groupFirstRow = 0;
    int m_groupEndRow = 0;
};

} // namespace report
