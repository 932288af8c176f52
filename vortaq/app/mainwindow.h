// SPDX-License-Identifier: MIT
// The host's window: menu, the module's form as its contents, status bar.
#pragma once

#include <QMainWindow>

#include <memory>

class QStackedWidget;

namespace vortaq {

class ElidedLabel;
class ErrorWatch;
class LoadingNotice;
class ModuleLibrary;
class Session;
class StartPage;

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Whether size and place are kept in the user's settings from one run to the next.
    enum class Geometry { Remembered, Fresh };

    /// `module` is borrowed and must outlive the window; its form is freed with the window.
    MainWindow(std::shared_ptr<Session> session, ModuleLibrary &module, const QString &database, Geometry geometry);
    ~MainWindow() override;

    /// Shows the module's form, making it when there is none. A form that was closed or could not be loaded is shown
    /// anew. A form that displays an error while it is shown is not loaded: it stays on the screen, disabled, and the
    /// status bar says so and offers to try again.
    void openFunction();
    /// Frees the module's form and returns to the start page.
    void closeFunction();
    /// Lets the open form load itself anew, after a question when it holds input that is not saved.
    void refreshFunction();

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildMenus();
    void buildStatusBar(const QString &database);
    void showForm(QWidget &form);
    /// A form that could not load itself stays, but cannot be used.
    void acceptLoaded(QWidget &form, const ErrorWatch &watch);
    void showTip(const QString &tip);
    void showStartPage();
    void updateState();
    void about();

    std::shared_ptr<Session> m_session;
    ModuleLibrary &m_module;
    Geometry m_geometry;
    QStackedWidget *m_pages;
    StartPage *m_startPage;
    LoadingNotice *m_loadingNotice = nullptr;
    ElidedLabel *m_tip = nullptr;
    QAction *m_refresh = nullptr;
    QAction *m_closeFunction = nullptr;
};

} // namespace vortaq
