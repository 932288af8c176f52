// SPDX-License-Identifier: MIT
// From a template file to a template.
#pragma once

#include "report/template/template.h"

class QByteArray;

namespace report {

/// Throws TemplateError, or std::runtime_error when the file cannot be read.
[[nodiscard]] TemplatePtr loadTemplate(const QString &path);
/// `file` only names the template in errors.
[[nodiscard]] TemplatePtr parseTemplate(const QByteArray &xml, const QString &file);

} // namespace report
