// SPDX-License-Identifier: MIT
// Tells how far a long job has come and lets the clerk stop it; short jobs never show it.
#pragma once

#include <QDialog>

#include <functional>

class QProgressBar;

namespace report {

/// Milliseconds since some moment.
using Elapsed = std::function<qint64()>;
[[nodiscard]] Elapsed elapsedFromNow();

class BusyDialog : public QDialog {
    Q_OBJECT

public:
    /// `elapsed` counts from the beginning of the job.
    BusyDialog(QWidget *parent, const QString &what, Elapsed elapsed = elapsedFromNow());
    ~BusyDialog() override;

    /// To be called often: shows the dialog once the job has taken a second, and lets the clerk's events in from then
    /// on. False once the clerk has stopped the job.
    [[nodiscard]] bool advance(int permille);

    void reject() override;

private:
    Elapsed m_elapsed;
    QProgressBar *m_bar;
    qint64 m_lastLook = 0;
    bool m_stopped = false;
};

} // namespace report
