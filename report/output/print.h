// SPDX-License-Identifier: MIT
// A document onto paper and into PDF files.
#pragma once

#include "report/document.h"

#include <QString>

class QPrinter;

namespace report {

/// False when it was stopped; then no file is left. An existing file is replaced only by a complete one. Throws
/// std::runtime_error when the file cannot be written, and what laying out throws.
[[nodiscard]] bool writePdf(Document &document, const QString &path, const Progress &progress = {});

/// The pages, copies and order that the printer was set to. False when it was stopped; the job is taken back then.
/// Throws std::runtime_error when the printer does not take the job, and what laying out throws.
[[nodiscard]] bool printDocument(Document &document, QPrinter &printer, const Progress &progress = {});

} // namespace report
