// SPDX-License-Identifier: MIT
// Writes every call on a host object to a file, one JSON object a line.
#pragma once

#include "automation/journal.h"

#include <QByteArray>
#include <QFile>
#include <QString>

namespace vortaq {

/// The line of one call, ended by a line feed. Keys in this order: object, operation, kind ("method", "read" or
/// "write"), args, ok, then result (when there is one), rows (instead of the result when it is a packet), error (when
/// the call failed).
[[nodiscard]] QByteArray traceLine(const automation::CallRecord &call);

/// Listens from construction to destruction; each line is in the file when the next call begins. What is written goes
/// into the file that was opened, whatever takes its name later.
class TraceFile : public automation::CallObserver {
public:
    /// Makes the file. An earlier trace and an empty file are replaced; a pipe or a terminal is written to. Throws
    /// StartupError for anything else, which stays as it is, and for what cannot be written.
    explicit TraceFile(const QString &file);
    ~TraceFile() override;

    /// A line that cannot be written (a full disk) is reported once to the error display and ends the trace.
    void called(const automation::CallRecord &call) override;

private:
    void open();

    QFile m_file;
};

} // namespace vortaq
