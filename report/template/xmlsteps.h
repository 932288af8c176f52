// SPDX-License-Identifier: MIT
// Steps through a template's elements; whatever has no place there is refused at its line (TemplateError).
#pragma once

#include <QString>

class QXmlStreamReader;

namespace report {

/// To the next element inside the current one; false at the current one's end. Text in between is refused.
[[nodiscard]] bool nextElement(QXmlStreamReader &xml, const QString &file);

/// To the end of the current element, which must hold nothing.
void endElement(QXmlStreamReader &xml, const QString &file);

/// The text of the current element, up to its end. A <br/> ends a line of it; line breaks that only lay out the file,
/// and the blanks beside them, are no part of it, nor are blanks at both ends.
[[nodiscard]] QString readContent(QXmlStreamReader &xml, const QString &file);

/// Refuses what the parser stopped at.
void checkWellFormed(const QXmlStreamReader &xml, const QString &file);

} // namespace report
