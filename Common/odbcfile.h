// SPDX-License-Identifier: MIT
// The file of the current user's data sources, changed by unixODBC's installer library.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace common {

/// Texts are UTF-8.
struct OdbcEntry {
    std::string section;
    std::string key;
    std::string value;
};

/// What the environment variable ODBCINI names, else ".odbc.ini" in the user's home.
[[nodiscard]] QString odbcFilePath();

/// The content with the entries as the library writes them: sections and keys that are missing are made, in the order
/// given. All other lines, comments among them, stay byte for byte. Nothing when the library cannot read the content,
/// or would not read each value back from the result as it is.
[[nodiscard]] std::optional<QByteArray> withOdbcEntries(const QByteArray &content,
                                                        const std::vector<OdbcEntry> &entries);

} // namespace common
