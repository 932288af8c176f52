// SPDX-License-Identifier: MIT
// Where the host's executable stands, behind a seam.
#pragma once

#include <QString>

namespace common {

/// With a separator at the end. Setup file, module and templates are found from here.
[[nodiscard]] QString executableFolder();
/// An empty text restores the folder of the running program. A separator at the end is added when missing.
void setExecutableFolder(const QString &folder);

} // namespace common
