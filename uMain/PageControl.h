// SPDX-License-Identifier: MIT
// The pages of the main form.
#pragma once

#include <QTabWidget>

/// Whoever goes to a page, with the mouse or by Ctrl+Tab, wants to work on it: the page's focus proxy gets the
/// keyboard. Only the arrows on the tabs themselves leave it there.
class PageControl : public QTabWidget {
    Q_OBJECT

public:
    explicit PageControl(QWidget *parent = nullptr);

    /// Puts the keyboard into the page in front.
    void focusPage() const;
};
