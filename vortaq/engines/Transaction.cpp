// SPDX-License-Identifier: MIT
// Begin, commit, roll back.
#include "vortaq/engines/Transaction.h"

#include "vortaq/SqlError.h"

namespace vortaq::engines {

void Transaction::begin()
{
    if (m_open)
        throw SqlError(SqlError::Reason::Transaction, "上一个事务尚未结束，不能开始新的事务。");
    m_database.beginWriting();
    m_open = true;
}

void Transaction::commit()
{
    if (!m_open)
        throw SqlError(SqlError::Reason::Transaction, "没有可以提交的事务。");
    checkAlive();
    m_database.commitWriting();
    m_open = false;
}

void Transaction::rollback()
{
    if (m_open && m_database.isWriting())
        m_database.undoWriting();
    m_open = false;
}

void Transaction::checkAlive() const
{
    if (m_open && !m_database.isWriting())
        throw SqlError(SqlError::Reason::Transaction, "数据库已撤销本次事务，请重新操作。");
}

} // namespace vortaq::engines
