// SPDX-License-Identifier: MIT
#include "report/output/pdffile.h"

#include <algorithm>
#include <map>
#include <utility>

namespace report {

namespace {

constexpr qsizetype PlaceDigits = 10;
constexpr qsizetype PlaceLine = 20; // "0000000015 00000 n \n"

qsizetype numberAt(const QByteArray &pdf, qsizetype begin, qsizetype *end = nullptr)
{
    qsizetype number = 0;
    qsizetype at = begin;
    while (at < pdf.size() && pdf[at] >= '0' && pdf[at] <= '9')
        number = number * 10 + (pdf[at++] - '0');
    if (end != nullptr)
        *end = at;
    return at > begin ? number : -1;
}

/// Behind the text; -1 when it is not found before `end`.
qsizetype behind(const QByteArray &pdf, const char *text, qsizetype begin, qsizetype end)
{
    const qsizetype found = begin < 0 ? -1 : pdf.indexOf(text, begin);
    const auto length = static_cast<qsizetype>(qstrlen(text));
    return found < 0 || found + length > end ? -1 : found + length;
}

} // namespace

PdfFile::PdfFile(QByteArray &pdf)
    : m_pdf(pdf)
{
    readPlaces();
    readFonts();
}

void PdfFile::readPlaces()
{
    const qsizetype start = m_pdf.lastIndexOf("startxref\n");
    const qsizetype table = start < 0 ? -1 : numberAt(m_pdf, behind(m_pdf, "startxref\n", start, m_pdf.size()));
    qsizetype end = 0;
    if (table < 0 || m_pdf.mid(table, 7) != "xref\n0 ")
        return;
    const qsizetype count = numberAt(m_pdf, table + 7, &end);
    m_table = end + 1;
    for (qsizetype at = 0; at < count; ++at)
        m_places.push_back(numberAt(m_pdf, m_table + at * PlaceLine));
}

qsizetype PdfFile::placeOf(std::size_t object) const
{
    return object < m_places.size() ? m_places[object] : -1;
}

void PdfFile::readFonts()
{
    for (const qsizetype place : m_places) {
        const qsizetype end = place > 0 ? m_pdf.indexOf("endobj", place) : -1;
        const qsizetype name = behind(m_pdf, "/BaseFont /", place, end);
        const qsizetype meanings = behind(m_pdf, "/ToUnicode ", place, end);
        if (end < 0 || name < 0 || meanings < 0)
            continue;
        Font font;
        font.name = m_pdf.mid(name, m_pdf.indexOf('\n', name) - name).trimmed();
        font.object = static_cast<std::size_t>(std::max<qsizetype>(0, numberAt(m_pdf, meanings)));
        readMeanings(font);
        m_fonts.push_back(std::move(font));
    }
}

/// Lines read "<first> <last> <meaning>", where the meanings go on by one, or "<first> <last> [<meaning> <meaning> …]".
/// Glyph 0 stands for whatever the font does not have.
void PdfFile::readMeanings(Font &font) const
{
    const qsizetype place = placeOf(font.object);
    const qsizetype end = behind(m_pdf, "endcmap", place, m_pdf.indexOf("endobj", std::max<qsizetype>(0, place)));
    bool list = false;
    QList<QByteArray> line;
    const auto glyph = [&line](qsizetype which) { return line[which].toInt(nullptr, 16); };
    for (qsizetype at = behind(m_pdf, "beginbfrange", place, end); at >= 0 && at < end; ++at) {
        if (m_pdf[at] == '[' || m_pdf[at] == ']')
            list = m_pdf[at] == '[';
        if (m_pdf[at] == '\n')
            line.clear();
        if (m_pdf[at] != '<')
            continue;
        line.append(m_pdf.mid(at + 1, m_pdf.indexOf('>', at) - at - 1));
        if (line.size() < 3 || glyph(1) == 0)
            continue;
        if (list || glyph(0) == glyph(1))
            font.meanings.push_back({at + 1, line.back()});
        for (++font.last; font.last < glyph(0); ++font.last)
            font.nameless.push_back(font.last);
        font.last = list ? font.last : glyph(1);
    }
}

void PdfFile::replace(const Font &font, const Meaning &meaning, const QByteArray &digits)
{
    m_changes.push_back({font.object, {meaning.begin, meaning.digits.size(), digits}});
}

void PdfFile::add(const Font &font, const std::vector<std::pair<int, QByteArray>> &meanings)
{
    constexpr std::size_t mostInSection = 100;
    const qsizetype place = m_pdf.indexOf("endcmap", std::max<qsizetype>(0, placeOf(font.object)));
    QByteArray text;
    for (std::size_t at = 0; at < meanings.size(); ++at) {
        if (at % mostInSection == 0)
            text += (at > 0 ? "endbfchar\n" : "") + QByteArray::number(std::min(mostInSection, meanings.size() - at))
                + " beginbfchar\n";
        const auto &[glyph, digits] = meanings[at];
        text += '<' + QByteArray::number(glyph, 16).toUpper().rightJustified(4, '0') + "> <" + digits + ">\n";
    }
    m_changes.push_back({font.object, {place, 0, text + "endbfchar\n"}});
}

void PdfFile::apply()
{
    changeLengths();
    changePlaces();
    std::sort(m_changes.begin(), m_changes.end(),
              [](const auto &left, const auto &right) { return left.second.begin > right.second.begin; });
    for (const auto &[object, change] : m_changes)
        m_pdf.replace(change.begin, change.length, change.text);
    m_changes.clear();
}

void PdfFile::changeLengths()
{
    std::map<std::size_t, qsizetype> longer;
    for (const auto &[object, change] : m_changes)
        longer[object] += change.text.size() - change.length;
    for (const auto &[object, by] : longer) {
        const qsizetype begin = behind(m_pdf, "/Length ", placeOf(object), m_pdf.size());
        qsizetype end = 0;
        const qsizetype length = numberAt(m_pdf, begin, &end);
        if (by != 0)
            m_changes.push_back({object, {begin, end - begin, QByteArray::number(length + by)}});
    }
}

void PdfFile::changePlaces()
{
    const auto moved = [this](qsizetype place) {
        qsizetype result = place;
        for (const auto &[object, change] : m_changes) {
            if (change.begin < place)
                result += change.text.size() - change.length;
        }
        return result;
    };
    std::vector<std::pair<std::size_t, Change>> moves;
    for (std::size_t object = 1; object < m_places.size(); ++object) {
        const QByteArray place = QByteArray::number(moved(m_places[object])).rightJustified(PlaceDigits, '0');
        moves.push_back({object, {m_table + static_cast<qsizetype>(object) * PlaceLine, PlaceDigits, place}});
    }
    const qsizetype start = m_pdf.lastIndexOf("startxref\n") + 10;
    qsizetype end = 0;
    const qsizetype table = numberAt(m_pdf, start, &end);
    moves.push_back({0, {start, end - start, QByteArray::number(moved(table))}});
    m_changes.insert(m_changes.end(), moves.begin(), moves.end());
}

} // namespace report
