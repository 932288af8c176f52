// SPDX-License-Identifier: MIT
// A thin wall around sqlite3_stmt.
#include "vortaq/sqlite/PreparedStatement.h"

#include "vortaq/sqlite/Connection.h"

#include <sqlite3.h>

namespace vortaq::sqlite {

void PreparedStatement::Finalizer::operator()(sqlite3_stmt *statement) const noexcept
{
    sqlite3_finalize(statement);
}

PreparedStatement::PreparedStatement(Connection &connection, std::string_view text)
    : m_connection(connection)
{
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v2(connection.handle(), text.data(), static_cast<int>(text.size()), &statement, nullptr));
    m_statement.reset(statement);
}

void PreparedStatement::bindText(int parameter, std::string_view utf8)
{
    check(sqlite3_bind_text64(handle(), parameter, utf8.data(), utf8.size(), SQLITE_STATIC, SQLITE_UTF8));
}

void PreparedStatement::bindInteger(int parameter, std::int64_t value)
{
    check(sqlite3_bind_int64(handle(), parameter, value));
}

void PreparedStatement::bindNumber(int parameter, double value)
{
    check(sqlite3_bind_double(handle(), parameter, value));
}

bool PreparedStatement::step()
{
    const int code = sqlite3_step(handle());
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        m_connection.fail(code);
    return code == SQLITE_ROW;
}

void PreparedStatement::reset() const
{
    sqlite3_reset(handle());
}

std::string_view PreparedStatement::text(int column) const
{
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(handle(), column));
    return bytes == nullptr ? std::string_view{}
                            : std::string_view(bytes, static_cast<std::size_t>(sqlite3_column_bytes(handle(), column)));
}

std::int64_t PreparedStatement::integer(int column) const noexcept
{
    return sqlite3_column_int64(handle(), column);
}

void PreparedStatement::check(int code) const
{
    if (code != SQLITE_OK)
        m_connection.fail(code);
}

} // namespace vortaq::sqlite
