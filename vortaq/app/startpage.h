// SPDX-License-Identifier: MIT
// What the main window shows while no function is open.
#pragma once

#include <QWidget>

namespace vortaq {

class Session;
struct ModuleInfo;

class StartPage : public QWidget {
    Q_OBJECT

public:
    StartPage(const Session &session, const ModuleInfo &info, QWidget *parent = nullptr);

signals:
    /// The clerk asks for the function.
    void functionWanted();
};

} // namespace vortaq
