// SPDX-License-Identifier: MIT
// A large hospital to measure on, and the plain SQLite that the engine is measured against.
#pragma once

#include <QString>
#include <QTemporaryDir>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;

namespace vortaq::bench {

struct Closer {
    void operator()(sqlite3 *database) const;
};
using Plain = std::unique_ptr<sqlite3, Closer>;

/// A scratch database file: of each candidate's records one is unbilled and discharged, the others stand in bills.
class Hospital {
public:
    Hospital(int candidates, int recordsEach);

    [[nodiscard]] QString file() const;
    /// SQLite as it is, without anything of the engine.
    [[nodiscard]] Plain plain() const;

private:
    QTemporaryDir m_folder;
};

/// The key condition of one candidate as the module writes it.
[[nodiscard]] std::string keyOf(int candidate);

/// Ends the program when SQLite refuses.
void run(sqlite3 *database, const std::string &statement);

using Milliseconds = std::chrono::duration<double, std::milli>;

template <typename Work> [[nodiscard]] double milliseconds(Work &&work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return Milliseconds(std::chrono::steady_clock::now() - begin).count();
}

[[nodiscard]] double median(std::vector<double> values);

} // namespace vortaq::bench
