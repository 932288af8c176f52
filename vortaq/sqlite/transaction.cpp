// SPDX-License-Identifier: MIT
// Begin, commit, roll back.
#include "vortaq/sqlite/transaction.h"

#include "vortaq/sqlite/Connection.h"

namespace vortaq::sqlite {

void Transaction::begin()
{
    if (m_open)
        throw SqlError(SqlError::Reason::Transaction, "上一个事务尚未结束，不能开始新的事务。");
    m_connection.run("begin immediate");
    m_open = true;
}

void Transaction::commit()
{
    if (!m_open)
        throw SqlError(SqlError::Reason::Transaction, "没有可以提交的事务。");
    checkAlive();
    m_connection.run("commit");
    m_open = false;
}

void Transaction::rollback()
{
    if (m_open && !m_connection.commitsByItself())
        m_connection.run("rollback");
    m_open = false;
}

void Transaction::checkAlive() const
{
    if (m_open && m_connection.commitsByItself())
        throw SqlError(SqlError::Reason::Transaction, "数据库已撤销本次事务，请重新操作。");
}

} // namespace vortaq::sqlite
