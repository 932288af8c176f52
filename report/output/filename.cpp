// SPDX-License-Identifier: MIT
#include "report/output/filename.h"

#include "report/document.h"

namespace report {

namespace {

/// File systems take 255 bytes; a suffix and a number still have to find room.
constexpr qsizetype MostBytes = 200;
constexpr qsizetype Tail = 16;

bool isAllowed(char32_t code)
{
    constexpr QStringView forbidden = u"\\/:*?\"<>|";
    return QChar::isPrint(code) && (code > 0xFFFF || !forbidden.contains(QChar(static_cast<char16_t>(code))));
}

/// Long texts lose their middle: a date stands at the end as a rule.
QString shortened(const QList<uint> &codes)
{
    const auto text = [](const QList<uint> &from) {
        return QString::fromUcs4(reinterpret_cast<const char32_t *>(from.constData()), from.size());
    };
    if (text(codes).toUtf8().size() <= MostBytes)
        return text(codes);
    QList<uint> head = codes.first(codes.size() - Tail);
    const QString tail = u'…' + text(codes.last(Tail));
    while ((text(head) + tail).toUtf8().size() > MostBytes)
        head.removeLast();
    return text(head) + tail;
}

} // namespace

QString safeFileName(const QString &text)
{
    QList<uint> codes;
    for (const uint code : text.simplified().toUcs4()) {
        if (isAllowed(code))
            codes.append(code);
    }
    const auto isEdge = [](uint code) { return code == U'.' || code == U' '; };
    while (!codes.isEmpty() && isEdge(codes.first()))
        codes.removeFirst();
    while (!codes.isEmpty() && isEdge(codes.last()))
        codes.removeLast();
    return codes.isEmpty() ? QStringLiteral("报表") : shortened(codes);
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
