// SPDX-License-Identifier: MIT
#include "tests/support/conversation.h"

#include <gtest/gtest.h>

#include <utility>

Conversation::Conversation()
{
    automation::addCallObserver(this);
    toolkit::setMessageBoxes(this);
}

Conversation::~Conversation()
{
    automation::removeCallObserver(this);
    toolkit::setMessageBoxes(nullptr);
    EXPECT_TRUE(m_answers.empty()) << "an answer was not used";
}

QStringList Conversation::take()
{
    return std::exchange(m_lines, {});
}

void Conversation::called(const automation::CallRecord &call)
{
    QStringList arguments;
    for (const QVariant &argument : call.arguments)
        arguments.append(argument.toString());
    const QString first = arguments.value(0);
    if (call.kind == automation::Kind::Read
        && (first == QStringLiteral("Color-1") || first == QStringLiteral("Color-2")))
        return;
    QString line = QStringLiteral("%1.%2(%3)").arg(call.object, call.operation, arguments.join(QLatin1Char(',')));
    if (!call.succeeded)
        line += QStringLiteral(" !") + call.error;
    m_lines.append(line);
}

bool Conversation::ask(QWidget *, const QString &title, const QString &text)
{
    const bool answer = !m_answers.empty() && m_answers.front();
    if (m_answers.empty())
        ADD_FAILURE() << "unexpected question: " << text.toStdString();
    else
        m_answers.pop_front();
    m_lines.append(
        QStringLiteral("ask(%1,%2)=%3").arg(title, text, answer ? QStringLiteral("yes") : QStringLiteral("no")));
    return answer;
}

void Conversation::tell(QWidget *, const QString &title, const QString &text)
{
    m_lines.append(QStringLiteral("tell(%1,%2)").arg(title, text));
}
