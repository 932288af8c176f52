// SPDX-License-Identifier: MIT
// From a bound statement to SQLite's text.
#pragma once

#include "vortaq/sql/tree.h"

#include <string>
#include <vector>

namespace vortaq::sqlite {

/// Many record keys, to be put into a temporary table before the statement runs.
struct WrittenKeys {
    std::string table;
    const sql::KeyList *keys = nullptr; ///< of the statement, borrowed
};

/// Where a value stands that a function of functions.h may refuse.
struct WrittenPlace {
    std::string column;
    const sql::CatalogTable *table = nullptr; ///< whose row the function is told the rowid of; null for none
};

struct WrittenStatement {
    std::string text;
    std::vector<WrittenKeys> keyTables;
    std::vector<WrittenPlace> places; ///< the text refers to them by position
    bool readsClock = false; ///< then parameter 1 is the present moment, "yyyy-mm-dd hh:mm:ss.fff"
};

/// The statement's tables must come from a CatalogReader. Throws SqlError for text that SQLite cannot take.
[[nodiscard]] WrittenStatement writeStatement(const sql::Statement &statement);

/// A name between double quotes.
[[nodiscard]] std::string quotedName(const std::string &name);

} // namespace vortaq::sqlite
