// SPDX-License-Identifier: MIT
// Fonts at the layout's own resolution.
#pragma once

#include "report/template/template.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>

#include <map>
#include <vector>

namespace report {

/// A font measures in units and is painted through a scaled painter, so that lines break at the same place on screen,
/// in a PDF and on paper.
class Fonts {
public:
    explicit Fonts(const TemplatePtr &source);

    [[nodiscard]] const QFont &font(const FontStyle &style) const { return entry(style).font; }
    [[nodiscard]] const QFontMetricsF &metrics(const FontStyle &style) const { return entry(style).metrics; }
    /// Width of a text in one line. Chinese and Latin text is added up from its characters, which is many times faster
    /// than shaping it; everything else is shaped.
    [[nodiscard]] double width(const FontStyle &style, QStringView text) const;
    /// Side of the square that a Chinese character takes.
    [[nodiscard]] static Unit em(const FontStyle &style) noexcept;

private:
    struct Entry {
        QFont font;
        QFontMetricsF metrics;
        mutable QHash<char16_t, double> advances;
    };
    struct Order {
        bool operator()(const FontStyle &left, const FontStyle &right) const noexcept;
    };

    [[nodiscard]] const Entry &entry(const FontStyle &style) const;

    TemplatePtr m_template;
    mutable std::map<FontStyle, Entry, Order> m_entries;
};

} // namespace report
