// SPDX-License-Identifier: MIT
// Numbers as a display format shows them.
#include "values/displayformat.h"

#include "values/decimaldigits.h"

#include <QStringView>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

namespace values {

namespace {

/// Beyond so many places before the point a number is shown in general form.
constexpr int MostWholePlaces = 18;
constexpr int GeneralDigits = 15;
/// The general form is scientific below 0.00001.
constexpr int LeastPlainExponent = -4;
constexpr int MostExponentZeros = 4;

struct Token {
    enum Kind { Literal, WholePlace, FractionPlace, Point, Exponent } kind;
    QChar character;
};

/// One section of a format, taken apart.
struct Section {
    std::vector<Token> tokens;
    bool thousands = false;
    int wholePlaces = 0;
    int leastWhole = 0; ///< digits shown at least before the point
    int fractionPlaces = 0;
    int leastFraction = 0; ///< and behind it
    bool scientific = false; ///< the exponent stands where its token is
    bool plusSign = false; ///< a positive exponent has a sign, too
    int leastExponent = 0; ///< digits of the exponent at least

    void addPlace(QChar character, bool behindPoint)
    {
        const bool required = character == u'0';
        if (behindPoint) {
            ++fractionPlaces;
            if (required)
                leastFraction = fractionPlaces;
        } else {
            ++wholePlaces;
            if (required || leastWhole > 0)
                ++leastWhole;
        }
        tokens.push_back({behindPoint ? Token::FractionPlace : Token::WholePlace, character});
    }
};

/// Reads "E+", "E-", "e+" or "e-" and the zeros behind it; returns how many characters it took, 0 when there is none.
qsizetype takeExponent(QStringView text, Section &section)
{
    if (text.size() < 2 || text[0].toLower() != u'e' || (text[1] != u'+' && text[1] != u'-'))
        return 0;
    qsizetype zeros = 0;
    while (zeros < MostExponentZeros && 2 + zeros < text.size() && text[2 + zeros] == u'0')
        ++zeros;
    if (!std::exchange(section.scientific, true)) {
        section.plusSign = text[1] == u'+';
        section.leastExponent = static_cast<int>(zeros);
        section.tokens.push_back({Token::Exponent, text[0]});
    }
    return 2 + zeros;
}

Section takeApart(QStringView text)
{
    Section section;
    bool point = false;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text[at];
        if (character == u'0' || character == u'#') {
            section.addPlace(character, point);
        } else if (character == u'.') {
            if (!std::exchange(point, true))
                section.tokens.push_back({Token::Point, character});
        } else if (character == u',') {
            section.thousands = true;
        } else if (character == u'\'' || character == u'"') {
            while (++at < text.size() && text[at] != character)
                section.tokens.push_back({Token::Literal, text[at]});
        } else if (const qsizetype taken = takeExponent(text.sliced(at), section); taken > 0) {
            at += taken - 1;
        } else {
            section.tokens.push_back({Token::Literal, character});
        }
    }
    return section;
}

/// Splits at the semicolons that stand outside quotes.
std::vector<QStringView> sectionsOf(QStringView format)
{
    std::vector<QStringView> sections;
    qsizetype begin = 0;
    QChar quote;
    for (qsizetype at = 0; at < format.size(); ++at) {
        const QChar character = format[at];
        if (!quote.isNull()) {
            if (character == quote)
                quote = QChar();
        } else if (character == u'\'' || character == u'"') {
            quote = character;
        } else if (character == u';') {
            sections.push_back(format.sliced(begin, at - begin));
            begin = at + 1;
        }
    }
    sections.push_back(format.sliced(begin));
    return sections;
}

/// Appends the digits before the point from place `from` down to `to` (0 is the place before the point).
void appendWhole(QString &text, const DecimalDigits &digits, int from, int to, bool thousands)
{
    for (int place = from; place >= to; --place) {
        text += QLatin1Char(digits.at(-place));
        if (thousands && place > 0 && place % 3 == 0)
            text += u',';
    }
}

/// Decimal places that are shown: trailing zeros go down to the least number.
int shownFraction(const Section &section, const DecimalDigits &digits)
{
    int shown = section.fractionPlaces;
    while (shown > section.leastFraction && digits.at(shown) == '0')
        --shown;
    return shown;
}

QString exponentText(const Section &section, QChar mark, int exponent)
{
    const QString sign = exponent < 0 ? QStringLiteral("-") : section.plusSign ? QStringLiteral("+") : QString();
    return mark + sign + QString::number(std::abs(exponent)).rightJustified(section.leastExponent, u'0');
}

/// `exponent` is shown where the section has one.
QString fill(const Section &section, const DecimalDigits &digits, int exponent = 0)
{
    const int wholeDigits = std::max(digits.isZero() ? 0 : digits.exponent, section.leastWhole);
    const int fraction = shownFraction(section, digits);
    int placesLeft = section.wholePlaces;
    int fractionPlace = 0;
    int next = wholeDigits - 1; // place of the next digit before the point
    QString text;
    for (const Token &token : section.tokens) {
        switch (token.kind) {
        case Token::Literal:
            text += token.character;
            break;
        case Token::WholePlace:
            // The first place takes all digits for which the format has no place of their own.
            --placesLeft;
            appendWhole(text, digits, next, placesLeft, section.thousands);
            next = std::min(next, placesLeft - 1);
            break;
        case Token::Point:
            appendWhole(text, digits, next, 0, section.thousands);
            next = -1;
            if (fraction > 0)
                text += u'.';
            break;
        case Token::FractionPlace:
            if (++fractionPlace <= fraction)
                text += QLatin1Char(digits.at(fractionPlace));
            break;
        case Token::Exponent:
            text += exponentText(section, token.character, exponent);
            break;
        }
    }
    return text;
}

/// As many significant digits as the section has places; the exponent makes up for where the point stands.
QString fillScientific(const Section &section, DecimalDigits digits)
{
    digits.roundTo(section.wholePlaces + section.fractionPlaces - digits.exponent);
    const int exponent = digits.exponent - section.wholePlaces;
    digits.exponent = section.wholePlaces;
    return fill(section, digits, exponent);
}

/// 15 significant digits without trailing zeros.
QString generalForm(long double value)
{
    if (std::isnan(value))
        return QStringLiteral("nan");
    const QString sign = value < 0 ? QStringLiteral("-") : QString();
    if (std::isinf(value))
        return sign + QStringLiteral("inf");
    static const Section plain = takeApart(QStringLiteral("0.") + QString(GeneralDigits - LeastPlainExponent, u'#'));
    static const Section scientific = takeApart(QStringLiteral("0.##############E-"));
    DecimalDigits digits = decimalDigits(std::fabs(value));
    if (digits.isZero())
        return QStringLiteral("0");
    digits.roundTo(GeneralDigits - digits.exponent);
    const bool isPlain = digits.exponent >= LeastPlainExponent && digits.exponent <= GeneralDigits;
    return sign + (isPlain ? fill(plain, digits) : fillScientific(scientific, digits));
}

} // namespace

QString formatFloat(const QString &format, long double value)
{
    const std::vector<QStringView> sections = sectionsOf(format);
    const auto hasSection = [&sections](std::size_t index) {
        return index < sections.size() && !sections[index].isEmpty();
    };
    if (!hasSection(0) || !std::isfinite(value))
        return generalForm(value);

    const std::size_t bySign = value < 0 && hasSection(1) ? 1 : 0;
    const Section section = takeApart(sections[bySign]);
    DecimalDigits digits = decimalDigits(std::fabs(value));
    if (!section.scientific) {
        if (digits.exponent > MostWholePlaces)
            return generalForm(value);
        digits.roundTo(section.fractionPlaces);
    }
    if (digits.isZero()) // what rounds to nothing is zero, without a sign
        return fill(takeApart(sections[hasSection(2) ? 2 : 0]), {});
    const QString text = section.scientific ? fillScientific(section, digits) : fill(section, digits);
    return value < 0 && bySign == 0 ? u'-' + text : text;
}

bool showsThousands(const QString &format)
{
    return takeApart(sectionsOf(format).front()).thousands;
}

} // namespace values
