// SPDX-License-Identifier: MIT
#include "report/values/evaluator.h"

#include "values/capitalamount.h"

#include "toolkit/clock.h"
#include "values/dateformat.h"
#include "values/displayformat.h"

#include <QLocale>

#include <cmath>
#include <utility>

namespace report {

namespace {

/// Sums are whole millionths, so that amounts with up to six decimals add up exactly.
constexpr long double Millionths = 1e6L;
constexpr long double LargestSum = 9e18L;

[[noreturn]] void fail(const QString &reason)
{
    throw ValueError(reason.toStdString());
}

/// None for a value without text. A floating value counts as the decimals it is written with, not as the binary
/// fraction behind them.
std::optional<long double> toNumber(const QString &name, const QVariant &value)
{
    const bool floating = value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
    const QString text =
        floating ? QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest) : value.toString().trimmed();
    if (text.isEmpty())
        return std::nullopt;
    try {
        return values::parseAmount(text);
    } catch (const std::invalid_argument &) {
        fail(QStringLiteral("“%1”的值“%2”不是有效的数值").arg(name, text));
    }
}

} // namespace

Evaluator::Evaluator(RowSource list, std::vector<RowSource> headers, GetValue getValue)
    : m_sources(std::move(headers))
    , m_getValue(std::move(getValue))
{
    m_sources.insert(m_sources.begin(), std::move(list));
}

Evaluator::Field Evaluator::find(const QString &name) const
{
    const auto known = m_fields.constFind(name);
    if (known != m_fields.constEnd())
        return *known;
    Field field{-1, -1};
    for (std::size_t at = 0; at < m_sources.size() && field.source < 0; ++at) {
        const int column = m_sources[at].column(name);
        if (column >= 0)
            field = {static_cast<int>(at), column};
    }
    m_fields.insert(name, field);
    return field;
}

QString Evaluator::listField(const QString &name, int row) const
{
    const Field field = find(name);
    if (field.source != 0)
        fail(QStringLiteral("清单中没有字段“%1”").arg(name));
    return m_sources.front().text(row, field.column);
}

QVariant Evaluator::variable(const QString &name, const Place &place) const
{
    QVariant value;
    if (name.compare(u"Page", Qt::CaseInsensitive) == 0)
        value = place.page;
    else if (name.compare(u"Pages", Qt::CaseInsensitive) == 0)
        value = QString(QChar(PageCountMark));
    else if (name.compare(u"Row", Qt::CaseInsensitive) == 0)
        value = place.row + 1;
    else if (name.compare(u"Today", Qt::CaseInsensitive) == 0)
        value = values::formatDate(toolkit::today());
    if (m_getValue)
        m_getValue(name, value);
    return value;
}

QVariant Evaluator::sum(const QString &field, const Place &place) const
{
    std::vector<std::int64_t> &sums = m_sums[field];
    if (sums.empty()) {
        std::vector<std::int64_t> running{0};
        for (int row = 0; row < rowCount(); ++row) {
            const long double total = static_cast<long double>(running.back())
                + toNumber(field, listField(field, row)).value_or(0) * Millionths;
            if (std::fabs(total) > LargestSum)
                fail(QStringLiteral("“%1”的值太大，不能合计").arg(field));
            running.push_back(std::llroundl(total));
        }
        sums = std::move(running);
    }
    const std::int64_t total =
        sums[static_cast<std::size_t>(place.endRow)] - sums[static_cast<std::size_t>(place.firstRow)];
    return values::formatFloat(QStringLiteral("0.######"), static_cast<long double>(total) / Millionths);
}

QVariant Evaluator::value(const Expression &expression, const Place &place) const
{
    switch (expression.kind) {
    case Expression::Kind::Sum:
        return sum(expression.name, place);
    case Expression::Kind::Count:
        return place.endRow - place.firstRow;
    case Expression::Kind::Name:
        break;
    }
    const Field field = find(expression.name);
    if (field.source < 0)
        return variable(expression.name, place);
    const RowSource &source = m_sources[static_cast<std::size_t>(field.source)];
    const int row = field.source == 0 ? place.row : 0;
    return row < source.rowCount() ? source.text(row, field.column) : QString();
}

Evaluator::Value Evaluator::format(const Expression &expression, const QVariant &value) const
{
    const bool floating = value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
    if (!expression.inCapitals && expression.format.isEmpty() && !floating)
        return {value.toString(), std::nullopt};
    const auto number = toNumber(expression.name, value);
    if (!number)
        return {};
    if (expression.inCapitals) {
        if (!values::hasCapitals(*number))
            return {QStringLiteral("####"), std::nullopt};
        return {values::capitalAmount(*number), std::nullopt};
    }
    return {values::formatFloat(expression.format, *number), static_cast<double>(*number)};
}

Evaluator::Value Evaluator::evaluate(const TextPattern &pattern, const Place &place) const
{
    if (pattern.isNumber()) {
        const Expression &expression = pattern.pieces.front().expression;
        return format(expression, value(expression, place));
    }
    Value result;
    bool hasValue = false;
    for (const PatternPiece &piece : pattern.pieces) {
        result.text += piece.literal;
        if (!piece.hasExpression)
            continue;
        const QString text = format(piece.expression, value(piece.expression, place)).text;
        hasValue = hasValue || !text.trimmed().isEmpty();
        result.text += text;
    }
    return pattern.hidesEmpty && !hasValue && !pattern.isLiteral() ? Value() : result;
}

} // namespace report
