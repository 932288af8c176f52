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

bool same(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

struct Place {
    std::vector<IniLine>::const_iterator entry; ///< end when the key is missing
    std::vector<IniLine>::const_iterator section; ///< end when the section is missing
};

/// Looks in the first section of the name only.
Place find(const std::vector<IniLine> &lines, QStringView section, QStringView key)
{
    Place place{lines.end(), lines.end()};
    place.section = std::ranges::find_if(
        lines, [&](const IniLine &line) { return line.kind == IniLine::Section && same(line.name, trimmed(section)); });
    if (place.section == lines.end())
        return place;
    const auto last =
        std::find_if(place.section + 1, lines.end(), [](const IniLine &line) { return line.kind == IniLine::Section; });
    const auto entry = std::find_if(place.section + 1, last, [&](const IniLine &line) {
        return line.kind == IniLine::Entry && same(line.name, trimmed(key));
    });
    place.entry = entry == last ? lines.end() : entry;
    return place;
}

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
    if (text.isEmpty() || text.front() == u';' || text.front() == u'#' || hasAnyOf(text, u"[]=\r\n"))
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

/// Behind the last line of a section that is not blank.
qsizetype endOfSection(const std::vector<IniLine> &lines, std::vector<IniLine>::const_iterator section,
                       QStringView text)
{
    auto last = section;
    for (auto line = section + 1; line != lines.end() && line->kind != IniLine::Section; ++line) {
        if (!trimmed(line->line).isEmpty())
            last = line;
    }
    return last->line.end() - text.begin();
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
    const Place place = find(lines, section, key);
    return place.entry == lines.end() ? QString() : place.entry->value.toString();
}

QByteArray withIniValue(const QByteArray &content, const QString &section, const QString &key, const QString &value)
{
    checkName(section);
    checkName(key);
    IniText ini = decodeIni(content);
    const QString entry = trimmed(key).toString() + u'=' + written(value);
    const QString lineEnd = lineEndOf(ini.text);
    const QStringView text(ini.text);
    const std::vector<IniLine> lines = parseIni(text);
    const Place place = find(lines, section, key);
    if (place.entry != lines.end()) {
        ini.text.replace(place.entry->line.begin() - text.begin(), place.entry->line.size(), entry);
    } else if (place.section != lines.end()) {
        ini.text.insert(endOfSection(lines, place.section, text), lineEnd + entry);
    } else {
        if (!ini.text.isEmpty() && !ini.text.endsWith(u'\n') && !ini.text.endsWith(u'\r'))
            ini.text += lineEnd;
        ini.text += u'[' + trimmed(section).toString() + u']' + lineEnd + entry + lineEnd;
    }
    return encodeIni(ini);
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
