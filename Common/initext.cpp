// SPDX-License-Identifier: MIT
// The lines of a setup file, as bytes and as text.
#include "Common/initext.h"

#include "Common/blanks.h"

#include <QByteArrayView>
#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>

namespace common {

namespace {

constexpr char Utf8Mark[] = "\xEF\xBB\xBF";
constexpr char LittleEndianMark[] = "\xFF\xFE";
constexpr char BigEndianMark[] = "\xFE\xFF";
constexpr char Gb18030Name[] = "GB18030";

QByteArrayView markOf(IniEncoding encoding)
{
    switch (encoding) {
    case IniEncoding::Utf8WithMark:
        return Utf8Mark;
    case IniEncoding::Utf16LittleEndian:
        return LittleEndianMark;
    case IniEncoding::Utf16BigEndian:
        return BigEndianMark;
    case IniEncoding::Utf8:
    case IniEncoding::Gb18030:
    case IniEncoding::Bytes:
        break;
    }
    return {};
}

bool isUtf16(IniEncoding encoding)
{
    return encoding == IniEncoding::Utf16LittleEndian || encoding == IniEncoding::Utf16BigEndian;
}

/// A Qt that does not know GB18030 by name uses the system's own encoding.
QString decode(QByteArrayView bytes, IniEncoding encoding)
{
    switch (encoding) {
    case IniEncoding::Utf16LittleEndian:
        return QStringDecoder(QStringDecoder::Utf16LE).decode(bytes);
    case IniEncoding::Utf16BigEndian:
        return QStringDecoder(QStringDecoder::Utf16BE).decode(bytes);
    case IniEncoding::Gb18030: {
        QStringDecoder decoder(Gb18030Name);
        return decoder.isValid() ? decoder.decode(bytes) : QString::fromLocal8Bit(bytes);
    }
    case IniEncoding::Bytes:
        return QString::fromLatin1(bytes);
    case IniEncoding::Utf8:
    case IniEncoding::Utf8WithMark:
        break;
    }
    return QString::fromUtf8(bytes);
}

QByteArray encode(const QString &text, IniEncoding encoding)
{
    switch (encoding) {
    case IniEncoding::Utf16LittleEndian:
        return QStringEncoder(QStringEncoder::Utf16LE).encode(text);
    case IniEncoding::Utf16BigEndian:
        return QStringEncoder(QStringEncoder::Utf16BE).encode(text);
    case IniEncoding::Gb18030: {
        QStringEncoder encoder(Gb18030Name);
        return encoder.isValid() ? QByteArray(encoder.encode(text)) : text.toLocal8Bit();
    }
    case IniEncoding::Bytes:
        return text.toLatin1();
    case IniEncoding::Utf8:
    case IniEncoding::Utf8WithMark:
        break;
    }
    return text.toUtf8();
}

/// Whether a text that came out of valid UTF-8 was UTF-8 indeed.
bool looksLikeUtf8(QStringView text)
{
    const auto above = [text](char16_t limit) {
        return std::ranges::any_of(text, [limit](QChar character) { return character.unicode() >= limit; });
    };
    return !above(0x80) || above(0x800);
}

/// The content in units of the encoding, of which neither line end is ever a part of another character.
class Units {
public:
    Units(const QByteArray &content, IniEncoding encoding)
        : m_content(content)
        , m_size(isUtf16(encoding) ? 2 : 1)
        , m_low(encoding == IniEncoding::Utf16BigEndian ? 1 : 0)
        , m_begin(content.startsWith(markOf(encoding)) ? markOf(encoding).size() : 0)
        , m_end(content.size() - (content.size() - m_begin) % m_size)
    {
    }

    [[nodiscard]] qsizetype begin() const { return m_begin; }
    /// Behind the last whole unit.
    [[nodiscard]] qsizetype end() const { return m_end; }
    [[nodiscard]] qsizetype lineEndFrom(qsizetype at) const
    {
        while (at < m_end && !is(at, '\n') && !is(at, '\r'))
            at += m_size;
        return at;
    }
    [[nodiscard]] qsizetype behindLineEnd(qsizetype at) const
    {
        const bool both = is(at, '\r') && is(at + m_size, '\n');
        return std::min(at + (both ? 2 : 1) * m_size, m_end);
    }

private:
    [[nodiscard]] bool is(qsizetype at, char character) const
    {
        return at < m_end && m_content[at + m_low] == character && (m_size == 1 || m_content[at + 1 - m_low] == '\0');
    }

    const QByteArray &m_content;
    qsizetype m_size;
    qsizetype m_low; // where the lower byte stands in a unit of two
    qsizetype m_begin;
    qsizetype m_end;
};

QStringView withoutQuotes(QStringView value)
{
    if (value.size() < 2 || value.front() != value.back())
        return value;
    return value.front() == u'"' || value.front() == u'\'' ? value.sliced(1, value.size() - 2) : value;
}

void takeApart(QStringView whole, IniLine &line)
{
    const QStringView text = trimmed(whole);
    if (text.isEmpty())
        return;
    line.kind = IniLine::Other;
    if (text.front() == u';' || text.front() == u'#')
        return;
    const bool isSection = text.front() == u'[';
    const qsizetype mark = text.indexOf(isSection ? u']' : u'=');
    if (mark < 0)
        return;
    line.kind = isSection ? IniLine::Section : IniLine::Entry;
    line.name = trimmed(isSection ? text.sliced(1, mark - 1) : text.first(mark)).toString();
    if (!isSection)
        line.value = withoutQuotes(trimmed(text.sliced(mark + 1))).toString();
}

bool same(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// The last line of a section that is not blank.
const IniLine &lastOfSection(const std::vector<IniLine> &lines, qsizetype section)
{
    auto last = lines.begin() + section;
    for (auto line = last + 1; line != lines.end() && line->kind != IniLine::Section; ++line) {
        if (line->kind != IniLine::Blank)
            last = line;
    }
    return *last;
}

/// The first line end that has a line feed, else the first; empty where there is none.
QByteArray lineEndOf(const QByteArray &content, const std::vector<IniLine> &lines)
{
    QByteArray first;
    for (const IniLine &line : lines) {
        const QByteArray end = content.sliced(line.end, line.next - line.end);
        if (end.contains('\n'))
            return end;
        if (first.isEmpty())
            first = end;
    }
    return first;
}

} // namespace

IniEncoding iniEncodingOf(const QByteArray &content)
{
    for (const IniEncoding marked :
         {IniEncoding::Utf8WithMark, IniEncoding::Utf16LittleEndian, IniEncoding::Utf16BigEndian}) {
        if (content.startsWith(markOf(marked)))
            return marked;
    }
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8.decode(content);
    return !utf8.hasError() && looksLikeUtf8(text) ? IniEncoding::Utf8 : IniEncoding::Gb18030;
}

std::vector<IniLine> parseIni(const QByteArray &content, IniEncoding encoding)
{
    const Units units(content, encoding);
    std::vector<IniLine> lines;
    for (qsizetype at = units.begin(); at < units.end(); at = lines.back().next) {
        IniLine line{.begin = at, .end = units.lineEndFrom(at)};
        line.next = units.behindLineEnd(line.end);
        takeApart(decode(QByteArrayView(content).sliced(at, line.end - at), encoding), line);
        lines.push_back(std::move(line));
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

QByteArray withIniEntry(QByteArray content, IniEncoding encoding, const QString &section, const QString &key,
                        const QString &entry, const QString &lineEnd)
{
    if (!content.startsWith(markOf(encoding)))
        content.prepend(markOf(encoding));
    const std::vector<IniLine> lines = parseIni(content, encoding);
    const IniPlace place = findIni(lines, section, key);
    const QByteArray line = encode(entry, encoding);
    if (place.entry >= 0) {
        const IniLine &old = lines[static_cast<std::size_t>(place.entry)];
        return content.replace(old.begin, old.end - old.begin, line);
    }
    QByteArray end = lineEndOf(content, lines);
    if (end.isEmpty())
        end = encode(lineEnd, encoding);
    if (place.section >= 0)
        return content.insert(lastOfSection(lines, place.section).end, end + line);
    const bool isOpen = !lines.empty() && lines.back().end == lines.back().next;
    const QByteArray head = encode(u'[' + trimmed(section).toString() + u']', encoding) + end;
    return content.insert(Units(content, encoding).end(), (isOpen ? end : QByteArray()) + head + line + end);
}

} // namespace common
