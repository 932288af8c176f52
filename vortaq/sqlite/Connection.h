// SPDX-License-Identifier: MIT
// An open database file, set up so that statements mean what they mean on the server.
#pragma once

#include "vortaq/engines/Transaction.h"
#include "vortaq/sqlite/FunctionFailure.h"

#include <QString>

#include <chrono>
#include <memory>
#include <string_view>

struct sqlite3;

namespace vortaq::sqlite {

class Connection final : public engines::TransactionVerbs {
public:
    struct Settings {
        bool readOnly = false;
        std::chrono::milliseconds busyTimeout{};
    };

    /// Opens an existing file; a file that may only be read is opened for reading. Throws SqlError.
    Connection(const QString &file, const Settings &settings);

    [[nodiscard]] sqlite3 *handle() const noexcept { return m_database.get(); }

    /// Runs one statement of the engine's own that returns nothing. Throws SqlError.
    void run(std::string_view text);

    void beginWriting() override { run("begin immediate"); }
    void commitWriting() override { run("commit"); }
    void undoWriting() override { run("rollback"); }
    [[nodiscard]] bool isWriting() const override;
    /// Rows touched by the last change.
    [[nodiscard]] int changedRows() const noexcept;

    /// Throws what the last call failed with: a function's own error, else the message for SQLite's code.
    [[noreturn]] void fail(int code);

private:
    struct Closer {
        void operator()(sqlite3 *database) const noexcept;
    };

    void configure(const Settings &settings);

    FunctionFailure m_functionFailure; // before the database, which refers to it until it is closed
    std::unique_ptr<sqlite3, Closer> m_database;
};

} // namespace vortaq::sqlite
