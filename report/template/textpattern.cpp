// SPDX-License-Identifier: MIT
#include "report/template/textpattern.h"

#include <QStringView>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>

namespace report {

namespace {

[[noreturn]] void fail(const QString &reason)
{
    throw std::invalid_argument(reason.toStdString());
}

bool isName(QStringView text)
{
    const auto belongs = [](QChar character) { return character.isLetterOrNumber() || character == u'_'; };
    return !text.isEmpty() && !text.front().isDigit() && std::ranges::all_of(text, belongs);
}

/// The argument when `text` reads "function(argument)".
std::optional<QStringView> argumentOf(QStringView text, QStringView function)
{
    const qsizetype open = text.indexOf(u'(');
    if (open < 0 || !text.endsWith(u')') || text.left(open).trimmed().compare(function, Qt::CaseInsensitive) != 0)
        return std::nullopt;
    return text.mid(open + 1, text.size() - open - 2).trimmed();
}

void readName(QStringView text, Expression &expression)
{
    if (!isName(text))
        fail(QStringLiteral("“%1”不是字段名、变量名或函数").arg(text));
    expression.name = text.toString();
}

void readValue(QStringView text, Expression &expression)
{
    if (const auto field = argumentOf(text, u"Sum")) {
        expression.kind = Expression::Kind::Sum;
        readName(*field, expression);
    } else if (const auto nothing = argumentOf(text, u"Count")) {
        if (!nothing->isEmpty())
            fail(QStringLiteral("函数 Count() 的括号中不写内容"));
        expression.kind = Expression::Kind::Count;
    } else {
        readName(text, expression);
    }
}

Expression parseExpression(QStringView text)
{
    Expression expression;
    const qsizetype bar = text.indexOf(u'|');
    if (bar >= 0) {
        expression.format = text.mid(bar + 1).toString();
        if (expression.format.isEmpty())
            fail(QStringLiteral("“|”后面没有显示格式"));
        text = text.left(bar);
    }
    text = text.trimmed();
    if (const auto amount = argumentOf(text, u"Capital")) {
        if (!expression.format.isEmpty())
            fail(QStringLiteral("大写金额不能再带显示格式"));
        expression.inCapitals = true;
        text = *amount;
    }
    readValue(text, expression);
    return expression;
}

} // namespace

bool TextPattern::isNumber() const noexcept
{
    return pieces.size() == 1 && pieces.front().literal.isEmpty() && pieces.front().hasExpression
        && !pieces.front().expression.format.isEmpty();
}

bool TextPattern::holdsNumber() const noexcept
{
    return std::ranges::any_of(pieces, [](const PatternPiece &piece) {
        return piece.hasExpression && (!piece.expression.format.isEmpty() || piece.expression.inCapitals);
    });
}

bool TextPattern::isAmount() const noexcept
{
    return !isLiteral() && std::ranges::all_of(pieces, [](const PatternPiece &piece) {
        return !piece.hasExpression || !piece.expression.format.isEmpty();
    });
}

bool TextPattern::isLiteral() const noexcept
{
    return std::ranges::none_of(pieces, [](const PatternPiece &piece) { return piece.hasExpression; });
}

TextPattern parsePattern(const QString &text)
{
    TextPattern pattern;
    PatternPiece piece;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] != u'[') {
            piece.literal += text[at];
            continue;
        }
        if (at + 1 < text.size() && text[at + 1] == u'[') {
            piece.literal += text[++at];
            continue;
        }
        const qsizetype close = text.indexOf(u']', at);
        if (close < 0)
            fail(QStringLiteral("“[”没有对应的“]”"));
        piece.hasExpression = true;
        piece.expression = parseExpression(QStringView(text).mid(at + 1, close - at - 1));
        pattern.pieces.push_back(std::move(piece));
        piece = {};
        at = close;
    }
    if (!piece.literal.isEmpty())
        pattern.pieces.push_back(std::move(piece));
    return pattern;
}

} // namespace report
