// SPDX-License-Identifier: MIT
#include "report/document.h"

#include "report/layout/textfit.h"

#include <algorithm>
#include <utility>

namespace report {

namespace {

int permilleOf(int done, int all)
{
    return all > 0 ? static_cast<int>(1000LL * done / all) : 0;
}

} // namespace

Document::Document(TemplatePtr source, RowSource list, std::vector<RowSource> headers, GetValue getValue)
    : m_template(std::move(source))
    , m_evaluator(std::move(list), std::move(headers), std::move(getValue))
    , m_fonts(m_template)
    , m_layout(m_template, m_evaluator, m_fonts, Paging::Sheets)
{
}

void Document::layOutNext()
{
    if (!m_layout.finished())
        m_pages.push_back(m_layout.next());
}

bool Document::finish(const Progress &progress)
{
    while (!m_layout.finished()) {
        layOutNext();
        if (progress && !progress(permille()))
            return m_layout.finished();
    }
    return true;
}

int Document::permille() const noexcept
{
    return m_layout.finished() ? 1000 : permilleOf(m_layout.rowsDone(), m_evaluator.rowCount());
}

Page Document::page(int index) const
{
    Page page = m_pages[static_cast<std::size_t>(index)];
    const QString count = isFinished() ? QString::number(pageCount()) : QStringLiteral("…");
    for (TextBox &text : page.texts) {
        if (!text.text.contains(QChar(PageCountMark)))
            continue;
        text.text.replace(QChar(PageCountMark), count);
        if (!text.parted)
            placeText(m_fonts, text, fitText(m_fonts, *text.item, text.text, text.box));
        for (TextLine &line : text.lines)
            line.text.replace(QChar(PageCountMark), count);
    }
    return page;
}

QString Document::text(const TextPattern &pattern) const
{
    return m_evaluator.evaluate(pattern, {0, 0, m_evaluator.rowCount(), 1}).text;
}

std::optional<Page> Document::endless(const Progress &progress) const
{
    Layout layout(m_template, m_evaluator, m_fonts, Paging::Endless);
    bool stopped = false;
    Page page = layout.next([&](int rows) {
        stopped = progress && !progress(permilleOf(rows, m_evaluator.rowCount()));
        return !stopped;
    });
    if (stopped)
        return std::nullopt;
    return page;
}

} // namespace report
