// SPDX-License-Identifier: MIT
// Binding of values to a prepared insert.
#include "vortaq/demo/inserter.h"

#include "vortaq/demo/databasewriting.h"

#include <sqlite3.h>

#include <string>

namespace vortaq::demo {

void FinalizeStatement::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

Inserter::Inserter(sqlite3 *database, std::string_view table, std::string_view columns)
    : m_database(database)
{
    std::string sql = "insert into ";
    sql.append(table).append("(").append(columns).append(") values(?");
    for (const char letter : columns)
        if (letter == ',')
            sql += ",?";
    sql += ')';
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v3(database, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
        throwLastError(database);
    m_statement.reset(statement);
}

Inserter &Inserter::text(std::string_view value)
{
    if (sqlite3_bind_text(m_statement.get(), m_next++, value.data(), static_cast<int>(value.size()), SQLITE_STATIC)
        != SQLITE_OK)
        throwLastError(m_database);
    return *this;
}

Inserter &Inserter::number(std::int64_t value)
{
    if (sqlite3_bind_int64(m_statement.get(), m_next++, value) != SQLITE_OK)
        throwLastError(m_database);
    return *this;
}

Inserter &Inserter::money(Cents value)
{
    if (sqlite3_bind_double(m_statement.get(), m_next++, static_cast<double>(value) / 100) != SQLITE_OK)
        throwLastError(m_database);
    return *this;
}

Inserter &Inserter::price(std::int64_t value)
{
    if (sqlite3_bind_double(m_statement.get(), m_next++, static_cast<double>(value) / 10000) != SQLITE_OK)
        throwLastError(m_database);
    return *this;
}

Inserter &Inserter::null()
{
    if (sqlite3_bind_null(m_statement.get(), m_next++) != SQLITE_OK)
        throwLastError(m_database);
    return *this;
}

void Inserter::run()
{
    if (sqlite3_step(m_statement.get()) != SQLITE_DONE)
        throwLastError(m_database);
    if (sqlite3_reset(m_statement.get()) != SQLITE_OK)
        throwLastError(m_database);
    m_next = 1;
}

} // namespace vortaq::demo
