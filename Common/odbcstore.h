// SPDX-License-Identifier: MIT
// Where the current user's data sources stand: in unixODBC's file, or in the registry where there is one.
#pragma once

#include <string>
#include <vector>

namespace common {

/// Texts are UTF-8, without control characters and without "\" in the section.
struct OdbcEntry {
    std::string section;
    std::string key;
    std::string value;
};

/// Sets the entries in the order given; sections and keys that are missing are made, everything else stays.
///
/// The file is the one that the environment variable ODBCINI names, else ".odbc.ini" in the user's home. All its other
/// lines, comments among them, stay byte for byte; it is replaced whole or not touched, and a new one is readable by
/// the user alone. False, and nothing is written, when the library of unixODBC cannot read the file or would not read
/// each value back as it is, and when the file cannot be written.
///
/// In the registry a section is a key below "Software\ODBC\ODBC.INI" of the current user. False when a value cannot be
/// written; those before it are there then.
[[nodiscard]] bool storeOdbcEntries(const std::vector<OdbcEntry> &entries);

} // namespace common
