// SPDX-License-Identifier: MIT
// Text that can be read on its background.
#pragma once

class QColor;
class QLineEdit;

namespace toolkit {

/// Contrast of two colours as the guidelines for accessible content reckon it, from 1 (the same) to 21.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

/// What those guidelines ask for between text and its background.
inline constexpr double ReadableContrast = 4.5;

/// Boxes that are disabled because nobody types into them still show what a clerk reads all day. Where the palette
/// makes disabled text too faint for that, now or when it changes, the box shows it stronger.
void keepReadable(QLineEdit &box);

} // namespace toolkit
