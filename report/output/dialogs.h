// SPDX-License-Identifier: MIT
// The system's printers and file dialogs, behind a seam that tests can answer.
#pragma once

#include <QString>

class QPrinter;
class QWidget;

namespace report {

class Dialogs {
public:
    virtual ~Dialogs() = default;

    [[nodiscard]] virtual bool hasPrinter() = 0;
    /// Sets `printer` as the clerk wishes, with a range out of `pages`; false when the clerk cancels.
    [[nodiscard]] virtual bool choosePrinter(QWidget *parent, QPrinter &printer, int pages) = 0;
    /// Path of the file to write, with the suffix ("pdf") added where it is missing; empty when the clerk cancels. An
    /// existing file is asked about.
    [[nodiscard]] virtual QString chooseFile(QWidget *parent, const QString &caption, const QString &name,
                                             const QString &suffix) = 0;
};

/// The dialogs in use; the system's until setDialogs() is called.
[[nodiscard]] Dialogs &dialogs();
/// Null restores the system's. Borrowed.
void setDialogs(Dialogs *dialogs);

} // namespace report
