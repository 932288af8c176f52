// SPDX-License-Identifier: MIT
#include "report/template/xmlsteps.h"

#include "report/template/templateerror.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace report {

namespace {

constexpr QStringView Blanks = u" \t\r\n";

QStringView withoutBlanks(QStringView text, bool before, bool behind)
{
    while (before && !text.isEmpty() && Blanks.contains(text.front()))
        text = text.mid(1);
    while (behind && !text.isEmpty() && Blanks.contains(text.back()))
        text.chop(1);
    return text;
}

QString joinedLines(QStringView text)
{
    const QList<QStringView> lines = text.split(u'\n');
    QString result;
    for (qsizetype at = 0; at < lines.size(); ++at)
        result += withoutBlanks(lines[at], at > 0, at + 1 < lines.size());
    return result;
}

[[noreturn]] void fail(const QXmlStreamReader &xml, const QString &file, const QString &reason)
{
    throw TemplateError(file, std::max(1, static_cast<int>(xml.lineNumber())), reason);
}

} // namespace

void checkWellFormed(const QXmlStreamReader &xml, const QString &file)
{
    if (!xml.hasError())
        return;
    if (xml.error() == QXmlStreamReader::PrematureEndOfDocumentError)
        fail(xml, file, QStringLiteral("文件不完整，有元素没有结束"));
    fail(xml, file, QStringLiteral("不是正确的 XML：%1").arg(xml.errorString()));
}

bool nextElement(QXmlStreamReader &xml, const QString &file)
{
    for (;;) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        checkWellFormed(xml, file);
        if (token == QXmlStreamReader::StartElement)
            return true;
        if (token == QXmlStreamReader::EndElement || token == QXmlStreamReader::EndDocument)
            return false;
        if (token == QXmlStreamReader::Characters && !xml.isWhitespace())
            fail(xml, file, QStringLiteral("这里不能有文字“%1”").arg(xml.text().trimmed().left(20)));
    }
}

void endElement(QXmlStreamReader &xml, const QString &file)
{
    if (nextElement(xml, file))
        fail(xml, file, QStringLiteral("这里不能有 <%1>").arg(xml.name()));
}

QString readContent(QXmlStreamReader &xml, const QString &file)
{
    QString content;
    QString stretch;
    while (xml.readNext() != QXmlStreamReader::EndElement) {
        checkWellFormed(xml, file);
        if (xml.isCharacters()) {
            stretch += xml.text();
        } else if (xml.isStartElement()) {
            if (xml.name() != u"br")
                fail(xml, file, QStringLiteral("文字中只能有 <br/>，不能有 <%1>").arg(xml.name()));
            endElement(xml, file);
            content += joinedLines(stretch) + u'\n';
            stretch.clear();
        }
    }
    content += joinedLines(stretch);
    const auto blank = [](QStringView text) { return text.front() == u' ' || text.front() == u'\t'; };
    QStringView trimmed = content;
    while (!trimmed.isEmpty() && blank(trimmed))
        trimmed = trimmed.mid(1);
    while (!trimmed.isEmpty() && blank(trimmed.last(1)))
        trimmed.chop(1);
    return trimmed.toString();
}

} // namespace report
