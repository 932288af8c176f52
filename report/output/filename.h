// SPDX-License-Identifier: MIT
// What the file of a report is called.
#pragma once

#include <QString>

namespace report {

struct Template;

/// The template's title without what file systems refuse, and without a suffix.
[[nodiscard]] QString fileName(const Template &source);

} // namespace report
