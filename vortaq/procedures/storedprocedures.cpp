// SPDX-License-Identifier: MIT
// Finds a procedure, fills its arguments in and asks the engine.
#include "vortaq/procedures/storedprocedures.h"

#include "vortaq/Engine.h"

#include <algorithm>

namespace vortaq {

namespace {

[[noreturn]] void refuse(const ProcedureCall &call, const QString &detail)
{
    throw SqlError(SqlError::Reason::Binding, QStringLiteral("存储过程“%1”%2").arg(call.name, detail).toStdString());
}

QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', QStringLiteral("''")) + u'\'';
}

/// The only cell of a row set of one row and one column.
QString singleValue(const automation::DataPacket &rows)
{
    const std::string_view text = rows.text(0, 0);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString procedureText(Engine &engine, const ProcedureCall &call)
{
    const automation::DataPacketPtr rows =
        engine.query(QStringLiteral("select Text from v_Procedure where Name=") + quoted(call.name));
    if (rows->rowCount() == 0)
        refuse(call, QStringLiteral("不存在"));
    return singleValue(*rows);
}

/// Puts values in for names and remembers which of them were wanted.
class Arguments {
public:
    explicit Arguments(const ProcedureCall &call)
        : m_call(call)
        , m_used(call.arguments.size())
    {
    }

    QString value(const QString &name)
    {
        const auto found =
            std::find_if(m_call.arguments.begin(), m_call.arguments.end(), [&](const ProcedureArgument &argument) {
                return argument.name.compare(name, Qt::CaseInsensitive) == 0;
            });
        if (found == m_call.arguments.end())
            refuse(m_call, QStringLiteral("缺少参数“@%1”").arg(name));
        m_used[static_cast<std::size_t>(found - m_call.arguments.begin())] = true;
        return quoted(found->value);
    }
    void requireAllUsed() const
    {
        const auto unused = std::find(m_used.begin(), m_used.end(), false);
        if (unused != m_used.end()) {
            const auto position = static_cast<std::size_t>(unused - m_used.begin());
            refuse(m_call, QStringLiteral("没有参数“@%1”").arg(m_call.arguments[position].name));
        }
    }

private:
    const ProcedureCall &m_call;
    std::vector<bool> m_used;
};

} // namespace

QString execProcedure(Engine &engine, const QString &call)
{
    const ProcedureCall parsed = parseProcedureCall(call);
    const QString query = withArguments(procedureText(engine, parsed), parsed);
    const automation::DataPacketPtr rows = engine.query(query);
    if (rows->rowCount() != 1 || rows->columnCount() != 1)
        refuse(parsed,
               QStringLiteral("应当得到一个值，得到的是%1行%2列").arg(rows->rowCount()).arg(rows->columnCount()));
    return singleValue(*rows);
}

QString withArguments(const QString &procedureText, const ProcedureCall &call)
{
    Arguments arguments(call);
    QString result;
    bool inString = false; // a doubled quote leaves the string and enters it again
    for (qsizetype at = 0; at < procedureText.size();) {
        const QChar character = procedureText.at(at++);
        if (character == u'\'')
            inString = !inString;
        if (inString || character != u'@') {
            result += character;
            continue;
        }
        const qsizetype begin = at;
        while (at < procedureText.size() && isNameCharacter(procedureText.at(at), at == begin))
            ++at;
        result += arguments.value(procedureText.mid(begin, at - begin));
    }
    arguments.requireAllUsed();
    return result;
}

} // namespace vortaq
