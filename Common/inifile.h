// SPDX-License-Identifier: MIT
// Setup files, read and written as Windows does it.
#pragma once

#include <QByteArray>
#include <QString>

#include <stdexcept>

namespace common {

/// A setup file could not be written; `what()` is a message in Chinese, UTF-8.
class IniError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The setup file beside the executable. The name follows the folder after two separators, which every file system
/// takes for one.
[[nodiscard]] QString iniFilePath(const QString &fileName);

/// The value of a key. Names are compared without regard to letter case; blanks around names and values do not count,
/// and neither does one pair of quotes around a value. The first of several sections or keys of a name counts. A line
/// that begins with ";" or "#" is a comment. Empty when section or key are missing.
/// The text may be UTF-8, UTF-16 with a byte-order mark, or else GB18030; lines may end either way.
[[nodiscard]] QString iniValue(const QByteArray &content, const QString &section, const QString &key);

/// The content with the value put in, every other line untouched to the byte, also one that is no text in any encoding:
/// in the place of the old line, else at the end of the section, else in a new section at the end. The encoding and the
/// line ends stay what they are; a mark is put before UTF-8 that would be taken for GB18030 without it.
/// Throws IniError when the value could not be read back: for a name that is empty, begins with a comment mark or
/// holds a bracket ("[", "]") or "="; for a line break anywhere; for a text that no encoding can hold.
[[nodiscard]] QByteArray withIniValue(const QByteArray &content, const QString &section, const QString &key,
                                      const QString &value);

/// As iniValue(); empty also when the file cannot be read. Creates nothing.
[[nodiscard]] QString readIniFile(const QString &path, const QString &section, const QString &key);
/// As withIniValue(). The file is replaced whole or stays as it was; a missing one is made.
void writeIniFile(const QString &path, const QString &section, const QString &key, const QString &value);

} // namespace common
