// SPDX-License-Identifier: MIT
// Changes a PDF file where it tells the meaning of its glyphs.
#pragma once

#include <QByteArray>

#include <cstddef>
#include <utility>
#include <vector>

namespace report {

/// Reads what the PDF writer has written: objects found by one table of their places, fonts whose meanings are streams
/// that are not compressed. A file of any other make has no fonts here.
class PdfFile {
public:
    /// One entry of a font's table of meanings: the hexadecimal digits of a text in UTF-16.
    struct Meaning {
        qsizetype begin = 0; ///< place of the digits in the file
        QByteArray digits;
    };
    struct Font {
        QByteArray name; ///< as the font names itself (PostScript name)
        std::size_t object = 0; ///< number of the stream that holds the meanings
        std::vector<Meaning> meanings;
        std::vector<int> nameless; ///< numbers of glyphs without a meaning, up to the last one that has one
        int last = 0; ///< that number; glyphs are numbered in the order in which they were first printed
    };

    /// Borrows the file.
    explicit PdfFile(QByteArray &pdf);

    [[nodiscard]] const std::vector<Font> &fonts() const noexcept { return m_fonts; }
    /// Notes another meaning for an entry.
    void replace(const Font &font, const Meaning &meaning, const QByteArray &digits);
    /// Notes meanings for glyphs that have none: number and digits.
    void add(const Font &font, const std::vector<std::pair<int, QByteArray>> &meanings);
    /// Writes what was noted into the file; lengths and places in it are right afterwards.
    void apply();

private:
    struct Change {
        qsizetype begin = 0;
        qsizetype length = 0;
        QByteArray text;
    };

    void readPlaces();
    void readFonts();
    void readMeanings(Font &font) const;
    [[nodiscard]] qsizetype placeOf(std::size_t object) const;
    void changeLengths();
    void changePlaces();

    QByteArray &m_pdf;
    std::vector<qsizetype> m_places; // of the objects, by number
    qsizetype m_table = -1; // where they are written down
    std::vector<Font> m_fonts;
    std::vector<std::pair<std::size_t, Change>> m_changes; // with the object that they are in
};

} // namespace report
