// SPDX-License-Identifier: MIT
// Reads a call from left to right.
#include "vortaq/procedures/ProcedureCall.h"

#include "vortaq/SqlError.h"

#include <algorithm>

namespace vortaq {

namespace {

class CallReader {
public:
    explicit CallReader(const QString &text)
        : m_text(text)
    {
    }

    ProcedureCall read()
    {
        ProcedureCall call;
        call.name = name(QStringLiteral("存储过程名"));
        do
            parameter(call);
        while (accept(u','));
        skipBlanks();
        if (m_at < m_text.size())
            refuse(QStringLiteral("多余的文字"));
        if (call.output.isEmpty())
            refuse(QStringLiteral("缺少输出参数"));
        return call;
    }

private:
    [[noreturn]] void refuse(const QString &detail) const
    {
        throw SqlError(SqlError::Reason::Syntax,
                       QStringLiteral("存储过程调用有误（第%1个字符）：%2").arg(m_at + 1).arg(detail).toStdString());
    }
    void skipBlanks()
    {
        while (m_at < m_text.size() && m_text.at(m_at).isSpace())
            ++m_at;
    }
    bool accept(QChar symbol)
    {
        skipBlanks();
        if (m_at >= m_text.size() || m_text.at(m_at) != symbol)
            return false;
        ++m_at;
        return true;
    }
    void expect(QChar symbol)
    {
        if (!accept(symbol))
            refuse(QStringLiteral("此处应为“%1”").arg(symbol));
    }

    QString name(const QString &what)
    {
        skipBlanks();
        const qsizetype begin = m_at;
        while (m_at < m_text.size() && isNameCharacter(m_text.at(m_at), m_at == begin))
            ++m_at;
        if (m_at == begin)
            refuse(QStringLiteral("此处应为%1").arg(what));
        return m_text.mid(begin, m_at - begin);
    }

    QString quotedText()
    {
        expect(u'\'');
        QString value;
        while (m_at < m_text.size()) {
            const QChar character = m_text.at(m_at++);
            if (character != u'\'') {
                value += character;
            } else if (m_at < m_text.size() && m_text.at(m_at) == u'\'') {
                value += character;
                ++m_at;
            } else {
                return value;
            }
        }
        refuse(QStringLiteral("字符串没有结束"));
    }

    void parameter(ProcedureCall &call)
    {
        expect(u'@');
        const QString parameterName = name(QStringLiteral("参数名"));
        checkNew(call, parameterName);
        expect(u'=');
        if (!accept(u':')) {
            call.arguments.push_back({parameterName, quotedText()});
            return;
        }
        (void)name(QStringLiteral("输出变量名"));
        if (name(QStringLiteral("output")).compare(QStringLiteral("output"), Qt::CaseInsensitive) != 0)
            refuse(QStringLiteral("输出参数后应为“output”"));
        if (!call.output.isEmpty())
            refuse(QStringLiteral("只能有一个输出参数"));
        call.output = parameterName;
    }

    void checkNew(const ProcedureCall &call, const QString &parameterName) const
    {
        const auto isSame = [&](const QString &other) {
            return other.compare(parameterName, Qt::CaseInsensitive) == 0;
        };
        if (isSame(call.output)
            || std::any_of(call.arguments.begin(), call.arguments.end(),
                           [&](const ProcedureArgument &argument) { return isSame(argument.name); }))
            refuse(QStringLiteral("参数“@%1”重复").arg(parameterName));
    }

    const QString &m_text;
    qsizetype m_at = 0;
};

} // namespace

ProcedureCall parseProcedureCall(const QString &text)
{
    return CallReader(text).read();
}

bool isNameCharacter(QChar character, bool first)
{
    return character.isLetter() || character == u'_' || (!first && character.isDigit());
}

} // namespace vortaq
