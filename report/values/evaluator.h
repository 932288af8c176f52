// SPDX-License-Identifier: MIT
// From the names in a template's texts to their values.
#pragma once

#include "report/template/textpattern.h"
#include "report/values/rowsource.h"

#include <QHash>
#include <QVariant>

#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <vector>

namespace report {

/// Asked for every variable; `value` holds the report's own value and may be left as it is.
using GetValue = std::function<void(const QString &name, QVariant &value)>;

/// Stands for the number of pages, which is known last.
inline constexpr char16_t PageCountMark = u'\uFFFC';

/// A value that a text cannot be made of; `what()` is the reason, in Chinese (UTF-8).
class ValueError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Where a text stands, and the rows that Sum and Count are over.
struct Place {
    int row = 0; ///< fields of the list are read from it
    int firstRow = 0;
    int endRow = 0;
    int page = 1;
};

/// A name is a field of the list, or else of a header's first row, or else a variable. The report's own variables are
/// Page, Pages, Row (number of the row in the list) and Today. A field without a row is empty, and so is a variable
/// that nobody answers.
class Evaluator {
public:
    struct Value {
        QString text;
        std::optional<double> number; ///< the text is this number in the expression's format
    };

    Evaluator(RowSource list, std::vector<RowSource> headers, GetValue getValue);

    [[nodiscard]] int rowCount() const noexcept { return m_sources.front().rowCount(); }
    /// Throws ValueError; what the callback throws passes.
    [[nodiscard]] Value evaluate(const TextPattern &pattern, const Place &place) const;
    /// Text of a field of the list. Throws ValueError when the list has no such field.
    [[nodiscard]] QString listField(const QString &name, int row) const;

private:
    struct Field {
        int source; ///< index into m_sources; -1: a variable
        int column;
    };

    [[nodiscard]] Field find(const QString &name) const;
    [[nodiscard]] QVariant value(const Expression &expression, const Place &place) const;
    [[nodiscard]] QVariant variable(const QString &name, const Place &place) const;
    [[nodiscard]] QVariant sum(const QString &field, const Place &place) const;
    [[nodiscard]] Value format(const Expression &expression, const QVariant &value) const;

    std::vector<RowSource> m_sources; // the list, then the headers
    GetValue m_getValue;
    mutable QHash<QString, Field> m_fields;
    mutable QHash<QString, std::vector<std::int64_t>>
        m_sums; // a field: sums of the first 0, 1, 2, ... rows, in millionths
};

} // namespace report
