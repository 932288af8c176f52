// SPDX-License-Identifier: MIT
// Menus by keyboard.
#pragma once

#include <QObject>

class QMainWindow;

namespace vortaq {

/// Takes the keys that nothing in a window wanted: F10 opens the main window's menu bar, which leaves the letters with
/// Alt to the module's buttons, and Shift+F10, in dialogs too, the context menu of what has the focus, as the menu key
/// does.
class MenuKeys : public QObject {
    Q_OBJECT

public:
    /// Becomes a child of the window.
    explicit MenuKeys(QMainWindow &window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QMainWindow &m_window;
};

} // namespace vortaq
