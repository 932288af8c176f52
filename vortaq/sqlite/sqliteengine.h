// SPDX-License-Identifier: MIT
// A SQLite file as a database of the host.
#pragma once

#include "vortaq/Engine.h"

#include <QDateTime>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace vortaq {

struct OpenOptions {
    bool readOnly = false; ///< changes are refused; queries work on a file that others write to
    std::chrono::milliseconds busyTimeout{15000}; ///< how long to wait for another program's transaction
    std::function<QDateTime()> clock = [] { return QDateTime::currentDateTime(); }; ///< what getdate() tells
};

/// Opens an existing database file. Throws SqlError: Other when it is missing or cannot be opened, NotADatabase when it
/// is something else or damaged, Busy when another program holds it.
///
/// A failing statement leaves nothing of itself behind; inside a transaction what went before it stays until the
/// rollback. When commit() throws, the transaction is over or still open, and rollback() ends it either way.
[[nodiscard]] std::unique_ptr<Engine> openSqlite(const QString &file, OpenOptions options = {});

} // namespace vortaq
