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

/// Line end of the first line; Windows' own where there is none.
QString lineEndOf(const QString &text)
{
    const qsizetype feed = text.indexOf(u'\n');
    return feed < 0 || (feed > 0 && text[feed - 1] == u'\r') ? QStringLiteral("\r\n") : QStringLiteral("\n");
}

} // namespace

QString iniFilePath(const QString &fileName)
{
    return executableFolder() + platformPath(u'\\' + fileName);
}

QString iniValue(const QByteArray &content, const QString &section, const QString &key)
{
    const IniText ini = decodeIni(content);
    const std::vector<IniLine> lines = parseIni(ini.text);
    const IniPlace place = findIni(lines, section, key);
    return place.entry < 0 ? QString() : lines[static_cast<std::size_t>(place.entry)].value.toString();
}

QByteArray withIniValue(const QByteArray &content, const QString &section, const QString &key, const QString &value)
{
    checkName(section);
    checkName(key);
    IniText ini = decodeIni(content);
    putIniEntry(ini.text, section, key, trimmed(key).toString() + u'=' + written(value), lineEndOf(ini.text));
    QByteArray changed = encodeIni(ini);
    if (iniValue(changed, section, key) != value) // half a surrogate pair, for one
        refuse(QStringLiteral("设置值“%1”无法写入设置文件。").arg(value));
    return changed;
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
