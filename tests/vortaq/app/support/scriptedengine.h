// SPDX-License-Identifier: MIT
// An engine that answers from a list, for tests of the host without a database.
#pragma once

#include "vortaq/Engine.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace vortaq::test {

/// A packet from rows of text.
[[nodiscard]] automation::DataPacketPtr packet(const QStringList &columns, const std::vector<QStringList> &rows);

class ScriptedEngine : public Engine {
public:
    /// What a query of exactly this text returns. Any other query raises an error.
    void answer(const QString &sql, const automation::DataPacketPtr &rows) { m_answers.insert(sql, rows); }
    /// Makes every following call raise this; empty ends it.
    void failWith(const QString &message) { m_failure = message; }
    /// Runs inside each call.
    void onCall(std::function<void()> watch) { m_watch = std::move(watch); }

    /// Every call, for example "query select 1" or "begin".
    [[nodiscard]] const QStringList &calls() const { return m_calls; }

    automation::DataPacketPtr query(const QString &sql) override;
    int execute(const QString &sql) override;
    void begin() override;
    void commit() override;
    void rollback() override;

private:
    void note(const QString &call);

    QHash<QString, automation::DataPacketPtr> m_answers;
    QString m_failure;
    QStringList m_calls;
    std::function<void()> m_watch;
};

} // namespace vortaq::test
