// SPDX-License-Identifier: MIT
// A clerk's hands inside a modal dialog, while the click that opened it is still waiting for its end.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <exception>
#include <functional>
#include <utility>

/// Waits from its construction for a modal dialog of one object name, does its work in it once and closes it, if the
/// work has not. A dialog of another name, work that throws, and a visit that never happened fail the test.
class ModalVisit {
public:
    ModalVisit(QString dialogName, std::function<void(QWidget &)> work)
        : m_dialogName(std::move(dialogName))
        , m_work(std::move(work))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(0);
    }
    ~ModalVisit() { EXPECT_TRUE(m_visited) << "no dialog " << m_dialogName.toStdString(); }
    ModalVisit(const ModalVisit &) = delete;
    ModalVisit &operator=(const ModalVisit &) = delete;

private:
    void look()
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || !dialog->isVisible())
            return;
        m_timer.stop();
        EXPECT_EQ(dialog->objectName(), m_dialogName);
        m_visited = true;
        try {
            m_work(*dialog);
        } catch (const std::exception &error) {
            ADD_FAILURE() << error.what();
        }
        if (dialog == QApplication::activeModalWidget())
            dialog->close();
    }

    QTimer m_timer;
    QString m_dialogName;
    std::function<void(QWidget &)> m_work;
    bool m_visited = false;
};
