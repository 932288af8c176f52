// SPDX-License-Identifier: MIT
#include "toolkit/datatip.h"

#include <QFontMetrics>
#include <QStringList>
#include <QTextLayout>
#include <QToolTip>

namespace toolkit {

namespace {

constexpr int CharactersInALine = 40; // as wide as Chinese ones
constexpr qsizetype MostLines = 20;
constexpr qsizetype MostCharacters = 4000; // more never fit, and laying them out takes its time

QString withoutControls(QString text)
{
    for (QChar &character : text) {
        if (character == QChar::LineSeparator || character == QChar::ParagraphSeparator)
            character = u'\n';
        else if (character != u'\n' && character.category() == QChar::Other_Control)
            character = u' ';
    }
    return text;
}

/// One paragraph in lines; stops when there are enough.
void appendLines(const QString &paragraph, QStringList &lines)
{
    const QFont font = QToolTip::font();
    QTextOption anywhere;
    anywhere.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(paragraph, font);
    layout.setTextOption(anywhere);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid() && lines.size() <= MostLines;
         line = layout.createLine()) {
        line.setLineWidth(QFontMetrics(font).horizontalAdvance(u'国') * CharactersInALine);
        lines.append(paragraph.sliced(line.textStart(), line.textLength()));
    }
    layout.endLayout();
}

} // namespace

QString dataTip(const QString &data)
{
    QString text = data;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    bool isCut = text.size() > MostCharacters;
    if (isCut)
        text.truncate(text[MostCharacters - 1].isHighSurrogate() ? MostCharacters - 1 : MostCharacters);
    QStringList lines;
    for (const QString &paragraph : withoutControls(text).split(u'\n')) {
        if (lines.size() <= MostLines)
            appendLines(paragraph, lines);
    }
    isCut = isCut || lines.size() > MostLines;
    lines = lines.first(std::min(lines.size(), MostLines));
    const QString shown = lines.join(u'\n') + (isCut ? QStringLiteral("…") : QString());
    if (!Qt::mightBeRichText(shown))
        return shown;
    return QStringLiteral("<div style=\"white-space:pre\">%1</div>")
        .arg(shown.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")));
}

void showDataTip(const QPoint &place, const QString &data, QWidget *widget, const QRect &area)
{
    QToolTip::showText(place, dataTip(data), widget, area);
}

} // namespace toolkit
