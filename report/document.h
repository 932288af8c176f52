// SPDX-License-Identifier: MIT
// A report with its values: laid out as far as somebody has asked for.
#pragma once

#include "report/layout/fonts.h"
#include "report/layout/layout.h"
#include "report/layout/page.h"
#include "report/template/template.h"
#include "report/values/evaluator.h"

#include <functional>
#include <optional>
#include <vector>

namespace report {

/// Told how far a long job has come (0 to 1000); false asks it to stop.
using Progress = std::function<bool(int permille)>;

/// Laying out asks the values, so whatever they throw, and TemplateError, may come out of layOutNext(), finish() and
/// endless(). Pages laid out stay as they are.
class Document {
public:
    Document(TemplatePtr source, RowSource list, std::vector<RowSource> headers, GetValue getValue);
    Document(const Document &) = delete;
    Document &operator=(const Document &) = delete;

    [[nodiscard]] const Template &source() const noexcept { return *m_template; }
    [[nodiscard]] const Fonts &fonts() const noexcept { return m_fonts; }

    /// Lays out one more page, if there is one.
    void layOutNext();
    /// Lays out what is left; false when it was stopped.
    [[nodiscard]] bool finish(const Progress &progress = {});
    [[nodiscard]] bool isFinished() const noexcept { return m_layout.finished(); }
    /// Pages so far; all of them once the document is finished.
    [[nodiscard]] int pageCount() const noexcept { return static_cast<int>(m_pages.size()); }
    /// Share of the rows that is laid out, in thousandths.
    [[nodiscard]] int permille() const noexcept;

    /// Counts from 0. The number of pages in it is "…" until the document is finished.
    [[nodiscard]] Page page(int index) const;
    /// A text outside of the pages, made of the first row's values. Throws ValueError.
    [[nodiscard]] QString text(const TextPattern &pattern) const;
    /// The whole document on one endless page, for a spreadsheet; none when it was stopped.
    [[nodiscard]] std::optional<Page> endless(const Progress &progress = {}) const;

private:
    TemplatePtr m_template;
    Evaluator m_evaluator;
    Fonts m_fonts;
    Layout m_layout;
    std::vector<Page> m_pages;
};

} // namespace report
