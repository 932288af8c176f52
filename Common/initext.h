// SPDX-License-Identifier: MIT
// The encoding of a setup file and its lines.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <vector>

namespace common {

enum class IniEncoding { Utf8, Utf8WithMark, Utf16LittleEndian, Utf16BigEndian, Gb18030 };

struct IniText {
    IniEncoding encoding = IniEncoding::Utf8;
    QString text; ///< without a byte-order mark
};

/// Text without a mark is UTF-8 when it is valid as such, else GB18030, as Chinese Windows wrote it. Some words in
/// GB18030 ("医院" among them) are valid UTF-8 by chance, but then all their characters would be of two bytes, which no
/// Chinese character is: such a text is taken for GB18030 too.
[[nodiscard]] IniText decodeIni(const QByteArray &content);
/// A mark is put before UTF-8 that would be taken for GB18030 without it.
[[nodiscard]] QByteArray encodeIni(const IniText &ini);

/// A line taken apart. All views look into the text that was parsed; names and values are trimmed, the value's quotes
/// removed.
struct IniLine {
    enum Kind { Other, Section, Entry } kind = Other;
    QStringView line; ///< whole, without its line end
    QStringView name; ///< of the section or the key
    QStringView value;
};

[[nodiscard]] std::vector<IniLine> parseIni(QStringView text);

/// Where a value stands. The first section of the name counts, and in it the first key; letter case does not.
struct IniPlace {
    qsizetype section = -1; ///< position among the lines; -1 when the section is missing
    qsizetype entry = -1; ///< -1 when the key is missing
};

[[nodiscard]] IniPlace findIni(const std::vector<IniLine> &lines, QStringView section, QStringView key);

/// Puts the line of an entry in the place of the one with its key, else at the end of the section, else in a new
/// section at the end. Everything else stays.
void putIniEntry(QString &text, const QString &section, const QString &key, const QString &entry,
                 const QString &lineEnd);

} // namespace common
