// SPDX-License-Identifier: MIT
// Answers from the list and notes the calls.
#include "tests/vortaq/app/support/scriptedengine.h"

namespace vortaq::test {

automation::DataPacketPtr packet(const QStringList &columns, const std::vector<QStringList> &rows)
{
    automation::DataPacketBuilder builder(std::vector<QString>(columns.begin(), columns.end()));
    for (const QStringList &row : rows) {
        for (const QString &cell : row)
            builder.append(cell.toStdString());
    }
    return builder.finish();
}

automation::DataPacketPtr ScriptedEngine::query(const QString &sql)
{
    note(QStringLiteral("query ") + sql);
    if (sql.isEmpty())
        return packet({}, {});
    const auto found = m_answers.constFind(sql);
    if (found == m_answers.constEnd())
        throw SqlError(SqlError::Reason::Other, ("没有为此查询准备结果：" + sql.toStdString()));
    return *found;
}

int ScriptedEngine::execute(const QString &sql)
{
    note(QStringLiteral("execute ") + sql);
    return 2;
}

void ScriptedEngine::begin()
{
    note(QStringLiteral("begin"));
}

void ScriptedEngine::commit()
{
    note(QStringLiteral("commit"));
}

void ScriptedEngine::rollback()
{
    note(QStringLiteral("rollback"));
}

void ScriptedEngine::note(const QString &call)
{
    m_calls.append(call);
    if (m_watch)
        m_watch();
    if (!m_failure.isEmpty())
        throw SqlError(SqlError::Reason::Other, m_failure.toStdString());
}

} // namespace vortaq::test
