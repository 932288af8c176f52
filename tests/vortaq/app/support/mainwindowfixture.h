// SPDX-License-Identifier: MIT
// The main window around a module's form, as its tests need it.
#pragma once

#include "tests/vortaq/app/support/hostfixture.h"
#include "vortaq/app/mainwindow.h"
#include "vortaq/app/modulelibrary.h"

#include "automation/errordisplay.h"

#include <QAction>
#include <QApplication>

#include <gtest/gtest.h>

namespace vortaq::test {

class MainWindowFixture : public testing::Test {
protected:
    explicit MainWindowFixture(const QString &module)
        : m_module(module)
        , m_window(m_host.session, m_module, QStringLiteral("demo.db"), MainWindow::Geometry::Fresh)
    {
        automation::setErrorDisplay([this](const QString &message) { m_errors.append(message); });
        m_window.show();
        QApplication::processEvents();
    }
    ~MainWindowFixture() override { automation::setErrorDisplay({}); }

    void trigger(const char *action)
    {
        auto *found = m_window.findChild<QAction *>(QString::fromLatin1(action));
        ASSERT_TRUE(found) << action;
        found->trigger();
        QApplication::processEvents();
    }

    HostFixture m_host;
    QStringList m_errors;
    ModuleLibrary m_module;
    MainWindow m_window;
};

} // namespace vortaq::test
