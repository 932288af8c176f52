// SPDX-License-Identifier: MIT
// Everything the module says, in order: calls on host objects and its own questions.
#pragma once

#include "automation/journal.h"
#include "toolkit/messageboxes.h"

#include <QStringList>

#include <deque>

/// Listens from construction to destruction. One line a call, "Object.Operation(argument,…)"; a failing call ends in
/// " !" and its error. Questions read "ask(title,text)=yes|no". Reads of "Color-1" and "Color-2" are left out: they
/// come with painting, as often as the window system asks for it.
///
/// Answers to questions are queued beforehand; a question without an answer, and an answer without a question, fail
/// the test.
class Conversation : public automation::CallObserver, public toolkit::MessageBoxes {
public:
    Conversation();
    ~Conversation() override;

    [[nodiscard]] const QStringList &lines() const { return m_lines; }
    /// The lines since the last call of this.
    QStringList take();

    void answerYes() { m_answers.push_back(true); }
    void answerNo() { m_answers.push_back(false); }

    void called(const automation::CallRecord &call) override;
    bool ask(QWidget *parent, const QString &title, const QString &text) override;
    void tell(QWidget *parent, const QString &title, const QString &text) override;

private:
    QStringList m_lines;
    std::deque<bool> m_answers;
};
