// SPDX-License-Identifier: MIT
// A host that knows another institution the second time it is asked.
#pragma once

#include "automation/latebound.h"

#include <QObject>
#include <QVariant>

class MovingClerk : public QObject {
    Q_OBJECT

public:
    Q_INVOKABLE AUTOMATION_READ QVariant CustomParam(const QString &)
    {
        return ++m_readings == 1 ? QStringLiteral("42990101") : QStringLiteral("4299'02");
    }

private:
    int m_readings = 0;
};
