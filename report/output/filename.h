// SPDX-License-Identifier: MIT
// What the file of a report is called.
#pragma once

#include <QString>

namespace report {

class Document;
struct Template;

/// The template's title as a file name without a suffix.
[[nodiscard]] QString fileName(const Template &source);
/// What the template wants this document to be called.
[[nodiscard]] QString fileName(const Document &document);

/// What is left of a text as a name that every file system takes: no separators or signs that stand for something
/// else, nothing that cannot be seen, no dot at either end, and short enough. Never empty.
[[nodiscard]] QString safeFileName(const QString &text);

} // namespace report
