// SPDX-License-Identifier: MIT
#include "report/output/pdfcharacters.h"

#include "report/document.h"

#include <QHash>
#include <QRawFont>
#include <QSet>

#include <map>
#include <utility>

namespace report {

namespace {

constexpr char16_t FirstRadical = 0x2E80;
constexpr char16_t LastRadical = 0x2FD5;

using Replacements = QHash<QByteArray, QByteArray>; // four hexadecimal digits each
using Face = std::pair<int, bool>; // family, bold

QByteArray hexadecimal(char16_t code)
{
    return QByteArray::number(static_cast<uint>(code), 16).toUpper().rightJustified(4, '0');
}

std::map<Face, QSet<QChar>> charactersOf(const Document &document)
{
    std::map<Face, QSet<QChar>> characters;
    for (int index = 0; index < document.pageCount(); ++index) {
        for (const TextBox &text : document.page(index).texts) {
            QSet<QChar> &known = characters[{text.font.family, text.font.bold}];
            for (const QChar character : text.text) {
                if (character.unicode() > LastRadical)
                    known.insert(character);
            }
        }
    }
    return characters;
}

Replacements replacementsFor(const Document &document)
{
    QString radicals;
    for (char16_t code = FirstRadical; code <= LastRadical; ++code)
        radicals += QChar(code);
    Replacements replacements;
    for (const auto &[face, characters] : charactersOf(document)) {
        const QRawFont font = QRawFont::fromFont(document.fonts().font({face.first, FontStyle().size, face.second}));
        QHash<quint32, char16_t> printed;
        for (const QChar character : characters) {
            const QList<quint32> glyphs = font.glyphIndexesForString(QString(character));
            if (!glyphs.isEmpty() && glyphs.first() != 0)
                printed.insert(glyphs.first(), character.unicode());
        }
        for (const QChar radical : radicals) {
            const QList<quint32> glyphs = font.glyphIndexesForString(QString(radical));
            const auto same = glyphs.isEmpty() ? printed.constEnd() : printed.constFind(glyphs.first());
            if (same != printed.constEnd())
                replacements.insert(hexadecimal(radical.unicode()), hexadecimal(*same));
        }
    }
    return replacements;
}

/// Meanings stand as <XXXX> between square brackets.
void replaceIn(QByteArray &pdf, qsizetype begin, qsizetype end, const Replacements &replacements)
{
    constexpr qsizetype Digits = 4;
    bool meanings = false;
    for (qsizetype at = begin; at < end; ++at) {
        if (pdf[at] == '[' || pdf[at] == ']')
            meanings = pdf[at] == '[';
        if (!meanings || pdf[at] != '<' || at + Digits + 1 >= end || pdf[at + Digits + 1] != '>')
            continue;
        const auto known = replacements.constFind(pdf.mid(at + 1, Digits));
        if (known != replacements.constEnd())
            pdf.replace(at + 1, Digits, *known);
    }
}

} // namespace

void nameThePrintedCharacters(QByteArray &pdf, const Document &document)
{
    const Replacements replacements = replacementsFor(document);
    if (replacements.isEmpty())
        return;
    for (qsizetype begin = pdf.indexOf("beginbfrange"); begin >= 0; begin = pdf.indexOf("beginbfrange", begin)) {
        const qsizetype end = pdf.indexOf("endbfrange", begin);
        if (end < 0)
            return;
        replaceIn(pdf, begin, end, replacements);
        begin = end;
    }
}

} // namespace report
