// SPDX-License-Identifier: MIT
// Where the report templates stand.
#pragma once

#include <QString>

namespace print {

/// Path of a template such as "Module\结算单.rmf" in the folder of the host's executable.
[[nodiscard]] QString templatePath(const QString &windowsPath);

} // namespace print
