// SPDX-License-Identifier: MIT
// The one transaction of a connection.
#pragma once

namespace vortaq::sqlite {

class Connection;

/// Begins at once with the right to write, so that two clerks who save at the same time wait for each other instead of
/// both reading the same highest bill number. All operations throw SqlError.
class Transaction {
public:
    /// The connection is borrowed.
    explicit Transaction(Connection &connection)
        : m_connection(connection)
    {
    }

    void begin();
    /// When it fails the transaction is still there, to be rolled back.
    void commit();
    /// Without a transaction it does nothing.
    void rollback();

    /// Refuses when the database has given the transaction up (a full disk, for example): what follows would be kept
    /// without what went before.
    void checkAlive() const;

private:
    Connection &m_connection;
    bool m_open = false;
};

} // namespace vortaq::sqlite
