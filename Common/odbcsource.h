// SPDX-License-Identifier: MIT
// Data sources in the current user's ODBC configuration.
#pragma once

#include <QString>

namespace common {

/// A data source of the engine "Adaptive Server Anywhere 8.0".
struct OdbcSource {
    QString name;
    QString host; ///< empty for a local engine
    QString databaseFile;
    QString driverFile;
    QString engineName;
    QString password;
    QString userName;
};

/// Whether the configuration can hold the source so that it is read back as it is. It cannot when
/// - the name is empty, longer than 32 bytes of UTF-8, a heading of the configuration's own ("ODBC", "ODBC Data
///   Sources"), or holds one of []{}(),;?*=!@\# ;
/// - the host holds a brace, a comma or a semicolon, which would end it;
/// - anything holds a control character or half a surrogate pair, has a blank at an end, or makes a value longer than
///   499 bytes, which is all that the command odbcinst shows.
[[nodiscard]] bool canHold(const OdbcSource &source);

/// Writes the source, or changes the one of that name, and registers it for the current user. Other sources, comments,
/// and what else stands in the source's own entry stay. False, and nothing is written, when canHold() says no; false
/// also when the configuration cannot be read or written (see storeOdbcEntries()).
[[nodiscard]] bool writeOdbcSource(const OdbcSource &source);

} // namespace common
