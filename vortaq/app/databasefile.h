// SPDX-License-Identifier: MIT
// Where the database lies and how it is opened.
#pragma once

#include "vortaq/Engine.h"

#include <QString>

#include <memory>

namespace vortaq {

/// The database of a clerk who names none, in his own data directory.
[[nodiscard]] QString defaultDatabaseFile();

/// `location` as given on the command line, or the default file, which is made with demo data when it is absent.
/// Returns the file's absolute path. Throws StartupError for an address of a database server and for a data directory
/// that is unknown or cannot be made, and what making the demo throws.
[[nodiscard]] QString prepareDatabase(const QString &location);

/// Opens a database file that exists. Throws StartupError for a file that may not be written, else with the engine's
/// own words.
[[nodiscard]] std::shared_ptr<Engine> openDatabase(const QString &file);

} // namespace vortaq
