// SPDX-License-Identifier: MIT
#include "report/output/pdfcharacters.h"

#include "report/document.h"
#include "report/output/pdffile.h"

#include <QHash>
#include <QRawFont>
#include <QSet>
#include <QTextLayout>
#include <QtEndian>

#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace report {

namespace {

constexpr char32_t FirstRadical = 0x2E80;
constexpr char32_t LastRadical = 0x2FD5;
constexpr char32_t FirstRare = 0x10000;

using Replacements = QHash<QByteArray, QByteArray>; // four hexadecimal digits each
using Face = std::pair<int, bool>; // family, bold

/// In UTF-16.
QByteArray hexadecimal(char32_t code)
{
    QByteArray digits;
    for (const QChar unit : QString::fromUcs4(&code, 1))
        digits += QByteArray::number(static_cast<uint>(unit.unicode()), 16).toUpper().rightJustified(4, '0');
    return digits;
}

/// The lines of a document in the order in which they are painted.
template <typename Visit> void forEveryLine(const Document &document, Visit visit)
{
    for (int index = 0; index < document.pageCount(); ++index) {
        for (const TextBox &text : document.page(index).texts) {
            for (const TextLine &line : text.lines)
                visit(Face{text.font.family, text.font.bold}, line.text.toUcs4());
        }
    }
}

QFont fontOf(const Document &document, const Face &face)
{
    return document.fonts().font({face.first, FontStyle().size, face.second});
}

Replacements radicalsFor(const Document &document)
{
    std::map<Face, QSet<char32_t>> printed;
    forEveryLine(document, [&printed](const Face &face, const QList<uint> &line) {
        for (const uint code : line) {
            if (code > LastRadical && code < FirstRare)
                printed[face].insert(code);
        }
    });
    Replacements replacements;
    for (const auto &[face, characters] : printed) {
        const QRawFont font = QRawFont::fromFont(fontOf(document, face));
        QHash<quint32, char32_t> glyphs;
        for (const char32_t character : characters) {
            const QList<quint32> glyph = font.glyphIndexesForString(QString::fromUcs4(&character, 1));
            if (!glyph.isEmpty() && glyph.first() != 0)
                glyphs.insert(glyph.first(), character);
        }
        for (char32_t radical = FirstRadical; radical <= LastRadical; ++radical) {
            const QList<quint32> glyph = font.glyphIndexesForString(QString::fromUcs4(&radical, 1));
            const auto same = glyph.isEmpty() ? glyphs.constEnd() : glyphs.constFind(glyph.first());
            if (same != glyphs.constEnd())
                replacements.insert(hexadecimal(radical), hexadecimal(*same));
        }
    }
    return replacements;
}

/// The name by which a PDF file knows a font, from the font's own table of names.
QByteArray postScriptName(const QRawFont &font)
{
    constexpr qsizetype header = 6;
    constexpr qsizetype record = 12;
    constexpr quint16 unicode = 3;
    constexpr quint16 name = 6;
    const QByteArray table = font.fontTable("name");
    const auto number = [&table](qsizetype at) {
        return at + 2 <= table.size() ? qFromBigEndian<quint16>(table.constData() + at) : quint16(0);
    };
    for (qsizetype at = header; at < header + record * number(2); at += record) {
        if (number(at) != unicode || number(at + 6) != name)
            continue;
        QByteArray result;
        for (qsizetype unit = 0; unit < number(at + 8); unit += 2)
            result += static_cast<char>(number(number(4) + number(at + 10) + unit));
        return result;
    }
    return {};
}

/// Rare characters by the font that prints them, in the order in which they are first printed.
class RareCharacters {
public:
    explicit RareCharacters(const Document &document)
    {
        forEveryLine(document, [&](const Face &face, const QList<uint> &line) {
            for (const uint code : line) {
                if (code >= FirstRare && !m_seen.contains({face.first, face.second, code}))
                    add(fontOf(document, face), face, code);
            }
        });
    }

    [[nodiscard]] const std::map<QByteArray, std::vector<char32_t>> &byFont() const noexcept { return m_byFont; }

private:
    void add(const QFont &font, const Face &face, char32_t code)
    {
        m_seen.insert({face.first, face.second, code});
        QTextLayout layout(QString::fromUcs4(&code, 1), font);
        layout.beginLayout();
        (void)layout.createLine();
        layout.endLayout();
        for (const QGlyphRun &run : layout.glyphRuns()) {
            const QByteArray name = postScriptName(run.rawFont());
            for (const quint32 glyph : run.glyphIndexes()) {
                if (glyph != 0 && !commonGlyphs(run.rawFont(), name).contains(glyph)
                    && m_glyphs.insert({name, glyph}).second)
                    m_byFont[name].push_back(code);
            }
        }
    }
    /// Glyphs that have a meaning in the file already, because they print a common character too.
    const QSet<quint32> &commonGlyphs(const QRawFont &font, const QByteArray &name)
    {
        QSet<quint32> &glyphs = m_common[name];
        if (!glyphs.isEmpty())
            return glyphs;
        QString common;
        for (char32_t code = 1; code < FirstRare; ++code) {
            if (!QChar::isSurrogate(code))
                common += QChar(static_cast<char16_t>(code));
        }
        const QList<quint32> found = font.glyphIndexesForString(common);
        glyphs = QSet<quint32>(found.begin(), found.end());
        return glyphs;
    }

    std::set<std::tuple<int, bool, char32_t>> m_seen;
    std::set<std::pair<QByteArray, quint32>> m_glyphs;
    QHash<QByteArray, QSet<quint32>> m_common;
    std::map<QByteArray, std::vector<char32_t>> m_byFont;
};

void nameRareCharacters(PdfFile &file, const Document &document)
{
    const RareCharacters rare(document);
    for (const PdfFile::Font &font : file.fonts()) {
        const auto known = rare.byFont().find(font.name);
        if (known == rare.byFont().end())
            continue;
        // Otherwise something else has no meaning either, and nobody knows which is which.
        if (font.nameless.size() > known->second.size())
            continue;
        std::vector<std::pair<int, QByteArray>> meanings;
        for (std::size_t at = 0; at < known->second.size(); ++at) {
            const bool between = at < font.nameless.size();
            const int behind = font.last + 1 + static_cast<int>(at - font.nameless.size());
            meanings.push_back({between ? font.nameless[at] : behind, hexadecimal(known->second[at])});
        }
        file.add(font, meanings);
    }
}

} // namespace

void nameThePrintedCharacters(QByteArray &pdf, const Document &document)
{
    PdfFile file(pdf);
    const Replacements radicals = radicalsFor(document);
    for (const PdfFile::Font &font : file.fonts()) {
        for (const PdfFile::Meaning &meaning : font.meanings) {
            if (const auto known = radicals.constFind(meaning.digits); known != radicals.constEnd())
                file.replace(font, meaning, *known);
        }
    }
    nameRareCharacters(file, document);
    file.apply();
}

} // namespace report
