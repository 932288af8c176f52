// SPDX-License-Identifier: MIT
// A prepared insert whose values are given column by column.
#pragma once

#include "vortaq/demo/catalogue.h"

#include <cstdint>
#include <memory>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace vortaq::demo {

struct FinalizeStatement {
    void operator()(sqlite3_stmt *statement) const;
};

/// The values follow in the order of the columns; run() starts over. Everything throws SqlError.
class Inserter {
public:
    /// Columns separated by commas.
    Inserter(sqlite3 *database, std::string_view table, std::string_view columns);

    /// The text is borrowed until run().
    Inserter &text(std::string_view value);
    Inserter &number(std::int64_t value);
    Inserter &money(Cents value);
    /// Ten-thousandths of a yuan.
    Inserter &price(std::int64_t value);
    Inserter &null();
    void run();

private:
    sqlite3 *m_database;
    std::unique_ptr<sqlite3_stmt, FinalizeStatement> m_statement;
    int m_next = 1;
};

} // namespace vortaq::demo
