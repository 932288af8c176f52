// SPDX-License-Identifier: MIT
// A host object with one operation of every kind.
#pragma once

#include "automation/datapacket.h"
#include "automation/latebound.h"

#include <QObject>

#include <stdexcept>

class SampleObject : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString Table READ table WRITE setTable)

public:
    explicit SampleObject(int *living = nullptr)
        : m_living(living)
    {
        if (m_living != nullptr)
            ++*m_living;
    }
    ~SampleObject() override
    {
        if (m_living != nullptr)
            --*m_living;
    }

    Q_INVOKABLE AUTOMATION_READ QVariant Param(const QString &name)
    {
        return name == QStringLiteral("none") ? QVariant() : QVariant(name + QStringLiteral("!"));
    }
    Q_INVOKABLE int add(int first, int second) { return first + second; }
    Q_INVOKABLE QVariant echo(const QVariant &value) { return value; }
    Q_INVOKABLE void fail(const QString &message) { throw std::runtime_error(message.toStdString()); }
    Q_INVOKABLE void failOddly() { throw 42; } // what no standard exception is derived from
    Q_INVOKABLE void nothing() { ++m_calls; }
    Q_INVOKABLE automation::DataPacketPtr rows()
    {
        automation::DataPacketBuilder builder({QStringLiteral("A")});
        builder.append("1");
        return builder.finish();
    }

    [[nodiscard]] QString table() const { return m_table; }
    void setTable(const QString &table) { m_table = table; }
    [[nodiscard]] int calls() const { return m_calls; }

private:
    QString m_table;
    int *m_living;
    int m_calls = 0;
};
