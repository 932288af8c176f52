// SPDX-License-Identifier: MIT
// Setup files, read and written as Windows does it.
#include "Common/inifile.h"

#include "Common/blanks.h"
#include "Common/executablefolder.h"
#include "Common/initext.h"
#include "Common/platformpath.h"

#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <vector>

namespace common {

namespace {

[[noreturn]] void refuse(const QString &message)
{
    throw IniError(message.toStdString());
}

bool hasAnyOf(QStringView text, QStringView characters)
{
    return std::ranges::any_of(text, [characters](QChar character) { return characters.contains(character); });
}

void checkName(QStringView name)
{
    const QStringView text = trimmed(name);
    if (text.isEmpty() || text.front() == u';' || text.front() == u'#' || hasAnyOf(name, u"[]=\r\n"))
        refuse(QStringLiteral("“%1”不能用作设置文件的节名或键名。").arg(name));
}

/// With quotes around it where reading would take something off.
QString written(const QString &value)
{
    if (hasAnyOf(value, u"\r\n"))
        refuse(QStringLiteral("设置值不能包含换行。"));
    const bool quoted = value.size() > 1 && value.front() == value.back() && hasAnyOf(value.first(1), u"'\"");
    return quoted || trimmed(value).size() != value.size() ? u'"' + value + u'"' : value;
}

/// Those that may serve for a changed value, the content's own first.
std::vector<IniEncoding> encodingsFor(const QByteArray &content)
{
    const IniEncoding own = iniEncodingOf(content);
    switch (own) {
    case IniEncoding::Utf8:
        return {own, IniEncoding::Utf8WithMark};
    case IniEncoding::Gb18030: // perhaps only for the line that goes now
        return {own, IniEncoding::Utf8, IniEncoding::Utf8WithMark};
    case IniEncoding::Utf8WithMark:
    case IniEncoding::Utf16LittleEndian:
    case IniEncoding::Utf16BigEndian:
    case IniEncoding::Bytes:
        break;
    }
    return {own};
}

} // namespace

QString iniFilePath(const QString &fileName)
{
    return executableFolder() + platformPath(u'\\' + fileName);
}

QString iniValue(const QByteArray &content, const QString &section, const QString &key)
{
    const std::vector<IniLine> lines = parseIni(content, iniEncodingOf(content));
    const IniPlace place = findIni(lines, section, key);
    return place.entry < 0 ? QString() : lines[static_cast<std::size_t>(place.entry)].value;
}

QByteArray withIniValue(const QByteArray &content, const QString &section, const QString &key, const QString &value)
{
    checkName(section);
    checkName(key);
    const QString entry = trimmed(key).toString() + u'=' + written(value);
    for (const IniEncoding encoding : encodingsFor(content)) {
        const QByteArray changed = withIniEntry(content, encoding, section, key, entry, QStringLiteral("\r\n"));
        if (iniValue(changed, section, key) == value)
            return changed;
    }
    refuse(QStringLiteral("设置值“%1”无法写入设置文件。").arg(value)); // half a surrogate pair, for one
}

QString readIniFile(const QString &path, const QString &section, const QString &key)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? iniValue(file.readAll(), section, key) : QString();
}

void writeIniFile(const QString &path, const QString &section, const QString &key, const QString &value)
{
    QFile old(path);
    QByteArray content;
    if (old.exists()) {
        if (!old.open(QIODevice::ReadOnly))
            refuse(QStringLiteral("无法读取设置文件“%1”：%2").arg(path, old.errorString()));
        content = old.readAll();
        old.close();
    }
    const QByteArray changed = withIniValue(content, section, key, value);
    QSaveFile file(path);
    file.setDirectWriteFallback(true); // a folder may be closed to the clerk where the file itself is not
    if (!file.open(QIODevice::WriteOnly) || file.write(changed) != changed.size() || !file.commit())
        refuse(QStringLiteral("无法写入设置文件“%1”：%2").arg(path, file.errorString()));
}

} // namespace common
