// SPDX-License-Identifier: MIT
// A document as a spreadsheet (.xlsx).
#pragma once

#include "report/document.h"

#include <QString>

namespace report {

/// One sheet without page breaks: every box of the report is a cell or a merged range, and an amount is a number with
/// its display format. False when it was stopped; then no file is left. An existing file is replaced only by a complete
/// one. Throws std::runtime_error when the file cannot be written, and what laying out throws.
[[nodiscard]] bool writeSpreadsheet(const Document &document, const QString &path, const Progress &progress = {});

} // namespace report
