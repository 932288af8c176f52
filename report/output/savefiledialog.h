// SPDX-License-Identifier: MIT
// Asks where to save a file.
#pragma once

#include <QString>

class QWidget;

namespace report {

/// Path of the file, with the suffix ("pdf") added where it is missing; empty when the clerk cancels. An existing file
/// is asked about. Begins in the folder that was chosen last, which the application's settings remember, and at first
/// among the user's documents. Sizes, dates and kinds of files are told in Chinese whatever the system speaks.
[[nodiscard]] QString askForSaveFile(QWidget *parent, const QString &caption, const QString &name,
                                     const QString &suffix);

} // namespace report
