// SPDX-License-Identifier: MIT
// A real engine that refuses one statement on demand.
#pragma once

#include "vortaq/Engine.h"

#include <functional>
#include <memory>

/// What reaches the host's error display when it refuses something that no page alerts itself.
[[nodiscard]] inline QString failedWhile(const char *doing)
{
    return QStringLiteral("%1时出错：\n故障").arg(QString::fromUtf8(doing));
}

class FailingEngine : public vortaq::Engine {
public:
    explicit FailingEngine(std::unique_ptr<vortaq::Engine> engine)
        : m_engine(std::move(engine))
    {
    }

    /// From now on the `count`-th call, whatever it is, raises "故障"; 1 is the next one, 0 none.
    void failCall(int count)
    {
        m_countdown = count;
        m_failsOddly = false;
    }
    /// The same with something that is no exception of the standard library.
    void failCallOddly(int count)
    {
        m_countdown = count;
        m_failsOddly = true;
    }
    /// Calls so far: queries, changes, begins and commits. Rolling back neither counts nor fails.
    [[nodiscard]] int calls() const { return m_calls; }

    automation::DataPacketPtr query(const QString &sql) override
    {
        step();
        return m_engine->query(sql);
    }
    int execute(const QString &sql) override
    {
        step();
        return m_engine->execute(sql);
    }
    void begin() override
    {
        step();
        m_engine->begin();
    }
    void commit() override
    {
        step();
        m_engine->commit();
    }
    void rollback() override { m_engine->rollback(); }

private:
    void step()
    {
        ++m_calls;
        if (m_countdown == 0 || --m_countdown > 0)
            return;
        if (m_failsOddly)
            throw 42;
        throw vortaq::SqlError(vortaq::SqlError::Reason::Other, "故障");
    }

    std::unique_ptr<vortaq::Engine> m_engine;
    int m_countdown = 0;
    bool m_failsOddly = false;
    int m_calls = 0;
};
