// SPDX-License-Identifier: MIT
// The module's own modal questions, behind a seam that tests can answer.
#pragma once

#include <QString>

class QWidget;

namespace toolkit {

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    /// Yes/No with the question icon; true for Yes. Escape and closing the box count as No.
    [[nodiscard]] virtual bool ask(QWidget *parent, const QString &title, const QString &text) = 0;
    /// The same before something is taken away: an Enter too many means No.
    [[nodiscard]] virtual bool askBeforeLoss(QWidget *parent, const QString &title, const QString &text)
    {
        return ask(parent, title, text);
    }
    /// OK only, with the question icon.
    virtual void tell(QWidget *parent, const QString &title, const QString &text) = 0;
};

/// The boxes in use; real ones until setMessageBoxes() is called.
[[nodiscard]] MessageBoxes &messageBoxes();
/// Null restores the real ones. Borrowed.
void setMessageBoxes(MessageBoxes *boxes);

} // namespace toolkit
