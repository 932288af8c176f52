// SPDX-License-Identifier: MIT
#include "report/output/filename.h"

#include "report/document.h"

#include <string>

namespace report {

namespace {

/// File systems take 255 bytes; a suffix and a number still have to find room.
constexpr qsizetype MostBytes = 200;
constexpr std::size_t Tail = 16;

bool isAllowed(char32_t code)
{
    constexpr QStringView forbidden = u"\\/:*?\"<>|";
    return QChar::isPrint(code) && (code > 0xFFFF || !forbidden.contains(QChar(static_cast<char16_t>(code))));
}

/// Long texts lose their middle: a date stands at the end as a rule.
QString shortened(const std::u32string &codes)
{
    const QString whole = QString::fromStdU32String(codes);
    if (whole.toUtf8().size() <= MostBytes)
        return whole;
    std::u32string head = codes.substr(0, codes.size() - Tail);
    const QString tail = u'…' + QString::fromStdU32String(codes.substr(codes.size() - Tail));
    while ((QString::fromStdU32String(head) + tail).toUtf8().size() > MostBytes)
        head.pop_back();
    return QString::fromStdU32String(head) + tail;
}

} // namespace

QString safeFileName(const QString &text)
{
    std::u32string codes = text.simplified().toStdU32String();
    std::erase_if(codes, [](char32_t code) { return !isAllowed(code); });
    constexpr char32_t edges[] = U". ";
    codes.erase(codes.find_last_not_of(edges) + 1);
    codes.erase(0, codes.find_first_not_of(edges));
    return codes.empty() ? QStringLiteral("报表") : shortened(codes);
}

QString fileName(const Template &source)
{
    return safeFileName(source.title);
}

QString fileName(const Document &document)
{
    return safeFileName(document.text(document.source().fileName));
}

} // namespace report
