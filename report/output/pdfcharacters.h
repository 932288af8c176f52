// SPDX-License-Identifier: MIT
// Makes the text of a PDF file the text that was printed.
#pragma once

#include <QByteArray>

namespace report {

class Document;

/// Chinese fonts draw some characters and the radicals of the same shape (生 and ⽣) with one glyph, and the PDF writer
/// notes the radical as its meaning; of rare characters that take two units of UTF-16 (𠮷) it notes no meaning at all.
/// Whoever searches the file for a patient's name would not find it, so the character that the document holds is noted
/// instead.
void nameThePrintedCharacters(QByteArray &pdf, const Document &document);

} // namespace report
