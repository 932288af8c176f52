// SPDX-License-Identifier: MIT
// Laid out pages as text, to be compared whole.
#pragma once

#include "report/document.h"

#include <string>

namespace pagedump {

/// A line a stroke, fill and text box, in hundredths of a millimetre; texts line by line between bars.
inline std::string everything(const report::Page &page)
{
    QString dump;
    for (const report::Fill &fill : page.fills)
        dump += QStringLiteral("fill %1,%2 %3x%4 #%5\n")
                    .arg(fill.area.left)
                    .arg(fill.area.top)
                    .arg(fill.area.width)
                    .arg(fill.area.height)
                    .arg(fill.colour & 0xFFFFFFU, 6, 16, QChar(u'0'));
    for (const report::Stroke &stroke : page.strokes)
        dump += QStringLiteral("line %1,%2-%3,%4 w%5\n")
                    .arg(stroke.left)
                    .arg(stroke.top)
                    .arg(stroke.right)
                    .arg(stroke.bottom)
                    .arg(stroke.width);
    for (const report::TextBox &text : page.texts) {
        if (text.lines.empty())
            continue;
        dump += QStringLiteral("text %1,%2 %3x%4 s%5")
                    .arg(text.box.left)
                    .arg(text.box.top)
                    .arg(text.box.width)
                    .arg(text.box.height)
                    .arg(text.font.size);
        for (const report::TextLine &line : text.lines)
            dump += QStringLiteral(" |%1,%2 %3|").arg(line.left).arg(line.baseline).arg(line.text);
        dump += u'\n';
    }
    return dump.toStdString();
}

/// Texts of all pages with their upper edge in millimetres; a line a page.
inline std::string texts(report::Document &document)
{
    (void)document.finish();
    QString dump;
    for (int index = 0; index < document.pageCount(); ++index) {
        QStringList parts;
        for (const report::TextBox &text : document.page(index).texts) {
            QStringList lines;
            for (const report::TextLine &line : text.lines)
                lines.append(line.text);
            parts.append(QStringLiteral("%1 %2").arg(text.box.top / 100.0).arg(lines.join(u'/')));
        }
        dump += parts.join(QStringLiteral(", ")) + u'\n';
    }
    return dump.toStdString();
}

} // namespace pagedump
