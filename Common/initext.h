// SPDX-License-Identifier: MIT
// The lines of a setup file, as bytes and as text.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <vector>

namespace common {

enum class IniEncoding {
    Utf8,
    Utf8WithMark,
    Utf16LittleEndian,
    Utf16BigEndian,
    Gb18030,
    Bytes ///< each a character, for contents that are not to be understood
};

/// Text without a mark is UTF-8 when it is valid as such, else GB18030, as Chinese Windows wrote it. Some words in
/// GB18030 ("医院" among them) are valid UTF-8 by chance, but then all their characters would be of two bytes, which no
/// Chinese character is: such a text is taken for GB18030 too.
[[nodiscard]] IniEncoding iniEncodingOf(const QByteArray &content);

/// A line taken apart. Positions count bytes of the content. Each line is decoded by itself, so that bytes which are no
/// text in one line leave the others alone. Names and values are trimmed, the value's quotes removed.
struct IniLine {
    enum Kind { Blank, Other, Section, Entry } kind = Blank;
    qsizetype begin = 0;
    qsizetype end = 0; ///< where its line end begins
    qsizetype next = 0; ///< where the next line begins
    QString name = {}; ///< of the section or the key
    QString value = {};
};

/// A byte-order mark, and half a character of UTF-16 at the end, are in no line.
[[nodiscard]] std::vector<IniLine> parseIni(const QByteArray &content, IniEncoding encoding);

/// Where a value stands. The first section of the name counts, and in it the first key; letter case does not.
struct IniPlace {
    qsizetype section = -1; ///< position among the lines; -1 when the section is missing
    qsizetype entry = -1; ///< -1 when the key is missing
};

[[nodiscard]] IniPlace findIni(const std::vector<IniLine> &lines, QStringView section, QStringView key);

/// Puts the line of an entry in the place of the one with its key, else at the end of the section, else in a new
/// section at the end, in this encoding; a mark is put before a content that lacks it. Every other byte stays. New
/// lines end as those before do, `lineEnd` where there is none.
[[nodiscard]] QByteArray withIniEntry(QByteArray content, IniEncoding encoding, const QString &section,
                                      const QString &key, const QString &entry, const QString &lineEnd);

} // namespace common
