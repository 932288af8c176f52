// SPDX-License-Identifier: MIT
// The encoding of a setup file and its lines.
#include "Common/initext.h"

#include "Common/blanks.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>

namespace common {

namespace {

constexpr char Utf8Mark[] = "\xEF\xBB\xBF";
constexpr char LittleEndianMark[] = "\xFF\xFE";
constexpr char BigEndianMark[] = "\xFE\xFF";
constexpr char Gb18030Name[] = "GB18030";

QString decode(QStringDecoder decoder, QByteArrayView bytes)
{
    return decoder.decode(bytes);
}

/// A Qt that does not know the encoding by name reads the system's own.
QStringDecoder gb18030Decoder()
{
    QStringDecoder decoder(Gb18030Name);
    return decoder.isValid() ? std::move(decoder) : QStringDecoder(QStringDecoder::System);
}

QStringEncoder gb18030Encoder()
{
    QStringEncoder encoder(Gb18030Name);
    return encoder.isValid() ? std::move(encoder) : QStringEncoder(QStringEncoder::System);
}

/// Whether a text that came out of valid UTF-8 was UTF-8 indeed.
bool looksLikeUtf8(QStringView text)
{
    const auto above = [text](char16_t limit) {
        return std::ranges::any_of(text, [limit](QChar character) { return character.unicode() >= limit; });
    };
    return !above(0x80) || above(0x800);
}

QStringView withoutQuotes(QStringView value)
{
    if (value.size() < 2 || value.front() != value.back())
        return value;
    return value.front() == u'"' || value.front() == u'\'' ? value.sliced(1, value.size() - 2) : value;
}

IniLine takeApart(QStringView line)
{
    const QStringView text = trimmed(line);
    if (text.isEmpty() || text.front() == u';' || text.front() == u'#')
        return {IniLine::Other, line, {}, {}};
    if (text.front() == u'[') {
        const qsizetype end = text.indexOf(u']');
        if (end < 0)
            return {IniLine::Other, line, {}, {}};
        return {IniLine::Section, line, trimmed(text.sliced(1, end - 1)), {}};
    }
    const qsizetype equals = text.indexOf(u'=');
    if (equals < 0)
        return {IniLine::Other, line, {}, {}};
    return {IniLine::Entry, line, trimmed(text.first(equals)), withoutQuotes(trimmed(text.sliced(equals + 1)))};
}

bool same(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// Behind the last line of a section that is not blank.
qsizetype endOfSection(const std::vector<IniLine> &lines, qsizetype section, QStringView text)
{
    auto last = lines.begin() + section;
    for (auto line = last + 1; line != lines.end() && line->kind != IniLine::Section; ++line) {
        if (!trimmed(line->line).isEmpty())
            last = line;
    }
    return last->line.end() - text.begin();
}

} // namespace

IniText decodeIni(const QByteArray &content)
{
    if (content.startsWith(Utf8Mark))
        return {IniEncoding::Utf8WithMark, QString::fromUtf8(content.sliced(3))};
    if (content.startsWith(LittleEndianMark))
        return {IniEncoding::Utf16LittleEndian,
                decode(QStringDecoder(QStringDecoder::Utf16LE), QByteArrayView(content).sliced(2))};
    if (content.startsWith(BigEndianMark))
        return {IniEncoding::Utf16BigEndian,
                decode(QStringDecoder(QStringDecoder::Utf16BE), QByteArrayView(content).sliced(2))};

    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8.decode(content);
    if (!utf8.hasError() && looksLikeUtf8(text))
        return {IniEncoding::Utf8, text};
    return {IniEncoding::Gb18030, decode(gb18030Decoder(), content)};
}

QByteArray encodeIni(const IniText &ini)
{
    switch (ini.encoding) {
    case IniEncoding::Utf8WithMark:
        return Utf8Mark + ini.text.toUtf8();
    case IniEncoding::Utf16LittleEndian:
        return LittleEndianMark + QByteArray(QStringEncoder(QStringEncoder::Utf16LE).encode(ini.text));
    case IniEncoding::Utf16BigEndian:
        return BigEndianMark + QByteArray(QStringEncoder(QStringEncoder::Utf16BE).encode(ini.text));
    case IniEncoding::Gb18030:
        return gb18030Encoder().encode(ini.text);
    case IniEncoding::Utf8:
        break;
    }
    return (looksLikeUtf8(ini.text) ? QByteArray() : QByteArray(Utf8Mark)) + ini.text.toUtf8();
}

std::vector<IniLine> parseIni(QStringView text)
{
    std::vector<IniLine> lines;
    while (!text.isEmpty()) {
        const qsizetype found =
            std::ranges::find_if(text, [](QChar c) { return c == u'\n' || c == u'\r'; }) - text.begin();
        lines.push_back(takeApart(text.first(found)));
        const bool both = text.sliced(found).startsWith(u"\r\n");
        text = text.sliced(std::min(found + (both ? 2 : 1), text.size()));
    }
    return lines;
}

IniPlace findIni(const std::vector<IniLine> &lines, QStringView section, QStringView key)
{
    IniPlace place;
    for (qsizetype at = 0; at < std::ssize(lines); ++at) {
        const IniLine &line = lines[static_cast<std::size_t>(at)];
        if (line.kind == IniLine::Section) {
            if (place.section >= 0)
                break;
            if (same(line.name, trimmed(section)))
                place.section = at;
        } else if (line.kind == IniLine::Entry && place.section >= 0 && same(line.name, trimmed(key))) {
            place.entry = at;
            break;
        }
    }
    return place;
}

void putIniEntry(QString &text, const QString &section, const QString &key, const QString &entry,
                 const QString &lineEnd)
{
    const QStringView view(text);
    const std::vector<IniLine> lines = parseIni(view);
    const IniPlace place = findIni(lines, section, key);
    if (place.entry >= 0) {
        const QStringView old = lines[static_cast<std::size_t>(place.entry)].line;
        text.replace(old.begin() - view.begin(), old.size(), entry);
    } else if (place.section >= 0) {
        text.insert(endOfSection(lines, place.section, view), lineEnd + entry);
    } else {
        if (!text.isEmpty() && !text.endsWith(u'\n') && !text.endsWith(u'\r'))
            text += lineEnd;
        text += u'[' + trimmed(section).toString() + u']' + lineEnd + entry + lineEnd;
    }
}

} // namespace common
