// SPDX-License-Identifier: MIT
// The preview: look at the pages, print them, save them, export them.
#pragma once

#include "report/document.h"
#include "report/preview/BusyDialog.h"

#include <QDialog>
#include <QTimer>

#include <exception>
#include <memory>

namespace Ui {
class PreviewWindow;
}

namespace report {

/// Shows the first page at once and lays out the others in between the clerk's events.
class PreviewWindow : public QDialog {
    Q_OBJECT

public:
    /// Borrows the document, whose first page is laid out. `elapsed` counts from the beginning of the laying out.
    PreviewWindow(Document &document, QWidget *parent, Elapsed elapsed = elapsedFromNow());
    ~PreviewWindow() override;

    /// Modal, until the window is closed. Rethrows what laying out the pages threw.
    void run();

    void print();
    void savePdf();
    void exportSpreadsheet();

private:
    void connectButtons();
    void addShortcuts();
    void fillZoomLevels();
    void layOutSlice();
    void stopLayingOut();
    void showPage(int index);
    void turnPage(int direction);
    void chooseZoom(int index);
    void stepZoom(int direction);
    void showState();
    /// Runs a job over the whole document behind a busy dialog, with the laying out in the background resting.
    template <typename Job> bool runJob(const QString &what, Job job);

    Document &m_document;
    Elapsed m_elapsed;
    std::unique_ptr<Ui::PreviewWindow> m_ui;
    QTimer m_timer; ///< runs while pages are left to lay out
    bool m_stopped = false;
    QString m_message;
    std::exception_ptr m_failure;
};

} // namespace report
