// SPDX-License-Identifier: MIT
// A large hospital to measure on.
#pragma once

#include <QString>
#include <QTemporaryDir>

#include <string>

namespace bench {

/// A scratch database file: of each candidate's records one is unbilled and discharged, the others stand in bills.
class Hospital {
public:
    Hospital(int candidates, int recordsEach);

    [[nodiscard]] QString file() const;

private:
    QTemporaryDir m_folder;
};

/// The key condition of one candidate as the module writes it.
[[nodiscard]] std::string keyOf(int candidate);

} // namespace bench
