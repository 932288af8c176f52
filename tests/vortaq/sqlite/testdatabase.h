// SPDX-License-Identifier: MIT
// A database file of its own for every test.
#pragma once

#include "vortaq/sqlite/sqliteengine.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <string>

namespace vortaq::test {

/// An empty hospital: tables and indexes without rows.
class TestDatabase {
public:
    TestDatabase();

    [[nodiscard]] QString file() const;
    /// Runs statements as another program would: with SQLite as it is, without anything of the engine.
    void run(const std::string &statements) const;
    /// The first column of the first row, read likewise.
    [[nodiscard]] std::string look(const std::string &query) const;
    /// Puts in the rows of corpus/hospital.sql.
    void fill() const;

    /// The clock stands at 2024-02-06 09:30:15.250 unless the options say otherwise.
    [[nodiscard]] std::unique_ptr<Engine> open() const;

private:
    QTemporaryDir m_folder;
};

/// A full hospital with an engine on it.
struct Hospital {
    Hospital();

    TestDatabase database;
    std::unique_ptr<Engine> engine;
};

/// One line a row, cells joined by |, a null as ~; no line break at the end.
[[nodiscard]] std::string rowsOf(const automation::DataPacket &packet);
[[nodiscard]] std::string namesOf(const automation::DataPacket &packet);
/// The rows that a query gives.
std::string ask(Engine &engine, const std::string &query);
/// The rows changed.
int change(Engine &engine, const std::string &statement);

/// The message of the SqlError that `action` throws, behind its reason: "Conversion: ...". "no error" when it throws
/// none.
template <typename Action> [[nodiscard]] std::string errorOf(Action &&action)
{
    constexpr const char *reasons[] = {"Syntax", "Binding",  "Conversion",   "Constraint", "Transaction",
                                       "Busy",   "ReadOnly", "NotADatabase", "Other"};
    try {
        action();
    } catch (const SqlError &error) {
        return std::string(reasons[static_cast<int>(error.reason())]) + ": " + error.what();
    }
    return "no error";
}

} // namespace vortaq::test
