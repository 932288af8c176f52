// SPDX-License-Identifier: MIT
// One statement of SQLite, from preparing to its last row.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

struct sqlite3_stmt;

namespace vortaq::sqlite {

class Connection;

/// Borrows the connection. All operations throw SqlError.
class PreparedStatement {
public:
    PreparedStatement(Connection &connection, std::string_view text);

    /// Parameters count from 1. The text must live until the next reset.
    void bindText(int parameter, std::string_view utf8);
    void bindInteger(int parameter, std::int64_t value);
    void bindNumber(int parameter, double value);

    /// True when there is a row to read.
    bool step();
    void reset() const;

    /// Columns count from 0; the text lives until the next step.
    [[nodiscard]] std::string_view text(int column) const;
    [[nodiscard]] std::int64_t integer(int column) const noexcept;

    [[nodiscard]] sqlite3_stmt *handle() const noexcept { return m_statement.get(); }

private:
    struct Finalizer {
        void operator()(sqlite3_stmt *statement) const noexcept;
    };

    void check(int code) const;

    Connection &m_connection;
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

} // namespace vortaq::sqlite
