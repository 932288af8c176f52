// SPDX-License-Identifier: MIT
// A database as the host's data control sees it: T-SQL text in, row sets out.
#pragma once

#include "automation/datapacket.h"
#include "vortaq/SqlError.h"

#include <QString>

namespace vortaq {

/// One connection. Used on one thread.
class Engine {
public:
    Engine() = default;
    virtual ~Engine() = default;
    Engine(const Engine &) = delete;
    Engine &operator=(const Engine &) = delete;

    /// The complete row set of one query; an empty text gives a packet without columns. Throws SqlError.
    [[nodiscard]] virtual automation::DataPacketPtr query(const QString &sql) = 0;
    /// Runs one insert, update or delete; returns the number of rows changed. Throws SqlError.
    virtual int execute(const QString &sql) = 0;

    /// Beginning inside a transaction and committing outside one throw SqlError; rolling back outside one does nothing.
    virtual void begin() = 0;
    virtual void commit() = 0;
    virtual void rollback() = 0;
};

} // namespace vortaq
