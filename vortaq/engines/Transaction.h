// SPDX-License-Identifier: MIT
// The one transaction of a connection, by the same rules on every database.
#pragma once

namespace vortaq::engines {

/// What a database is told. All operations throw SqlError.
class TransactionVerbs {
public:
    TransactionVerbs() = default;
    virtual ~TransactionVerbs() = default;
    TransactionVerbs(const TransactionVerbs &) = delete;
    TransactionVerbs &operator=(const TransactionVerbs &) = delete;

    /// With the right to write from the beginning, so that two clerks who save at the same time wait for each other
    /// instead of both reading the same highest bill number.
    virtual void beginWriting() = 0;
    virtual void commitWriting() = 0;
    virtual void undoWriting() = 0;
    /// No longer, once the database itself has given the transaction up.
    [[nodiscard]] virtual bool isWriting() const = 0;
};

/// All operations throw SqlError.
class Transaction {
public:
    /// The database is borrowed.
    explicit Transaction(TransactionVerbs &database)
        : m_database(database)
    {
    }

    /// Inside a transaction it is refused.
    void begin();
    /// Outside a transaction it is refused. When it fails the transaction is still there, to be rolled back.
    void commit();
    /// Without a transaction it does nothing.
    void rollback();

    /// Refuses when the database has given the transaction up (a full disk, for example): what follows would be kept
    /// without what went before.
    void checkAlive() const;

private:
    TransactionVerbs &m_database;
    bool m_open = false;
};

} // namespace vortaq::engines
